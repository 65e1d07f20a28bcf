#pragma once

#include <KxMedia/Picture/KxVideoFrame.h>

#include <QRectF>

/// Where a crop rectangle lies in the planes of a decoded picture. Pure; any thread.
namespace KxPlaneGeometry
{
/// Position of the first sample's centre on one axis, in luma pixels from the picture's edge, and the distance of
/// samples in luma pixels. Luma itself is {0.5, 1}.
struct Sampling {
    double firstPx = 0.5;
    int stepPx = 1;
};
struct PlaneSampling {
    Sampling horizontal;
    Sampling vertical;
};
/// An interval on one axis: of the picture in luma pixels, or of a plane in its own samples.
struct Span {
    double start = 0.0;
    double length = 0.0;
};

/// The rectangle of the coded picture that becomes `upright` after turning. Both are in fractions.
QRectF ToCoded(const QRectF& upright, const KxVideoFrame::Orientation& turn);

/// The interval of a source plane to scale to `targetSamples` samples so that every target sample represents the place
/// given by its own siting. `sourcePx` is the requested interval of the source and `targetPx` the target's length, both
/// in luma pixels. The result may extend beyond the plane's edge by a fraction of a sample.
Span PlaneSpan(const Span& sourcePx, int targetPx, const Sampling& source, const Sampling& target, int targetSamples);

/// The chroma siting before turning that results in MPEG-2 siting afterwards: between the rows, on the left column of
/// each 2x2 block.
PlaneSampling LeftSitedAfterTurn(const KxVideoFrame::Orientation& turn);
} // namespace KxPlaneGeometry
