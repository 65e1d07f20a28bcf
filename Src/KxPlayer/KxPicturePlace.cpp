#include <KxPlayer/KxPicturePlace.h>

#include <algorithm>
#include <cmath>

namespace
{

// Keeps products that mean whole pixels from being rounded down below them.
constexpr double RoundingError = 1e-6;

int Shrunk(int extent, double by, double to)
{
    return std::max(1, static_cast<int>(std::floor(extent * by / to + RoundingError)));
}

} // namespace

QRect KxPicturePlace::Fit(const QRect& area, const QSizeF& shape)
{
    if (area.isEmpty() || shape.isEmpty()) {
        return area;
    }
    const bool isWide = area.width() * shape.height() <= area.height() * shape.width();
    const QSize size = isWide ? QSize(area.width(), Shrunk(area.width(), shape.height(), shape.width()))
                              : QSize(Shrunk(area.height(), shape.width(), shape.height()), area.height());
    const QSize rest = area.size() - size;
    return {area.topLeft() + QPoint(rest.width() / 2, rest.height() / 2), size};
}

QRect KxPicturePlace::In(const QSize& player, const QSizeF& shape)
{
    return Fit(Fit(QRect(QPoint(0, 0), player), QSizeF(16, 9)), shape);
}
