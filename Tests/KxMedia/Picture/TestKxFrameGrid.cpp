#include <KxMedia/Picture/KxFrameGrid.h>

#include <gtest/gtest.h>

#include <limits>

TEST(KxFrameGrid, RoundsTimesToTheNearestPoint)
{
    const KxFrameGrid grid({25, 1}, {1, 1000}, 0);
    EXPECT_EQ(grid.IndexOf(0), 0);
    EXPECT_EQ(grid.IndexOf(19), 0);
    EXPECT_EQ(grid.IndexOf(20), 1);
    EXPECT_EQ(grid.IndexOf(40), 1);
    EXPECT_EQ(grid.IndexOf(59), 1);
    EXPECT_EQ(grid.IndexOf(60), 2);
}

TEST(KxFrameGrid, CountsFromTheFirstPicture)
{
    const KxFrameGrid grid({25, 1}, {1, 1000}, -80);
    EXPECT_EQ(grid.IndexOf(-80), 0);
    EXPECT_EQ(grid.IndexOf(-200), 0);
    EXPECT_EQ(grid.IndexOf(0), 2);
    EXPECT_EQ(grid.TicksAt(2), 0);
}

TEST(KxFrameGrid, KeepsNtscRatesWithoutDriftForHours)
{
    const KxFrameGrid grid({30000, 1001}, {1, 1000}, 0);
    for (const qint64 index : {qint64{1}, qint64{2}, qint64{107}, qint64{324001}, qint64{1000000}}) {
        EXPECT_EQ(grid.IndexOf(grid.TicksAt(index)), index);
    }
    EXPECT_EQ(grid.TicksAt(30000), 1001000);
    EXPECT_EQ(grid.StepTicks(), 33);
}

TEST(KxFrameGrid, IsAsLongAsTheLastPictureIsShown)
{
    const KxFrameGrid grid({25, 1}, {1, 1000}, 0);
    EXPECT_EQ(grid.LengthUpTo(0, 0), 1);
    EXPECT_EQ(grid.LengthUpTo(360, 40), 10);
    EXPECT_EQ(grid.LengthUpTo(360, 0), 10);
    EXPECT_EQ(grid.LengthUpTo(360, 1), 10);
    EXPECT_EQ(grid.LengthUpTo(360, 1000), 34);
    EXPECT_EQ(grid.LengthUpTo(-500, 40), 1);
}

TEST(KxFrameGrid, TakesTheFirstPlausibleRate)
{
    EXPECT_EQ(KxFrameGrid::SaneRate({30000, 1001}, {25, 1}), (KxRational{30000, 1001}));
    EXPECT_EQ(KxFrameGrid::SaneRate({90000, 1}, {30, 1}), (KxRational{30, 1}));
    EXPECT_EQ(KxFrameGrid::SaneRate({1000, 1}, {30, 1}), (KxRational{1000, 1}));
    EXPECT_EQ(KxFrameGrid::SaneRate({0, 1}, {24, 1}), (KxRational{24, 1}));
    EXPECT_EQ(KxFrameGrid::SaneRate({0, 0}, {0, 0}), (KxRational{25, 1}));
    EXPECT_EQ(KxFrameGrid::SaneRate({-25, 1}, {2000, 1}), (KxRational{25, 1}));
}

TEST(KxFrameGrid, DamagedTimesDoNotOverflow)
{
    constexpr qint64 largest = std::numeric_limits<qint64>::max();
    constexpr qint64 smallest = std::numeric_limits<qint64>::min() + 1;
    const KxFrameGrid grid({1000, 1}, {1, 1}, smallest);
    EXPECT_GT(grid.IndexOf(largest), KxFrameGrid::LongestGrid);
    EXPECT_GT(grid.LengthUpTo(largest, largest), KxFrameGrid::LongestGrid);
    EXPECT_EQ(KxFrameGrid({1000, 1}, {1, 1}, largest).IndexOf(smallest), 0);
}
