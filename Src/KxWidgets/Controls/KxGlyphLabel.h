#pragma once

#include <QWidget>

/// A picture of the style's family in one colour.
class KxGlyphLabel : public QWidget
{
    Q_OBJECT
public:
    KxGlyphLabel(int sidePx, QWidget* parent);
    ~KxGlyphLabel() override;

    /// Hides itself for a name that the family does not have.
    void SetGlyph(const QString& name, const QColor& colour);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_name;
    QColor m_colour;
};
