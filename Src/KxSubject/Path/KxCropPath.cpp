#include <KxSubject/Path/KxCropPath.h>

#include <KxSubject/Path/KxTrendFilter.h>

#include <algorithm>
#include <cmath>

namespace
{

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

} // namespace

KxCropPath::KxCropPath(const KxSubjectOptions::Path& options, const KxSubjectOptions::Reaction& reaction,
                       const KxCropGeometry& geometry)
    : m_options(options)
    , m_reaction(reaction)
    , m_geometry(geometry)
{
}

std::optional<double> KxCropPath::StandingPlace(const std::vector<KxPathPoint>& points) const
{
    std::vector<double> centres;
    for (const KxPathPoint& point : points) {
        centres.push_back(point.centre);
    }
    std::sort(centres.begin(), centres.end());
    const auto trimmed = static_cast<std::size_t>(m_options.stillTrim * static_cast<double>(centres.size()));
    const double range = centres[centres.size() - 1 - trimmed] - centres[trimmed];
    if (range >= m_reaction.stillRange * m_geometry.Extent()) {
        return std::nullopt;
    }
    return centres[centres.size() / 2];
}

std::vector<double> KxCropPath::Nodes(const std::vector<KxPathPoint>& points, std::int64_t first, std::int64_t end,
                                      double frameRate) const
{
    const double seconds = static_cast<double>(end - first) / frameRate;
    const auto count = static_cast<std::size_t>(std::ceil(seconds * m_options.stepsPerSecond)) + 1;
    std::vector<double> nodes;
    nodes.reserve(count);
    std::size_t next = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const double frame = static_cast<double>(first) + static_cast<double>(i) / m_options.stepsPerSecond * frameRate;
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

std::vector<double> KxCropPath::Draw(const std::vector<KxPathPoint>& points, std::int64_t first, std::int64_t end,
                                     double frameRate, double fallback) const
{
    const auto frames = static_cast<std::size_t>(std::max<std::int64_t>(end - first, 0));
    if (points.empty()) {
        return std::vector<double>(frames, fallback);
    }
    if (const std::optional<double> place = StandingPlace(points)) {
        return std::vector<double>(frames, *place);
    }
    KxTrendFilter::Settings settings;
    settings.stepSeconds = 1.0 / m_options.stepsPerSecond;
    settings.foot = m_reaction.deadZone * m_geometry.Extent() / 2.0;
    settings.speedWeight = m_options.speedWeight * m_reaction.smoothingSeconds;
    settings.accelerationWeight = m_options.accelerationWeight * m_reaction.smoothingSeconds;
    settings.jerkWeight = m_options.jerkWeight * m_reaction.smoothingSeconds;
    settings.stillSpeed = m_options.stillSpeed;
    settings.topSpeed = m_reaction.topSpeed;
    settings.hasteWeight = m_options.hasteWeight * m_reaction.smoothingSeconds;
    settings.lowest = m_geometry.MinimumCentre();
    settings.highest = m_geometry.MaximumCentre();
    settings.wallWeight = m_options.wallWeight;
    settings.iterations = m_options.iterations;
    const std::vector<double> nodes = KxTrendFilter(settings).Smooth(Nodes(points, first, end, frameRate));
    std::vector<double> centres(frames);
    for (std::size_t i = 0; i < frames; ++i) {
        centres[i] = SplineAt(nodes, static_cast<double>(i) / frameRate * m_options.stepsPerSecond);
    }
    return centres;
}
