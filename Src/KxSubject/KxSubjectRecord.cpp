#include <KxSubject/KxSubjectRecord.h>

#include <algorithm>

namespace
{

constexpr double PackedOne = 255.0;

} // namespace

bool KxMover::Covers(std::size_t sample) const
{
    const auto first = static_cast<std::size_t>(firstSample);
    return sample >= first && sample - first < boxes.size();
}

KxMover::Box KxMover::At(std::size_t sample) const
{
    const PackedBox& box = boxes[sample - static_cast<std::size_t>(firstSample)];
    return {box[0] / PackedOne, box[1] / PackedOne, (box[2] - box[0]) / PackedOne, (box[3] - box[1]) / PackedOne};
}

KxSubjectRecord::Shot KxSubjectRecord::ShotAt(std::int64_t frame) const
{
    const auto next =
        std::upper_bound(boundaries.begin(), boundaries.end(), frame,
                         [](std::int64_t time, const KxShotBoundary& boundary) { return time < boundary.frame; });
    return {next == boundaries.begin() ? 0 : std::prev(next)->frame,
            next == boundaries.end() ? source.frameCount : next->frame};
}
