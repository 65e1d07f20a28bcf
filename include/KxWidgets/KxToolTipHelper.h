#pragma once

#include <KxCore/KxExport.h>

#include <QObject>

/// Shows tooltips: an event filter for whoever wants its own and its children's tooltips in the host's place: under the
/// control, not under the pointer, and long ones in several lines.
class KXWIDGETS_API KxToolTipHelper : public QObject
{
    Q_OBJECT
public:
    static KxToolTipHelper* GetInstance();
    ~KxToolTipHelper() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    KxToolTipHelper();
    void Watch(QObject* child);
    void WatchChildren(QObject* watched);
};
