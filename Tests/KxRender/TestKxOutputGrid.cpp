#include <KxRender/KxOutputGrid.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace
{

KxOutputGrid Grid(const KxRational& sourceRate, qint64 frames, double wanted)
{
    const std::optional<KxOutputGrid> grid = KxOutputGrid::Make(sourceRate, frames, wanted);
    EXPECT_TRUE(grid);
    return *grid;
}

constexpr KxRational Film{24000, 1001};

} // namespace

TEST(KxOutputGrid, RateZeroIsTheRateOfTheSource)
{
    const KxOutputGrid grid = Grid(Film, 100, 0.0);
    EXPECT_EQ(grid.Rate(), Film);
    EXPECT_EQ(grid.Frames(), 100);
    for (qint64 frame = 0; frame < 100; ++frame) {
        EXPECT_EQ(grid.SourceFrame(frame), frame);
    }
}

TEST(KxOutputGrid, RoundedRateOfTheSourceIsItsExactRate)
{
    for (const double wanted : {23.97, 23.976, 23.98, static_cast<double>(23.976F)}) {
        const KxOutputGrid grid = Grid(Film, 1000000, wanted);
        EXPECT_EQ(grid.Rate().numerator, 24000) << wanted;
        EXPECT_EQ(grid.Rate().denominator, 1001) << wanted;
        EXPECT_EQ(grid.Frames(), 1000000) << wanted;
        EXPECT_EQ(grid.SourceFrame(999999), 999999) << wanted;
    }
}

TEST(KxOutputGrid, NeighbouringStandardRatesAreDifferentRates)
{
    EXPECT_EQ(Grid(Film, 100, 24.0).Rate(), (KxRational{24, 1}));
    EXPECT_EQ(Grid({30, 1}, 100, 29.97).Rate(), (KxRational{30000, 1001}));
    EXPECT_EQ(Grid({30000, 1001}, 100, 30.0).Rate(), (KxRational{30, 1}));
}

TEST(KxOutputGrid, OtherRatesBecomeRatesOfVideoOrThousandths)
{
    EXPECT_EQ(Grid({25, 1}, 100, 59.94).Rate(), (KxRational{60000, 1001}));
    EXPECT_EQ(Grid({25, 1}, 100, 23.98).Rate(), (KxRational{24000, 1001}));
    EXPECT_EQ(Grid({25, 1}, 100, 12.5).Rate(), (KxRational{25, 2}));
    EXPECT_EQ(Grid({25, 1}, 100, 60.0).Rate(), (KxRational{60, 1}));
    EXPECT_EQ(Grid({25, 1}, 100, 15.123).Rate(), (KxRational{15123, 1000}));
}

TEST(KxOutputGrid, WholeRatesStayWhole)
{
    // Up to 5 frames a second, n * 1000 / 1001 lies within the rounding to two decimals of n.
    for (int rate = 1; rate <= 240; ++rate) {
        const KxOutputGrid grid = Grid({239, 7}, 100, rate);
        EXPECT_EQ(grid.Rate().numerator, rate);
        EXPECT_EQ(grid.Rate().denominator, 1);
    }
}

TEST(KxOutputGrid, HalfTheRateTakesEverySecondFrame)
{
    const KxOutputGrid grid = Grid({50, 1}, 101, 25.0);
    EXPECT_EQ(grid.Frames(), 51);
    for (qint64 frame = 0; frame < grid.Frames(); ++frame) {
        EXPECT_EQ(grid.SourceFrame(frame), 2 * frame);
    }
}

TEST(KxOutputGrid, HigherRateRepeatsFrames)
{
    const KxOutputGrid grid = Grid({24, 1}, 24, 60.0);
    EXPECT_EQ(grid.Frames(), 60);
    for (qint64 frame = 0; frame < grid.Frames(); ++frame) {
        EXPECT_EQ(grid.SourceFrame(frame), frame * 24 / 60);
    }
}

TEST(KxOutputGrid, KeepsTheDurationAndNeverPassesTheLastFrame)
{
    for (const double wanted : {10.0, 23.976, 24.0, 25.0, 29.97, 50.0, 59.94, 120.0}) {
        for (const qint64 frames : {1, 2, 7, 1000, 54321}) {
            const KxOutputGrid grid = Grid({30000, 1001}, frames, wanted);
            const double lengthS = static_cast<double>(frames) * 1001 / 30000;
            EXPECT_NEAR(static_cast<double>(grid.Frames()) / grid.Rate().ToDouble(), lengthS,
                        std::max(0.5001 / grid.Rate().ToDouble(), grid.Frames() == 1 ? 1.0 : 0.0));
            EXPECT_LT(grid.SourceFrame(grid.Frames() - 1), frames);
            EXPECT_EQ(grid.SourceFrame(0), 0);
        }
    }
}

TEST(KxOutputGrid, LargeRatiosOfLongFilesDoNotOverflow)
{
    const KxRational odd{2147483647, 71582788};
    const KxOutputGrid grid = Grid(odd, 10000000, 59.94);
    EXPECT_NEAR(static_cast<double>(grid.Frames()), 10000000 * 59.94005994 / odd.ToDouble(), 2.0);
    EXPECT_NEAR(static_cast<double>(grid.SourceFrame(grid.Frames() / 2)), 5000000.0, 2.0);
}

TEST(KxOutputGrid, RefusesRatesThatAreNotPositiveFiniteOrUpTo1000)
{
    for (const double wanted :
         {-25.0, 1e-5, 1001.0, std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
        EXPECT_FALSE(KxOutputGrid::Make({25, 1}, 100, wanted)) << wanted;
    }
    EXPECT_EQ(Grid({25, 1}, 100, 1000.0).Rate(), (KxRational{1000, 1}));
}
