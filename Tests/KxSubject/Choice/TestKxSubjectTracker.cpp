#include <KxSubject/Choice/KxSubjectTracker.h>

#include <gmock/gmock.h>

using testing::Each;

namespace
{

KxCentreScore::Scores Peak(std::size_t position, float height)
{
    KxCentreScore::Scores scores{};
    scores[position] = height;
    return scores;
}

} // namespace

TEST(KxSubjectTracker, WithoutSamplesTheSequenceIsEmpty)
{
    EXPECT_TRUE(KxSubjectTracker(0.1).BestRun().empty());
}

TEST(KxSubjectTracker, OneSampleTakesItsBestPosition)
{
    KxSubjectTracker tracker(0.1);
    tracker.Add(Peak(70, 1.0F));
    EXPECT_THAT(tracker.BestRun(), testing::ElementsAre(70));
}

TEST(KxSubjectTracker, AShortGainElsewhereIsNotFollowed)
{
    KxSubjectTracker tracker(0.1);
    for (int i = 0; i < 30; ++i) {
        tracker.Add(i >= 14 && i < 17 ? Peak(60, 1.0F) : Peak(20, 1.0F));
    }
    EXPECT_THAT(tracker.BestRun(), Each(20));
}

TEST(KxSubjectTracker, ALastingGainElsewhereIsFollowedAtOnce)
{
    KxSubjectTracker tracker(0.1);
    for (int i = 0; i < 40; ++i) {
        tracker.Add(i >= 20 ? Peak(60, 1.0F) : Peak(20, 1.0F));
    }
    const auto run = tracker.BestRun();
    EXPECT_EQ(run[19], 20U);
    EXPECT_EQ(run[20], 60U);
}

TEST(KxSubjectTracker, AMoreExpensiveMoveIsMadeLater)
{
    const auto follows = [](double cost) {
        KxSubjectTracker tracker(cost);
        for (int i = 0; i < 20; ++i) {
            tracker.Add(i >= 10 ? Peak(60, 1.0F) : Peak(20, 1.0F));
        }
        return tracker.BestRun().back() == 60U;
    };
    EXPECT_TRUE(follows(0.2));
    EXPECT_FALSE(follows(0.3));
}

TEST(KxSubjectTracker, AMovingSubjectIsFollowed)
{
    KxSubjectTracker tracker(0.03);
    for (std::size_t i = 0; i < 60; ++i) {
        tracker.Add(Peak(10 + i, 1.0F));
    }
    const auto run = tracker.BestRun();
    for (std::size_t i = 0; i < run.size(); ++i) {
        EXPECT_EQ(run[i], 10 + i);
    }
}
