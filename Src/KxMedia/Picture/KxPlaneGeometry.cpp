#include <KxMedia/Picture/KxPlaneGeometry.h>

QRectF KxPlaneGeometry::ToCoded(const QRectF& upright, const KxVideoFrame::Orientation& turn)
{
    const double x = upright.x();
    const double y = upright.y();
    const double width = upright.width();
    const double height = upright.height();
    QRectF coded = upright;
    switch (turn.clockwiseDegrees) {
    case 90:
        coded = QRectF(y, 1.0 - (x + width), height, width);
        break;
    case 180:
        coded = QRectF(1.0 - (x + width), 1.0 - (y + height), width, height);
        break;
    case 270:
        coded = QRectF(1.0 - (y + height), x, height, width);
        break;
    default:
        break;
    }
    if (turn.mirror) {
        coded.moveLeft(1.0 - (coded.x() + coded.width()));
    }
    return coded;
}

KxPlaneGeometry::Span KxPlaneGeometry::PlaneSpan(const Span& sourcePx, int targetPx, const Sampling& source,
                                                 const Sampling& target, int targetSamples)
{
    const double scale = sourcePx.length / targetPx;
    const double samplesPerSample = scale * target.stepPx / source.stepPx;
    const double firstPx = sourcePx.start + scale * target.firstPx;
    const double firstSample = (firstPx - source.firstPx) / source.stepPx + 0.5;
    return {firstSample - 0.5 * samplesPerSample, samplesPerSample * targetSamples};
}

KxPlaneGeometry::PlaneSampling KxPlaneGeometry::LeftSitedAfterTurn(const KxVideoFrame::Orientation& turn)
{
    constexpr Sampling nearSide{0.5, 2};
    constexpr Sampling middle{1.0, 2};
    constexpr Sampling farSide{1.5, 2};
    PlaneSampling sampling{nearSide, middle};
    switch (turn.clockwiseDegrees) {
    case 90:
        sampling = {middle, farSide};
        break;
    case 180:
        sampling = {farSide, middle};
        break;
    case 270:
        sampling = {middle, nearSide};
        break;
    default:
        break;
    }
    if (turn.mirror) {
        sampling.horizontal.firstPx = 2.0 - sampling.horizontal.firstPx;
    }
    return sampling;
}
