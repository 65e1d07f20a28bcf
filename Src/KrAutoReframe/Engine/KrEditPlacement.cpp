#include <KrAutoReframe/Engine/KrEditPlacement.h>

#include <algorithm>
#include <cmath>

namespace
{

// Far below a pixel of the largest picture: crops of one aspect ratio differ by rounding alone.
constexpr double SameSize = 1e-6;

double Inside(double start, double extent)
{
    return std::max(0.0, std::min(start, 1.0 - extent));
}

} // namespace

QRectF KrEditPlacement::InSize(const QRectF& placed, const QSizeF& size)
{
    const bool hasThatSize =
        std::abs(placed.width() - size.width()) < SameSize && std::abs(placed.height() - size.height()) < SameSize;
    if (hasThatSize) {
        return placed;
    }
    const QPointF centre = placed.center();
    return {Inside(centre.x() - size.width() / 2.0, size.width()),
            Inside(centre.y() - size.height() / 2.0, size.height()), size.width(), size.height()};
}
