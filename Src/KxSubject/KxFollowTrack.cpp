#include <KxSubject/KxFollowTrack.h>

#include <KxSubject/KxSubjectOptions.h>

namespace
{

constexpr double LostSeconds = 1.0; ///< a shorter loss or doubt is not reported

using Loss = KxFollowTrack::Loss;
using Point = KxFollowTrack::Point;

/// The ranges longer than `longest` frames in which `isPart` holds for every point.
template<typename IsPart>
std::vector<Loss> LongRanges(const std::vector<Point>& points, double longest, const IsPart& isPart)
{
    std::vector<Loss> ranges;
    bool isInside = false;
    std::int32_t before = 0;
    for (const Point& point : points) {
        // Another shot begins after a gap.
        isInside = isInside && static_cast<double>(point.frame - before) <= longest;
        before = point.frame;
        if (!isPart(point)) {
            isInside = false;
            continue;
        }
        if (!isInside) {
            ranges.push_back({point.frame, point.frame});
        }
        isInside = true;
        ranges.back().last = point.frame;
    }
    std::vector<Loss> reported;
    for (const Loss& range : ranges) {
        if (static_cast<double>(range.last - range.first) > longest) {
            reported.push_back(range);
        }
    }
    return reported;
}

} // namespace

std::vector<KxFollowTrack::Loss> KxFollowTrack::Losses(double frameRate, const KxSubjectOptions& options) const
{
    return LongRanges(points, LostSeconds * frameRate, [&options](const Point& point) {
        return static_cast<double>(point.confidence) < options.follow.goodConfidence;
    });
}

std::vector<KxFollowTrack::Loss> KxFollowTrack::Doubts(double frameRate) const
{
    return LongRanges(points, LostSeconds * frameRate, [](const Point& point) { return point.isDoubted; });
}
