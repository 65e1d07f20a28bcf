#include <KxSubject/Shots/KxShotCuts.h>

#include <algorithm>
#include <cmath>

KxShotCuts::KxShotCuts(const KxSubjectOptions::Shots& options)
    : m_options(options)
    , m_reach(static_cast<std::size_t>(options.neighbours))
{
}

void KxShotCuts::Add(const KxPictureChange& change)
{
    m_changes.push_back(change);
    for (; m_judged + std::max(Open, m_reach) < Count(); ++m_judged) {
        if (IsJump(m_judged)) {
            m_jumps.push_back({m_judged, At(m_judged)});
        }
    }
    for (; m_first + m_reach < m_judged; ++m_first) {
        m_changes.pop_front();
    }
}

KxPictureChange& KxShotCuts::Newest(std::size_t back)
{
    return m_changes[m_changes.size() - 1 - back];
}

double KxShotCuts::UsualAround(std::size_t index, Value value) const
{
    const std::size_t first = index > m_reach ? index - m_reach : 1;
    const std::size_t end = std::min(Count(), index + m_reach + 1);
    std::vector<float> values;
    for (std::size_t i = first; i < end; ++i) {
        if (i != index) {
            values.push_back(At(i).*value);
        }
    }
    if (values.empty()) {
        return 0.0;
    }
    const auto rank =
        static_cast<std::ptrdiff_t>(std::floor(m_options.percentile * static_cast<double>(values.size() - 1)));
    std::nth_element(values.begin(), values.begin() + rank, values.end());
    return values[static_cast<std::size_t>(rank)];
}

bool KxShotCuts::IsLargestNearby(std::size_t index, Value value) const
{
    const bool aboveLast = index == 1 || At(index).*value >= At(index - 1).*value;
    const bool aboveNext = index + 1 == Count() || At(index).*value >= At(index + 1).*value;
    return aboveLast && aboveNext;
}

bool KxShotCuts::IsJump(std::size_t index) const
{
    const KxPictureChange& change = At(index);
    return !change.flash && change.similarity <= m_options.lightSimilarity * 255.0 && IsAboveFloors(change) &&
           IsLargestNearby(index, &KxPictureChange::grey) && IsLargestNearby(index, &KxPictureChange::colour) &&
           change.grey > m_options.greyRatio * UsualAround(index, &KxPictureChange::grey) &&
           change.colour > m_options.colourRatio * UsualAround(index, &KxPictureChange::colour);
}

std::vector<KxPictureChange> KxShotCuts::Find() const
{
    std::vector<Jump> jumps = m_jumps;
    for (std::size_t i = m_judged; i < Count(); ++i) {
        if (IsJump(i)) {
            jumps.push_back({i, At(i)});
        }
    }
    const auto isJumpIn = [&jumps](std::size_t first, std::size_t last) {
        const auto next = std::lower_bound(jumps.begin(), jumps.end(), first,
                                           [](const Jump& jump, std::size_t index) { return jump.index < index; });
        return next != jumps.end() && next->index <= last;
    };
    std::vector<KxPictureChange> cuts;
    for (const auto& [index, change] : jumps) {
        // An insert begins and ends with a jump.
        const bool after = change.backAfter > 0 && !isJumpIn(index + 1, index + change.backAfter);
        const bool before = change.backBefore > 0 && !isJumpIn(index - change.backBefore, index - 1);
        if (!after && !before) {
            cuts.push_back(change);
        }
    }
    return cuts;
}

bool KxShotCuts::IsAboveFloors(const KxPictureChange& change) const
{
    return change.grey > m_options.greyFloor && change.colour > m_options.colourFloor;
}

double KxShotCuts::Strength(const KxPictureChange& change) const
{
    return change.grey / m_options.greyFloor + change.colour / m_options.colourFloor;
}
