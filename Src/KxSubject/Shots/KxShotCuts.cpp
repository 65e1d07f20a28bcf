#include <KxSubject/Shots/KxShotCuts.h>

#include <algorithm>
#include <cmath>

namespace
{

double UsualAround(const std::vector<KxPictureChange>& changes, std::size_t at, float KxPictureChange::*value,
                   const KxSubjectOptions::Shots& options)
{
    const auto reach = static_cast<std::size_t>(options.neighbours);
    const std::size_t first = at > reach ? at - reach : 1;
    const std::size_t end = std::min(changes.size(), at + reach + 1);
    std::vector<float> values;
    for (std::size_t i = first; i < end; ++i) {
        if (i != at) {
            values.push_back(changes[i].*value);
        }
    }
    if (values.empty()) {
        return 0.0;
    }
    const auto rank =
        static_cast<std::ptrdiff_t>(std::floor(options.percentile * static_cast<double>(values.size() - 1)));
    std::nth_element(values.begin(), values.begin() + rank, values.end());
    return values[static_cast<std::size_t>(rank)];
}

bool IsLargestNearby(const std::vector<KxPictureChange>& changes, std::size_t at, float KxPictureChange::*value)
{
    const bool aboveLast = at == 1 || changes[at].*value >= changes[at - 1].*value;
    const bool aboveNext = at + 1 == changes.size() || changes[at].*value >= changes[at + 1].*value;
    return aboveLast && aboveNext;
}

bool IsJump(const std::vector<KxPictureChange>& changes, std::size_t at, const KxSubjectOptions::Shots& options)
{
    const KxPictureChange& change = changes[at];
    return KxShotCuts::IsAboveFloors(change, options) && IsLargestNearby(changes, at, &KxPictureChange::grey) &&
           IsLargestNearby(changes, at, &KxPictureChange::colour) &&
           change.grey > options.greyRatio * UsualAround(changes, at, &KxPictureChange::grey, options) &&
           change.colour > options.colourRatio * UsualAround(changes, at, &KxPictureChange::colour, options);
}

/// Whether the return from or to the jump `at` is not itself a jump; an insert has two jumps.
bool EndsWithoutJump(const std::vector<std::size_t>& jumps, const KxPictureChange& change, std::size_t at)
{
    const auto between = [&jumps](std::size_t first, std::size_t last) {
        const auto next = std::lower_bound(jumps.begin(), jumps.end(), first);
        return next != jumps.end() && *next <= last;
    };
    const bool after = change.backAfter > 0 && !between(at + 1, at + change.backAfter);
    const bool before = change.backBefore > 0 && !between(at - change.backBefore, at - 1);
    return after || before;
}

} // namespace

bool KxShotCuts::IsAboveFloors(const KxPictureChange& change, const KxSubjectOptions::Shots& options)
{
    return change.grey > options.greyFloor && change.colour > options.colourFloor;
}

std::vector<std::size_t> KxShotCuts::Find(const std::vector<KxPictureChange>& changes,
                                          const KxSubjectOptions::Shots& options)
{
    std::vector<std::size_t> jumps;
    for (std::size_t i = 1; i < changes.size(); ++i) {
        if (!changes[i].flash && changes[i].similarity <= options.lightSimilarity * 255.0 &&
            IsJump(changes, i, options)) {
            jumps.push_back(i);
        }
    }
    std::vector<std::size_t> cuts;
    for (const std::size_t i : jumps) {
        if (!EndsWithoutJump(jumps, changes[i], i)) {
            cuts.push_back(i);
        }
    }
    return cuts;
}

double KxShotCuts::Strength(const KxPictureChange& change, const KxSubjectOptions::Shots& options)
{
    return change.grey / options.greyFloor + change.colour / options.colourFloor;
}
