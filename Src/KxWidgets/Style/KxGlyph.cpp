#include <KxWidgets/Style/KxGlyph.h>

#include <KxWidgets/KxUIStyle.h>

#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

namespace
{

using KxUIStyle::Role;

QString FileOf(const QString& name)
{
    return QStringLiteral(":/KxWidgets/Icons/%1.svg").arg(name);
}

QColor ColourOf(KxGlyph::State state)
{
    switch (state) {
    case KxGlyph::State::Normal:
        return KxUIStyle::Colour(Role::Icon);
    case KxGlyph::State::Hover:
        return KxUIStyle::Colour(Role::Strong);
    case KxGlyph::State::Pressed:
        return KxUIStyle::Colour(Role::Muted);
    case KxGlyph::State::Disabled:
        return KxUIStyle::Colour(Role::Off);
    case KxGlyph::State::Checked:
        return KxUIStyle::Colour(Role::Accent);
    }
    return {};
}

/// What becomes of the strokes of a drawing that have a colour of their own.
enum class Accents { Keep, Drop };

void PaintDrawing(QPainter& painter, const QString& name, const QRectF& area, const QColor& colour, Accents accents)
{
    QFile file(FileOf(name));
    if (!file.open(QIODevice::ReadOnly)) {
        return;
    }
    QByteArray drawing = file.readAll();
    drawing.replace("currentColor", colour.name().toLatin1());
    const std::pair<const char*, Role> own[] = {{"#FF8B55", Role::Edited}, {"#FFAE34", Role::Doubt}};
    for (const auto& [stroke, role] : own) {
        const QColor shown = accents == Accents::Keep ? KxUIStyle::Colour(role) : colour;
        drawing.replace(stroke, shown.name().toLatin1());
    }
    const qreal side = std::min(area.width(), area.height());
    QRectF square(0, 0, side, side);
    square.moveCenter(area.center());
    QSvgRenderer(drawing).render(&painter, square);
}

class GlyphEngine : public QIconEngine
{
public:
    explicit GlyphEngine(QString name)
        : m_name(std::move(name))
    {
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        KxGlyph::Paint(*painter, m_name, rect, StateOf(mode, state));
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return picture;
    }

    QIconEngine* clone() const override { return new GlyphEngine(m_name); }

private:
    static KxGlyph::State StateOf(QIcon::Mode mode, QIcon::State state)
    {
        if (mode == QIcon::Disabled) {
            return KxGlyph::State::Disabled;
        }
        if (state == QIcon::On) {
            return KxGlyph::State::Checked;
        }
        return mode == QIcon::Active ? KxGlyph::State::Hover : KxGlyph::State::Normal;
    }

    const QString m_name;
};

} // namespace

bool KxGlyph::Exists(const QString& name)
{
    return !name.isEmpty() && QFile::exists(FileOf(name));
}

void KxGlyph::Paint(QPainter& painter, const QString& name, const QRectF& area, State state)
{
    PaintDrawing(painter, name, area, ColourOf(state), state == State::Disabled ? Accents::Drop : Accents::Keep);
}

void KxGlyph::Paint(QPainter& painter, const QString& name, const QRectF& area, const QColor& colour)
{
    PaintDrawing(painter, name, area, colour, Accents::Drop);
}

QIcon KxGlyph::Icon(const QString& name)
{
    return Exists(name) ? QIcon(new GlyphEngine(name)) : QIcon();
}
