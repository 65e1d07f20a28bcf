#pragma once

#include <KxCore/KxExport.h>

#include <QObject>

/// Shows tooltips as plain text, below the control rather than below the pointer, and long ones in several lines.
/// Install it as the event filter of a widget; it then serves that widget and its children.
class KXWIDGETS_API KxToolTipHelper : public QObject
{
    Q_OBJECT
public:
    static KxToolTipHelper* GetInstance();
    ~KxToolTipHelper() override;

    /// `text` in a form that QToolTip shows literally, even if it looks like markup, and wraps if it is long.
    static QString AsPlainText(const QString& text);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    KxToolTipHelper();
    void Watch(QObject* child);
    void WatchChildren(QObject* watched);
};
