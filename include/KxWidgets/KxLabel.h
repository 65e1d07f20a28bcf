#pragma once

#include <KxCore/KxExport.h>

#include <QLabel>

/// A line of text.
class KXWIDGETS_API KxLabel : public QLabel
{
    Q_OBJECT
public:
    static KxLabel* CreateLabel(QWidget* parent, const QString& text);
    ~KxLabel() override;

    /// How a plain text that is wider than the label is shortened; the tooltip then shows the whole. Qt::ElideNone (as
    /// at first) shortens nothing and leaves the tooltip alone.
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
