#include <KxSubject/Path/KxHeldRanges.h>

#include <gtest/gtest.h>

#include <cmath>

TEST(KxHeldRanges, APathWithoutRangesIsLeftAlone)
{
    std::vector<double> centres{0.1, 0.2, 0.3};
    KxHoldRanges(centres, {10, 13, 25.0}, {}, 1.0);
    EXPECT_EQ(centres, (std::vector<double>{0.1, 0.2, 0.3}));
}

TEST(KxHeldRanges, TheDifferenceIsEasedAwayWithinTheTime)
{
    std::vector<double> centres(200, 0.5);
    KxHoldRanges(centres, {1000, 1200, 25.0}, {{1080, 1120, 0.7}}, 1.0);
    EXPECT_EQ(centres[80], 0.7);
    EXPECT_EQ(centres[119], 0.7);
    EXPECT_EQ(centres[54], 0.5) << "more than a second before";
    EXPECT_EQ(centres[145], 0.5);
    EXPECT_NEAR(centres[67], 0.6, 0.02);
    for (std::size_t frame = 1; frame < centres.size(); ++frame) {
        EXPECT_LT(std::abs(centres[frame] - centres[frame - 1]), 0.2 * 1.6 / 25.0) << frame;
    }
}

TEST(KxHeldRanges, BetweenTwoRangesOnlyTheHalfTowardsEachIsEased)
{
    std::vector<double> centres(40, 0.5);
    KxHoldRanges(centres, {0, 40, 25.0}, {{0, 10, 0.3}, {30, 40, 0.7}}, 1.0);
    EXPECT_EQ(centres[9], 0.3);
    EXPECT_EQ(centres[30], 0.7);
    EXPECT_NEAR(centres[19], 0.5, 0.01);
    EXPECT_NEAR(centres[20], 0.5, 0.01);
    for (std::size_t frame = 1; frame < centres.size(); ++frame) {
        EXPECT_LT(std::abs(centres[frame] - centres[frame - 1]), 0.04) << frame;
    }
}

TEST(KxHeldRanges, NeighbouringRangesAreEachExact)
{
    std::vector<double> centres(6, 0.5);
    KxHoldRanges(centres, {0, 6, 25.0}, {{0, 3, 0.2}, {3, 6, 0.8}}, 1.0);
    EXPECT_EQ(centres, (std::vector<double>{0.2, 0.2, 0.2, 0.8, 0.8, 0.8}));
}
