#include <KxSubject/Choice/KxSeries.h>

#include <gmock/gmock.h>

#include <cmath>

using testing::DoubleNear;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(KxSeries, MeansAreCutOffAtTheEnds)
{
    EXPECT_THAT(KxSeries::MeansAround({2.0, 4.0, 9.0, 5.0}, 1), ElementsAre(3.0, 5.0, 6.0, 7.0));
    EXPECT_THAT(KxSeries::MeansAround({2.0, 4.0}, 10), ElementsAre(3.0, 3.0));
    EXPECT_THAT(KxSeries::MeansAround({}, 3), IsEmpty());
}

TEST(KxSeries, AConstantHasNoScore)
{
    EXPECT_THAT(KxSeries::LocalScores(KxSeries::Values(50, 3.0), 5, 10), Each(0.0));
}

TEST(KxSeries, QuietAndLoudStretchesScoreAlike)
{
    KxSeries::Values values;
    for (int i = 0; i < 400; ++i) {
        values.push_back(std::sin(i * 0.7) * (i < 200 ? 1.0 : 3.0));
    }
    const KxSeries::Values scores = KxSeries::LocalScores(values, 20, 40);
    const auto largest = [&scores](std::ptrdiff_t from, std::ptrdiff_t to) {
        return *std::max_element(scores.begin() + from, scores.begin() + to);
    };
    EXPECT_NEAR(largest(40, 120), largest(280, 360), 0.4);
}

TEST(KxSeries, WhatHardlyVariesDoesNotScoreLikeTheRest)
{
    KxSeries::Values values;
    for (int i = 0; i < 400; ++i) {
        values.push_back(std::sin(i * 0.7) * (i < 200 ? 0.01 : 1.0));
    }
    const KxSeries::Values scores = KxSeries::LocalScores(values, 20, 40);
    EXPECT_LT(*std::max_element(scores.begin() + 20, scores.begin() + 120), 0.1);
}

TEST(KxSeries, ScoresAreLimited)
{
    KxSeries::Values values(200, 0.0);
    values[100] = 1000.0;
    const KxSeries::Values scores = KxSeries::LocalScores(values, 20, 40);
    EXPECT_EQ(scores[100], 3.0);
}

TEST(KxSeries, WhatFollowsAnotherSeriesIsTakenOut)
{
    KxSeries::Values other;
    KxSeries::Values own;
    KxSeries::Values both;
    for (int i = 0; i < 400; ++i) {
        other.push_back(1.0 + std::sin(i * 0.7));
        own.push_back(std::sin(i * 0.23));
        // How much of the other one is in it changes.
        both.push_back(own.back() + (i < 200 ? 0.5 : 1.5) * other.back());
    }
    const KxSeries::Values left = KxSeries::WithoutWhatFollows(both, other, 40);
    for (const std::size_t from : {20U, 260U}) {
        for (std::size_t i = from; i < from + 100; ++i) {
            EXPECT_NEAR(left[i] - own[i], left[from] - own[from], 0.25) << i;
        }
    }
}

TEST(KxSeries, WhatDoesNotFollowAnotherSeriesStays)
{
    const KxSeries::Values own{1.0, 3.0, 2.0, 5.0};
    EXPECT_THAT(KxSeries::WithoutWhatFollows(own, KxSeries::Values(4, 2.0), 10), ElementsAre(1.0, 3.0, 2.0, 5.0));
}

TEST(KxSeries, APercentileIsOneOfTheValues)
{
    EXPECT_EQ(KxSeries::Percentile({5.0, 1.0, 3.0, 2.0, 4.0}, 0.0), 1.0);
    EXPECT_EQ(KxSeries::Percentile({5.0, 1.0, 3.0, 2.0, 4.0}, 0.5), 3.0);
    EXPECT_EQ(KxSeries::Percentile({5.0, 1.0, 3.0, 2.0, 4.0}, 1.0), 5.0);
    EXPECT_EQ(KxSeries::Percentile({7.0}, 0.3), 7.0);
}
