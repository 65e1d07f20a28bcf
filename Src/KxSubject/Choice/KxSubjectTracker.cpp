#include <KxSubject/Choice/KxSubjectTracker.h>

#include <algorithm>

KxSubjectTracker::KxSubjectTracker(double costPerPosition)
    : m_cost(static_cast<float>(costPerPosition))
{
}

void KxSubjectTracker::Add(const KxCentreScore::Scores& scores)
{
    Origins origins;
    for (std::size_t i = 0; i < origins.size(); ++i) {
        origins[i] = static_cast<std::uint8_t>(i);
    }
    const auto relax = [this, &origins](std::size_t to, std::size_t from) {
        if (m_reached[from] - m_cost > m_reached[to]) {
            m_reached[to] = m_reached[from] - m_cost;
            origins[to] = origins[from];
        }
    };
    for (std::size_t i = 1; i < origins.size(); ++i) {
        relax(i, i - 1);
    }
    for (std::size_t i = origins.size() - 1; i > 0; --i) {
        relax(i - 1, i);
    }
    const float largest = *std::max_element(m_reached.begin(), m_reached.end());
    for (std::size_t i = 0; i < scores.size(); ++i) {
        m_reached[i] += scores[i] - largest;
    }
    m_origins.push_back(origins);
}

std::vector<std::size_t> KxSubjectTracker::BestRun() const
{
    std::vector<std::size_t> run(m_origins.size());
    const auto best = std::max_element(m_reached.begin(), m_reached.end());
    auto position = static_cast<std::size_t>(best - m_reached.begin());
    for (std::size_t i = run.size(); i > 0; --i) {
        run[i - 1] = position;
        position = m_origins[i - 1][position];
    }
    return run;
}
