#include <KxSubject/Path/KxCropPath.h>

#include <KxSubject/Path/KxTrendFilter.h>

#include <algorithm>
#include <cmath>

namespace
{

constexpr double StepsPerSecond = 10.0; ///< nodes of the smoothed path

/// Bounds time and memory where a shot lasts for days: beyond this many, the nodes of the path are farther apart.
constexpr double MostNodes = 1e6;

/// The share of the samples at each end of the subject's range that does not count.
constexpr double StillTrim = 0.05;

/// Frames a second. At a lower rate an ease takes as many frames as at SmoothRate, since the eye sees the steps from
/// frame to frame; from SlowestRate down it takes no longer, since it would lag too far behind.
constexpr double SmoothRate = 24.0;
constexpr double SlowestRate = 10.0;

/// By what to multiply the jerk weight: the duration of an ease grows with the cube root of the weight.
double JerkFactor(double frameRate)
{
    const double slowness = SmoothRate / std::clamp(frameRate, SlowestRate, SmoothRate);
    return slowness * slowness * slowness;
}

/// A cubic B-spline with the nodes as its controls: smooth in speed and acceleration. It is summed relative
/// to one node, so that a still span comes out bit for bit still.
double SplineAt(const std::vector<double>& nodes, double position)
{
    const auto last = static_cast<std::ptrdiff_t>(nodes.size()) - 1;
    const auto node = [&nodes, last](std::ptrdiff_t i) {
        if (i < 0) {
            return 2.0 * nodes.front() - nodes[static_cast<std::size_t>(std::min(-i, last))];
        }
        if (i > last) {
            return 2.0 * nodes.back() - nodes[static_cast<std::size_t>(std::max<std::ptrdiff_t>(2 * last - i, 0))];
        }
        return nodes[static_cast<std::size_t>(i)];
    };
    const auto base = static_cast<std::ptrdiff_t>(std::floor(position));
    const double t = position - static_cast<double>(base);
    const double s = 1.0 - t;
    const double outerLeft = s * s * s / 6.0;
    const double outerRight = t * t * t / 6.0;
    const double innerLeft = (4.0 - 6.0 * t * t + 3.0 * t * t * t) / 6.0;
    const double start = node(base);
    return start + outerLeft * (node(base - 1) - start) +
           (1.0 - outerLeft - outerRight - innerLeft) * (node(base + 1) - start) +
           outerRight * (node(base + 2) - start);
}

/// The centres asked for at equal steps of time, interpolated between the points.
std::vector<double> NodesOf(const std::vector<KxPathPoint>& points, const KxFrameSpan& span, double stepsPerSecond)
{
    const double seconds = static_cast<double>(span.end - span.first) / span.frameRate;
    const auto count = static_cast<std::size_t>(std::ceil(seconds * stepsPerSecond)) + 1;
    std::vector<double> nodes;
    nodes.reserve(count);
    std::size_t next = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const double frame = static_cast<double>(span.first) + static_cast<double>(i) / stepsPerSecond * span.frameRate;
        while (next < points.size() && static_cast<double>(points[next].frame) < frame) {
            ++next;
        }
        if (next == 0 || next == points.size()) {
            nodes.push_back(next == 0 ? points.front().centre : points.back().centre);
            continue;
        }
        const KxPathPoint& before = points[next - 1];
        const KxPathPoint& after = points[next];
        const double part =
            (frame - static_cast<double>(before.frame)) / static_cast<double>(after.frame - before.frame);
        nodes.push_back(before.centre + part * (after.centre - before.centre));
    }
    return nodes;
}

} // namespace

KxCropPath::KxCropPath(const KxSubjectOptions::Path& options, const KxSubjectOptions::Reaction& reaction,
                       const KxCropGeometry& geometry)
    : m_options(options)
    , m_reaction(reaction)
    , m_geometry(geometry)
{
}

std::optional<double> KxCropPath::StillCentre(const std::vector<KxPathPoint>& points) const
{
    std::vector<double> centres;
    for (const KxPathPoint& point : points) {
        centres.push_back(point.centre);
    }
    std::sort(centres.begin(), centres.end());
    const auto trimmed = static_cast<std::size_t>(StillTrim * static_cast<double>(centres.size()));
    const double range = centres[centres.size() - 1 - trimmed] - centres[trimmed];
    if (range >= m_reaction.stillRange * NarrowExtent()) {
        return std::nullopt;
    }
    return centres[centres.size() / 2];
}

KxFrameSpan KxCropPath::DrawnSpan(const std::vector<KxPathPoint>& points, const KxFrameSpan& shot) const
{
    const auto hold = static_cast<std::int64_t>(std::ceil(m_options.longestHoldSeconds * shot.frameRate));
    return {std::max(shot.first, points.front().frame - hold), std::min(shot.end, points.back().frame + hold + 1),
            shot.frameRate};
}

std::vector<double> KxCropPath::Draw(const std::vector<KxPathPoint>& points, const KxFrameSpan& shot, double fallback,
                                     const KxCancelToken& cancel) const
{
    const auto frames = static_cast<std::size_t>(std::max<std::int64_t>(shot.end - shot.first, 0));
    if (points.empty() || frames == 0) {
        return std::vector<double>(frames, fallback);
    }
    if (const std::optional<double> centre = StillCentre(points)) {
        return std::vector<double>(frames, *centre);
    }
    const KxFrameSpan drawn = DrawnSpan(points, shot);
    const std::vector<double> smooth = DrawSmooth(points, drawn, cancel);
    std::vector<double> centres(static_cast<std::size_t>(drawn.first - shot.first), smooth.front());
    centres.reserve(frames);
    centres.insert(centres.end(), smooth.begin(), smooth.end());
    centres.resize(frames, smooth.back());
    return centres;
}

std::vector<double> KxCropPath::DrawSmooth(const std::vector<KxPathPoint>& points, const KxFrameSpan& span,
                                           const KxCancelToken& cancel) const
{
    const double seconds = static_cast<double>(span.end - span.first) / span.frameRate;
    const double stepsPerSecond = std::min(StepsPerSecond, MostNodes / seconds);
    KxTrendFilter::Settings settings;
    settings.stepSeconds = 1.0 / stepsPerSecond;
    settings.huberDelta = m_reaction.deadZone * NarrowExtent() / 2.0;
    settings.speedWeight = m_options.speedWeight * m_reaction.smoothingSeconds;
    settings.accelerationWeight = m_options.accelerationWeight * m_reaction.smoothingSeconds;
    settings.jerkWeight = m_options.jerkWeight * m_reaction.smoothingSeconds * JerkFactor(span.frameRate);
    settings.stillSpeed = m_options.stillSpeed;
    settings.lowest = m_geometry.MinimumCentre();
    settings.highest = m_geometry.MaximumCentre();
    settings.iterations = m_options.iterations;
    const std::vector<double> nodes = KxTrendFilter(settings).Smooth(NodesOf(points, span, stepsPerSecond), cancel);
    std::vector<double> centres(static_cast<std::size_t>(span.end - span.first));
    for (std::size_t i = 0; i < centres.size(); ++i) {
        centres[i] = SplineAt(nodes, static_cast<double>(i) / span.frameRate * stepsPerSecond);
    }
    return centres;
}
