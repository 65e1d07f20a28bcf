#include <KxSubject/Choice/KxChoiceRanges.h>

#include <algorithm>
#include <cmath>

namespace
{

/// Far beyond every video, and still exact as a floating-point number.
constexpr double LastFrame = 9e15;

bool HasSeeds(const KxSubjectChoice& choice)
{
    return choice.kind == KxChoiceKind::Follow || choice.kind == KxChoiceKind::Avoid;
}

/// Takes the frames from `first` up to, but without, `end` out of the ranges.
void Clear(std::vector<KxChoiceRanges::Range>& ranges, std::int64_t first, std::int64_t end)
{
    std::vector<KxChoiceRanges::Range> left;
    for (const KxChoiceRanges::Range& range : ranges) {
        if (range.first < std::min(range.end, first)) {
            left.push_back({range.first, std::min(range.end, first), range.choice});
        }
        if (std::max(range.first, end) < range.end) {
            left.push_back({std::max(range.first, end), range.end, range.choice});
        }
    }
    ranges = std::move(left);
}

} // namespace

std::int64_t KxChoiceRanges::FrameAt(double seconds, double frameRate)
{
    const double frame = seconds * frameRate;
    return std::isnan(frame) ? 0 : std::llround(std::clamp(frame, 0.0, LastFrame));
}

KxChoiceRanges::KxChoiceRanges(const KxSubjectChoices& choices, double frameRate, std::int64_t first, std::int64_t end)
{
    for (std::size_t i = 0; i < choices.size(); ++i) {
        const KxSubjectChoice& choice = choices[i];
        const Range range{std::max(first, FrameAt(choice.fromSeconds, frameRate)),
                          std::min(end, FrameAt(choice.toSeconds, frameRate)), i};
        const bool applies =
            !HasSeeds(choice) ||
            std::any_of(choice.seeds.begin(), choice.seeds.end(), [&range, frameRate](const KxSubjectSeed& seed) {
                const std::int64_t frame = FrameAt(seed.seconds, frameRate);
                return frame >= range.first && frame < range.end;
            });
        if (range.first >= range.end || !applies) {
            continue;
        }
        if (choice.kind == KxChoiceKind::Avoid) {
            m_avoided.push_back(range);
            continue;
        }
        Clear(m_placed, range.first, range.end);
        if (choice.kind == KxChoiceKind::Automatic) {
            Clear(m_avoided, range.first, range.end);
        } else {
            m_placed.push_back(range);
        }
    }
    std::sort(m_placed.begin(), m_placed.end(), [](const Range& a, const Range& b) { return a.first < b.first; });
}
