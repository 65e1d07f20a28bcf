#include <KxSubject/Choice/KxMoverEvidence.h>

#include <algorithm>
#include <cmath>

namespace
{

constexpr double SecondsAtZero = 0.3; ///< of being seen, that give no confidence yet
constexpr double SecondsToFull = 1.5; ///< beyond, for full confidence
constexpr double FullTravel = 0.15;   ///< of the width, relative to the background, for the same
constexpr double EmptyFloor = 0.1;    ///< the sum of weights that gives half of the possible evidence

} // namespace

KxMoverEvidence::KxMoverEvidence(const KxSubjectRecord& record, const KxSubjectOptions::Movers& options)
    : m_movers(record.movers)
    , m_levels(options.levels)
    , m_index(record.samples.size())
{
    for (std::size_t i = 0; i < m_movers.size(); ++i) {
        const auto first = static_cast<std::size_t>(m_movers[i].firstSample);
        m_index.Add(static_cast<std::uint32_t>(i), first, first + m_movers[i].boxes.size() - 1);
    }
}

double KxMoverEvidence::ConfidenceIn(const KxMover& mover)
{
    const double lasted = (static_cast<double>(mover.seconds) - SecondsAtZero) / SecondsToFull;
    const double travelled = static_cast<double>(mover.travel) / FullTravel;
    return std::clamp(lasted, 0.0, 1.0) * std::clamp(travelled, 0.0, 1.0);
}

KxSignalProfile KxMoverEvidence::ProfileAt(std::size_t sample, KxAxis axis) const
{
    KxSignalProfile movers;
    double whole = EmptyFloor;
    for (const std::uint32_t i : m_index.Near(sample)) {
        const KxMover& mover = m_movers[i];
        if (!mover.Covers(sample)) {
            continue;
        }
        const KxMover::Box box = mover.At(sample);
        const double weight = ConfidenceIn(mover) * std::sqrt(box.width * box.height) / m_levels;
        const bool across = axis == KxAxis::Across;
        const double from = across ? box.x : box.y;
        movers.Add(from, from + (across ? box.width : box.height), weight);
        whole += weight;
    }
    KxSignalProfile scaled;
    scaled.Add(movers, 1.0 / whole);
    return scaled;
}
