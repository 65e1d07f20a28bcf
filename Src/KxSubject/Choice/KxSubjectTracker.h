#pragma once

#include <KxSubject/Choice/KxCentreScore.h>

#include <vector>

/// The best sequence of positions through one shot (Viterbi): the sum of their scores less the cost of the moves. The
/// cost is linear in the distance, so the crop leaves one subject for another only if the gain lasts.
class KXSUBJECT_API KxSubjectTracker
{
public:
    /// `costPerPosition`: of a step to the neighbouring position.
    explicit KxSubjectTracker(double costPerPosition);

    void Add(const KxCentreScore::Scores& scores);
    /// The position at every sample added.
    std::vector<std::size_t> BestRun() const;

private:
    using Origins = std::array<std::uint8_t, KxCentreScore::Positions>;

    float m_cost;
    KxCentreScore::Scores m_reached{}; ///< the best sum that ends at each position, less a number common to all
    std::vector<Origins> m_origins;    ///< where the best run came from, for each sample and position
};
