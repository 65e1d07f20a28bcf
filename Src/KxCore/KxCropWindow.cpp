#include <KxCore/KxCropWindow.h>

#include <algorithm>
#include <cmath>

namespace
{

double Snapped(double px)
{
    constexpr double stepsPerPixel = 4096.0;
    return std::round(px * stepsPerPixel) / stepsPerPixel;
}

struct Span {
    double start = 0.0;
    double length = 1.0;
};

Span PixelSpan(double start, double length, int picturePx)
{
    const double lengthPx = std::clamp(Snapped(length * picturePx), 1.0, static_cast<double>(picturePx));
    return {std::clamp(Snapped(start * picturePx), 0.0, picturePx - lengthPx), lengthPx};
}

} // namespace

bool KxCropWindow::IsUsable(const QRectF& crop)
{
    return std::isfinite(crop.x()) && std::isfinite(crop.y()) && std::isfinite(crop.width()) &&
           std::isfinite(crop.height()) && crop.width() > 0.0 && crop.height() > 0.0;
}

QRectF KxCropWindow::Inside(const QRectF& crop)
{
    if (!IsUsable(crop)) {
        return {0.0, 0.0, 1.0, 1.0};
    }
    const double width = std::min(crop.width(), 1.0);
    const double height = std::min(crop.height(), 1.0);
    return {std::clamp(crop.x(), 0.0, 1.0 - width), std::clamp(crop.y(), 0.0, 1.0 - height), width, height};
}

QRectF KxCropWindow::Central(const QSizeF& picture, const QSizeF& aspect)
{
    const double pictureRatio = picture.width() / picture.height();
    const double wantedRatio = aspect.width() / aspect.height();
    const double width = std::min(1.0, wantedRatio / pictureRatio);
    const double height = std::min(1.0, pictureRatio / wantedRatio);
    return {(1.0 - width) / 2, (1.0 - height) / 2, width, height};
}

QRectF KxCropWindow::Pixels(const QRectF& crop, const QSize& picture)
{
    const QRectF inside = Inside(crop);
    const Span across = PixelSpan(inside.x(), inside.width(), picture.width());
    const Span down = PixelSpan(inside.y(), inside.height(), picture.height());
    return {across.start, down.start, across.length, down.length};
}

bool KxCropWindow::HasShapeOf(const QSizeF& target, const QRectF& crop, const QSize& picture)
{
    // A side is rounded to an even number of pixels, which changes the shape of small pictures.
    constexpr double rounding = 0.03;
    const QSizeF size = Pixels(crop, picture).size();
    return std::abs(size.width() * target.height() / (size.height() * target.width()) - 1.0) <= rounding;
}

QRectF KxCropWindow::MappedTo(const QRectF& area, const QRectF& crop)
{
    return {area.x() + crop.x() * area.width(), area.y() + crop.y() * area.height(), crop.width() * area.width(),
            crop.height() * area.height()};
}
