#include <KxSubject/KxFollowTrack.h>

#include <KxSubject/KxSubjectOptions.h>

std::vector<KxFollowTrack::Loss> KxFollowTrack::Losses(double frameRate, const KxSubjectOptions& options) const
{
    const double longest = options.follow.lostSeconds * frameRate;
    std::vector<Loss> losses;
    bool isLost = false;
    std::int32_t before = 0;
    for (const Point& point : points) {
        // Another shot begins after a gap.
        isLost = isLost && static_cast<double>(point.frame - before) <= longest;
        before = point.frame;
        if (static_cast<double>(point.confidence) >= options.follow.goodConfidence) {
            isLost = false;
            continue;
        }
        if (!isLost) {
            losses.push_back({point.frame, point.frame});
        }
        isLost = true;
        losses.back().last = point.frame;
    }
    std::vector<Loss> reported;
    for (const Loss& loss : losses) {
        if (static_cast<double>(loss.last - loss.first) > longest) {
            reported.push_back(loss);
        }
    }
    return reported;
}
