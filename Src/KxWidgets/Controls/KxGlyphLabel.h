#pragma once

#include <QWidget>

/// One of the style's icons in one colour.
class KxGlyphLabel : public QWidget
{
    Q_OBJECT
public:
    KxGlyphLabel(int sidePx, QWidget* parent);
    ~KxGlyphLabel() override;

    /// For an unknown name the label is hidden.
    void SetGlyph(const QString& name, const QColor& colour);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_name;
    QColor m_colour;
};
