#include <KxSubject/Choice/KxShotConfidence.h>

#include <algorithm>
#include <cmath>

namespace
{

constexpr std::size_t Stride = 4; ///< positions: a quarter of them shows where a signal wants the crop

} // namespace

KxShotConfidence::KxShotConfidence(const KxCentreScore& score, double halfExtent)
    : m_score(score)
    , m_halfExtent(halfExtent)
{
}

void KxShotConfidence::Add(double drawn, const KxSignalProfile& combined)
{
    float inside = 0.0F;
    float outside = 0.0F;
    for (std::size_t bin = 0; bin < KxSignalProfile::Bins; ++bin) {
        const double middle = (static_cast<double>(bin) + 0.5) / KxSignalProfile::Bins;
        float& tallest = std::abs(middle - drawn) > m_halfExtent ? outside : inside;
        tallest = std::max(tallest, combined.share[bin]);
    }
    m_inside += static_cast<double>(inside);
    m_outside += static_cast<double>(outside);
}

void KxShotConfidence::AddSignal(double drawn, const KxSignalProfile& evidence)
{
    const auto weight = static_cast<double>(evidence.Sum());
    if (weight > 0.0) {
        m_ofSignals += weight;
        m_apart += weight * std::min(1.0, std::abs(m_score.Preferred(evidence, Stride) - drawn) / m_halfExtent);
    }
}

float KxShotConfidence::Value() const
{
    if (m_inside + m_outside <= 0.0) {
        return 0.0F;
    }
    const double rival = m_outside < m_inside ? m_outside / m_inside : 1.0;
    const double disagreement = m_ofSignals > 0.0 ? m_apart / m_ofSignals : 0.0;
    return static_cast<float>(1.0 - (rival + disagreement) / 2.0);
}
