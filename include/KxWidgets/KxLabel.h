#pragma once

#include <KxCore/KxExport.h>

#include <QLabel>

/// A line of text. Text and tooltip are plain text, also where they look like markup.
class KXWIDGETS_API KxLabel : public QLabel
{
    Q_OBJECT
public:
    static KxLabel* CreateLabel(QWidget* parent, const QString& text);
    ~KxLabel() override;

    /// How a text that is wider than the label is shortened. A label without a tooltip then shows its whole text as
    /// one. With Qt::ElideNone, the initial mode, nothing is shortened.
    void SetElideMode(Qt::TextElideMode mode);

    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    explicit KxLabel(QWidget* parent);
    bool IsElided() const;

    Qt::TextElideMode m_elideMode = Qt::ElideNone;
};
