#include <KrAutoReframe/Engine/KrGuides.h>

#include <cmath>

namespace
{

/// The safe zones of vertical players. Each covers another part of the picture: the account and the text at the lower
/// edge, the buttons at the right one, the search and the tabs at the upper one. The rectangle is clear of all of them.
/// In pixels of a picture of the size `picture`; other sizes of that aspect ratio scale it.
constexpr struct {
    QSizeF picture;
    QRectF clear; ///< x 120 to 888, y 288 to 1248
} VerticalPlayers{{1080.0, 1920.0}, {120.0, 288.0, 768.0, 960.0}};

// The result's sides are whole even pixels, which changes the ratio of small ones a little.
constexpr double SameRatio = 0.02;

// In fractions of the height.
constexpr double LeastHeadroom = 0.05;
constexpr double MostHeadroom = 0.12;

bool HasRatioOf(const QSizeF& size, const QSizeF& other)
{
    const double ratio = size.width() / size.height();
    const double wanted = other.width() / other.height();
    return std::abs(ratio / wanted - 1.0) <= SameRatio;
}

} // namespace

QRectF KrGuides::SafeArea(const QRectF& result)
{
    const QSizeF& picture = VerticalPlayers.picture;
    if (result.isEmpty() || !HasRatioOf(result.size(), picture)) {
        return {};
    }
    const QRectF& clear = VerticalPlayers.clear;
    const double across = result.width() / picture.width();
    const double down = result.height() / picture.height();
    return {result.x() + clear.x() * across, result.y() + clear.y() * down, clear.width() * across,
            clear.height() * down};
}

QList<QLineF> KrGuides::Thirds(const QRectF& result)
{
    QList<QLineF> lines;
    for (const double third : {1.0 / 3.0, 2.0 / 3.0}) {
        const double x = result.x() + third * result.width();
        const double y = result.y() + third * result.height();
        lines.append({x, result.top(), x, result.bottom()});
        lines.append({result.left(), y, result.right(), y});
    }
    return lines;
}

QRectF KrGuides::Headroom(const QRectF& result)
{
    return {result.x(), result.y() + LeastHeadroom * result.height(), result.width(),
            (MostHeadroom - LeastHeadroom) * result.height()};
}
