#include <KxSubject/KxSubjectRecord.h>

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
