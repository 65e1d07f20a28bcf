#include <KrAutoReframe/Engine/KrExportParameters.h>

#include <algorithm>
#include <cmath>

namespace
{

int EvenNear(double exact)
{
    const int rounded = static_cast<int>(std::round(exact));
    if (rounded % 2 == 0) {
        return rounded;
    }
    return rounded > exact ? rounded - 1 : rounded + 1;
}

} // namespace

QSize KrExportParameters::EvenResolution(const QSize& source, const QRectF& cropRatio)
{
    return QSize(EvenNear(cropRatio.width() * source.width()), EvenNear(cropRatio.height() * source.height()));
}

double KrExportParameters::FrameRate(const KxRational& source)
{
    constexpr double fastest = 60.0;
    if (!source.IsPositive()) {
        return 0.0;
    }
    if (source.numerator == 24000 && source.denominator == 1001) {
        return 23.97;
    }
    return std::min(source.ToDouble(), fastest);
}

int KrExportParameters::VideoBitRate(int source)
{
    return std::clamp(source, 256000, 150000000);
}

int KrExportParameters::AudioBitRate(int source)
{
    return std::clamp(source, 96000, 320000);
}
