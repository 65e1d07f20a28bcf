#include <KxSubject/Choice/KxShotConfidence.h>

#include <algorithm>
#include <cmath>

namespace
{

// Chosen on some kinds of clips and scored on the others; see "Confidence" in Docs/ANALYSIS.md.
constexpr double MarginWeight = 1.0;
constexpr double BehindWeight = 3.0;
/// Puts about a fifth of all shots below 0.55.
constexpr double Scale = 0.8;
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
    ++m_samples;
    m_whole += static_cast<double>(combined.Sum());
    m_inside += static_cast<double>(m_score.Inside(choice.drawn, combined));
    m_behind += std::abs(choice.drawn - choice.wanted) / m_halfExtent;
    KxCentreScore::Scores others = m_score.Of(combined);
    for (std::size_t position = 0; position < others.size(); ++position) {
        if (std::abs(m_score.CentreAt(position) - choice.wanted) < m_halfExtent) {
            others[position] = Excluded;
        }
    }
    m_others.Add(others);
}

float KxShotConfidence::Value(double chosenTotal) const
{
    if (m_whole <= 0.0) {
        return 0.0F;
    }
    const double margin = std::clamp((chosenTotal - m_others.BestTotal()) / m_whole, 0.0, MostMargin);
    const double value = m_inside / m_whole + MarginWeight * margin - BehindWeight * m_behind / m_samples;
    return static_cast<float>(std::clamp(Scale * value, 0.0, 1.0));
}
