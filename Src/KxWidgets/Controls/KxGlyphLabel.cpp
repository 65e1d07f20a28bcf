#include <KxWidgets/Controls/KxGlyphLabel.h>

#include <KxWidgets/Style/KxGlyph.h>

#include <QPainter>

KxGlyphLabel::KxGlyphLabel(int sidePx, QWidget* parent)
    : QWidget(parent)
{
    setFixedSize(sidePx, sidePx);
}

KxGlyphLabel::~KxGlyphLabel() = default;

void KxGlyphLabel::SetGlyph(const QString& name, KxUIStyle::Role colour)
{
    m_name = name;
    m_colour = colour;
    setVisible(KxGlyph::Exists(name));
    update();
}

void KxGlyphLabel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    KxGlyph::Paint(painter, m_name, rect(), KxUIStyle::Colour(m_colour));
}
