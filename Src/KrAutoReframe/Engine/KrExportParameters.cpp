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

bool IsWholePicture(const QRectF& crop)
{
    constexpr double nearlyAll = 0.999;
    return crop.width() > nearlyAll && crop.height() > nearlyAll;
}

} // namespace

QSize KrExportParameters::EvenResolution(const QSize& source, const QRectF& cropRatio)
{
    return QSize(EvenNear(cropRatio.width() * source.width()), EvenNear(cropRatio.height() * source.height()));
}

QRectF KrExportParameters::ShapeOfResult(const QList<IKxAutoReframeResult>& results, const QSize& source,
                                         const QSize& aspect)
{
    const auto isPart = [](const IKxAutoReframeResult& result) { return !IsWholePicture(result.cropRect()); };
    const auto part = std::find_if(results.cbegin(), results.cend(), isPart);
    if (part != results.cend()) {
        return part->cropRect();
    }
    if (source.isEmpty() || aspect.isEmpty()) {
        return results.first().cropRect();
    }
    const QSizeF shape = QSizeF(aspect).scaled(source, Qt::KeepAspectRatio);
    const QSizeF size(shape.width() / source.width(), shape.height() / source.height());
    return {QPointF((1.0 - size.width()) / 2.0, (1.0 - size.height()) / 2.0), size};
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
