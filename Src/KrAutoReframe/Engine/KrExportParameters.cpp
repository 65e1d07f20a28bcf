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

bool HasShapeOf(const QSize& aspect, const QRectF& crop, const QSize& source)
{
    // A crop of whole pixels misses the ratio a little.
    constexpr double rounding = 0.03;
    const double width = crop.width() * source.width();
    const double height = crop.height() * source.height();
    return std::abs(width * aspect.height() / (height * aspect.width()) - 1.0) <= rounding;
}

} // namespace

QSize KrExportParameters::EvenResolution(const QSize& source, const QRectF& cropRatio)
{
    return QSize(EvenNear(cropRatio.width() * source.width()), EvenNear(cropRatio.height() * source.height()));
}

QRectF KrExportParameters::ShapeOfResult(const QList<IKxAutoReframeResult>& results, const QSize& source,
                                         const QSize& aspect)
{
    if (source.isEmpty() || aspect.isEmpty()) {
        return results.first().cropRect();
    }
    const auto isCut = [&](const IKxAutoReframeResult& result) {
        return HasShapeOf(aspect, result.cropRect(), source);
    };
    const auto cut = std::find_if(results.cbegin(), results.cend(), isCut);
    if (cut != results.cend()) {
        return cut->cropRect();
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
