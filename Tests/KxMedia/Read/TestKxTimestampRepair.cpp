#include <KxMedia/Read/KxTimestampRepair.h>

#include <gtest/gtest.h>

#include <vector>

namespace
{

std::vector<qint64> Repaired(const std::vector<std::optional<qint64>>& times)
{
    KxTimestampRepair repair(40);
    std::vector<qint64> repaired;
    for (const std::optional<qint64>& time : times) {
        repaired.push_back(repair.Repair(time).value_or(-1));
    }
    return repaired;
}

} // namespace

TEST(KxTimestampRepair, Case1KeepsTimesThatGrow)
{
    EXPECT_EQ(Repaired({-80, -40, 0, 41, 500}), (std::vector<qint64>{-80, -40, 0, 41, 500}));
}

TEST(KxTimestampRepair, Case2FillsInMissingTimes)
{
    EXPECT_EQ(Repaired({0, std::nullopt, std::nullopt, 120}), (std::vector<qint64>{0, 40, 80, 120}));
    EXPECT_EQ(Repaired({std::nullopt, 40, 80}), (std::vector<qint64>{-1, 40, 80}));
}

TEST(KxTimestampRepair, Case3ContinuesARestartedClock)
{
    EXPECT_EQ(Repaired({0, 40, 80, 0, 40, 80}), (std::vector<qint64>{0, 40, 80, 120, 160, 200}));
    EXPECT_EQ(Repaired({0, 40, 20, 120}), (std::vector<qint64>{0, 40, 80, 120}));
}

TEST(KxTimestampRepair, Case4ARepeatedTimeDoesNotShiftLaterPictures)
{
    EXPECT_EQ(Repaired({0, 0, 40, 80}), (std::vector<qint64>{0, 1, 40, 80}));
}

TEST(KxTimestampRepair, StartsOverAfterASeek)
{
    KxTimestampRepair repair(40);
    EXPECT_EQ(repair.Repair(1000), 1000);
    repair.Reset();
    EXPECT_EQ(repair.Repair(std::nullopt), std::nullopt);
    EXPECT_EQ(repair.Repair(200), 200);
}

TEST(KxTimestampJoin, DoesNotChangeAContinuousClock)
{
    KxTimestampJoin join(40, 1000);
    for (const qint64 time : {0, 40, 80, 60, 5000, 4500}) {
        EXPECT_EQ(join.OffsetFor(time), 0) << time;
    }
}

TEST(KxTimestampJoin, StepsOfExactlyASecondBackAndTenAheadAreNoJumps)
{
    KxTimestampJoin join(40, 1000);
    EXPECT_EQ(join.OffsetFor(5000), 0);
    EXPECT_EQ(join.OffsetFor(4000), 0);
    EXPECT_EQ(join.OffsetFor(14000), 0);
    EXPECT_EQ(join.OffsetFor(12999), 14040 - 12999);

    KxTimestampJoin ahead(40, 1000);
    EXPECT_EQ(ahead.OffsetFor(0), 0);
    EXPECT_EQ(ahead.OffsetFor(10001), 40 - 10001);
}

TEST(KxTimestampJoin, JoinsARestartedClock)
{
    KxTimestampJoin join(40, 1000);
    EXPECT_EQ(join.OffsetFor(5000), 0);
    EXPECT_EQ(join.OffsetFor(5040), 0);
    EXPECT_EQ(join.OffsetFor(0), 5080);
    EXPECT_EQ(join.OffsetFor(40), 5080);
    EXPECT_EQ(join.OffsetFor(90000), 5160 - 90000);
    EXPECT_EQ(join.OffsetFor(90040), 5160 - 90000);
}

TEST(KxTimestampJoin, AStepBackOfOneSecondIsNoJoinAndALongerOneIs)
{
    KxTimestampJoin join(40, 1000);
    EXPECT_EQ(join.OffsetFor(5000), 0);
    EXPECT_EQ(join.OffsetFor(4000), 0);
    EXPECT_EQ(join.OffsetFor(2999), 4040 - 2999);
}

TEST(KxTimestampJoin, AStepAheadOfTenSecondsIsNoJoinAndALongerOneIs)
{
    KxTimestampJoin join(40, 1000);
    EXPECT_EQ(join.OffsetFor(0), 0);
    EXPECT_EQ(join.OffsetFor(10000), 0);
    EXPECT_EQ(join.OffsetFor(20001), 10040 - 20001);
}

TEST(KxTimestampJoin, ContinuesWithTheOffsetOfTheSeeksTarget)
{
    KxTimestampJoin join(40, 1000);
    join.OffsetFor(0);
    join.Reset(700);
    EXPECT_EQ(join.OffsetFor(90000), 700);
}
