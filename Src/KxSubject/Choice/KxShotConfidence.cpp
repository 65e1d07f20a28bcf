#include <KxSubject/Choice/KxShotConfidence.h>

#include <algorithm>
#include <cmath>

namespace
{

// Put about a quarter of the shots below 0.55; see "Confidence" in Docs/ANALYSIS.md.
constexpr double Base = 0.3;
constexpr double Scale = 0.55;
constexpr std::size_t Stride = 4;  ///< positions: a quarter of them shows where a signal wants the crop
constexpr double MostMargin = 0.6; ///< where no different crop is possible, too
constexpr float Excluded = -1e6F;

} // namespace

KxShotConfidence::KxShotConfidence(const KxCentreScore& score, double halfExtent, double costPerPosition)
    : m_score(score)
    , m_halfExtent(halfExtent)
    , m_others(costPerPosition)
{
}

void KxShotConfidence::Add(const Choice& choice, const KxSignalProfile& combined)
{
    m_whole += static_cast<double>(combined.Sum());
    m_inside += static_cast<double>(m_score.Inside(choice.drawn, combined));
    KxCentreScore::Scores others = m_score.Of(combined);
    for (std::size_t position = 0; position < others.size(); ++position) {
        if (std::abs(m_score.CentreAt(position) - choice.wanted) < m_halfExtent) {
            others[position] = Excluded;
        }
    }
    m_others.Add(others);
}

void KxShotConfidence::AddSignal(double drawn, const KxSignalProfile& evidence)
{
    const auto weight = static_cast<double>(evidence.Sum());
    if (weight > 0.0) {
        m_ofSignals += weight;
        m_apart += weight * std::abs(m_score.Preferred(evidence, Stride) - drawn) / m_halfExtent;
    }
}

float KxShotConfidence::Value(double chosenTotal) const
{
    if (m_whole <= 0.0) {
        return 0.0F;
    }
    const double margin = std::clamp((chosenTotal - m_others.BestTotal()) / m_whole, 0.0, MostMargin);
    const double disagreement = m_ofSignals > 0.0 ? m_apart / m_ofSignals : 0.0;
    return static_cast<float>(std::clamp(Base + Scale * (m_inside / m_whole + margin - disagreement), 0.0, 1.0));
}
