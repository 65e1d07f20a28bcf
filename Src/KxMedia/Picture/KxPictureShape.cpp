#include <KxMedia/Picture/KxPictureShape.h>

#include <algorithm>
#include <cmath>

KxVideoFrame::Orientation KxOrientationOf(const std::array<std::int32_t, 9>& matrix)
{
    double a = matrix[0];
    double b = matrix[1];
    const double c = matrix[3];
    const double d = matrix[4];
    KxVideoFrame::Orientation orientation;
    orientation.mirror = a * d - b * c < 0;
    if (orientation.mirror) {
        a = -a;
        b = -b;
    }
    constexpr double quarterTurn = 1.57079632679489661923;
    const long quarters = std::lround(std::atan2(b, a) / quarterTurn);
    orientation.clockwiseDegrees = static_cast<int>((quarters + 4) % 4) * 90;
    return orientation;
}

QSize KxDisplayedSize(const QSize& coded, const KxRational& pixelShape, const KxVideoFrame::Orientation& orientation)
{
    double shape = pixelShape.IsPositive() ? pixelShape.ToDouble() : 1.0;
    if (shape < 1.0 / 8 || shape > 8.0) {
        shape = 1.0;
    }
    const QSize size(std::max(1, static_cast<int>(std::lround(coded.width() * shape))), coded.height());
    return orientation.clockwiseDegrees % 180 == 0 ? size : size.transposed();
}
