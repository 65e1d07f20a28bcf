#pragma once

#include <KxMedia/Picture/KxVideoFrame.h>

#include <QRectF>

/// Where a crop rectangle lies in the planes of a decoded picture. Pure; any thread.
namespace KxPlaneGeometry
{
/// Position of the first sample's centre on one axis, in luma pixels from the picture's edge, and how many luma pixels
/// lie between two samples. Luma itself is {0.5, 1}.
struct Sampling {
    double firstPx = 0.5;
    int stepPx = 1;
};
struct PlaneSampling {
    Sampling horizontal;
    Sampling vertical;
};
/// A stretch of one axis: of the picture in luma pixels, or of a plane in its own samples.
struct Span {
    double start = 0.0;
    double length = 0.0;
};

/// The part of the picture as decoded that shows `upright` once it is turned. Both in fractions.
QRectF ToCoded(const QRectF& upright, const KxVideoFrame::Orientation& turn);

/// The stretch of a source plane that has to be scaled to `targetSamples` samples so that every sample of the target
/// shows the very place that its own siting names. `sourcePx` is the wanted stretch of the source and `targetPx` the
/// target's length, both in luma pixels. May reach a fraction of a sample over the plane's edge.
Span PlaneSpan(const Span& sourcePx, int targetPx, const Sampling& source, const Sampling& target, int targetSamples);

/// How the chroma of a picture with subsampling has to be sited before it is turned so that it is sited between the
/// rows and on the left column of each 2x2 block afterwards, as MPEG-2 has it.
PlaneSampling LeftSitedAfterTurn(const KxVideoFrame::Orientation& turn);
} // namespace KxPlaneGeometry
