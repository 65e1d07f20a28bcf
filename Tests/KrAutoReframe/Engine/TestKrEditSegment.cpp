#include <KrAutoReframe/Engine/KrEditSegment.h>
#include <KrAutoReframe/Engine/KrSegmentChange.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

namespace
{

KrEditSegment Segment(uint start, int length, std::vector<uint> points)
{
    return {start, length, std::move(points)};
}

void ExpectSegment(const KrEditSegment& segment, uint start, uint end, const std::vector<uint>& points)
{
    EXPECT_EQ(segment.start, start);
    EXPECT_EQ(segment.End(), end);
    EXPECT_THAT(segment.points, ElementsAreArray(points));
}

} // namespace

TEST(TestKrEditSegment, StartsAsFrameZeroWithoutPoints)
{
    const KrEditSegment segment;
    ExpectSegment(segment, 0, 0, {});
}

TEST(TestKrEditSegment, TheEndIsInsideTheRange)
{
    EXPECT_EQ(Segment(10, 25, {}).End(), 35u);
}

TEST(TestKrEditSegment, MergeAddsALowerSegmentThatOverlaps)
{
    KrEditSegment segment = Segment(15, 50, {40});
    EXPECT_TRUE(segment.Merge(Segment(0, 35, {10})));
    ExpectSegment(segment, 0, 65, {10, 40});
}

TEST(TestKrEditSegment, MergeAddsAHigherSegmentThatOverlaps)
{
    KrEditSegment segment = Segment(0, 35, {10});
    EXPECT_TRUE(segment.Merge(Segment(15, 50, {40})));
    ExpectSegment(segment, 0, 65, {10, 40});
}

TEST(TestKrEditSegment, MergeAddsASegmentThatStartsOnTheLastFrame)
{
    KrEditSegment segment = Segment(0, 35, {10});
    EXPECT_TRUE(segment.Merge(Segment(35, 20, {45})));
    EXPECT_EQ(segment.length, 55);
}

TEST(TestKrEditSegment, MergeLeavesOneThatStartsAFrameLater)
{
    KrEditSegment segment = Segment(0, 35, {10});
    EXPECT_FALSE(segment.Merge(Segment(36, 20, {45})));
    ExpectSegment(segment, 0, 35, {10});
}

TEST(TestKrEditSegment, MergeKeepsTheEndOfTheLowerOneWhereItReachesFarther)
{
    KrEditSegment segment = Segment(20, 5, {22});
    EXPECT_TRUE(segment.Merge(Segment(0, 100, {50})));
    ExpectSegment(segment, 0, 100, {22, 50});
}

TEST(TestKrEditSegment, MergeKeepsPointsSortedAndSingle)
{
    KrEditSegment segment = Segment(0, 50, {5, 20, 40});
    EXPECT_TRUE(segment.Merge(Segment(0, 60, {1, 20, 30, 55})));
    EXPECT_THAT(segment.points, ElementsAre(1, 5, 20, 30, 40, 55));
}

TEST(TestKrEditSegment, OnATieTheOtherOneCountsAsTheLower)
{
    KrEditSegment segment = Segment(10, 5, {12});
    EXPECT_FALSE(segment.Merge(Segment(10, -1, {})));
    KrEditSegment shrunk = Segment(10, -1, {});
    EXPECT_TRUE(shrunk.Merge(Segment(10, 5, {12})));
    EXPECT_EQ(shrunk.length, 5);
}

TEST(TestKrEditSegment, MergeMeasuresDistancesBeyondThirtyOneBits)
{
    KrEditSegment segment = Segment(0xFFFFFF00u, 10, {});
    EXPECT_FALSE(segment.Merge(Segment(0, 100, {})));
}

TEST(TestKrEditSegment, RemovingTheOnlyPointLeavesFrameZeroAlone)
{
    KrEditSegment segment = Segment(10, 50, {35});
    EXPECT_TRUE(segment.RemovePoint(35));
    ExpectSegment(segment, 0, 0, {});
}

TEST(TestKrEditSegment, RemovingTheFirstOfTwoMovesTheStartHalfWay)
{
    KrEditSegment segment = Segment(0, 65, {10, 40});
    EXPECT_TRUE(segment.RemovePoint(10));
    ExpectSegment(segment, 25, 65, {40});
}

TEST(TestKrEditSegment, RemovingTheLastOfTwoMovesTheEndHalfWay)
{
    KrEditSegment segment = Segment(0, 65, {10, 40});
    EXPECT_TRUE(segment.RemovePoint(40));
    ExpectSegment(segment, 0, 25, {10});
}

TEST(TestKrEditSegment, TheStartIsRoundedDownAndTheEndUp)
{
    KrEditSegment first = Segment(0, 65, {10, 41});
    EXPECT_TRUE(first.RemovePoint(10));
    EXPECT_EQ(first.start, 25u);
    EXPECT_EQ(first.End(), 65u);
    KrEditSegment last = Segment(0, 65, {10, 41});
    EXPECT_TRUE(last.RemovePoint(41));
    EXPECT_EQ(last.start, 0u);
    EXPECT_EQ(last.End(), 26u);
}

TEST(TestKrEditSegment, RemovingAMiddlePointLeavesTheRange)
{
    KrEditSegment segment = Segment(0, 90, {10, 40, 65});
    EXPECT_TRUE(segment.RemovePoint(40));
    ExpectSegment(segment, 0, 90, {10, 65});
}

TEST(TestKrEditSegment, HalfWaysAreFoundInSinglePrecision)
{
    // 10000001 + 10000002 = 20000003 needs 25 bits; single precision makes it 20000004, half of which is 10000002.
    KrEditSegment segment = Segment(10000000, 10, {10000001, 10000002});
    EXPECT_TRUE(segment.RemovePoint(10000001));
    EXPECT_EQ(segment.start, 10000002u);
}

TEST(TestKrEditSegment, RemovingFailsWithoutPoints)
{
    KrEditSegment segment = Segment(0, 65, {});
    EXPECT_FALSE(segment.RemovePoint(10));
    EXPECT_EQ(segment.length, 65);
}

TEST(TestKrEditSegment, RemovingFailsOutsideTheRangeEvenWhereThePointIsListed)
{
    KrEditSegment segment = Segment(20, 10, {5, 25, 40});
    EXPECT_FALSE(segment.RemovePoint(5));
    EXPECT_FALSE(segment.RemovePoint(40));
    EXPECT_THAT(segment.points, ElementsAre(5, 25, 40));
}

TEST(TestKrEditSegment, RemovingFailsForAFrameThatIsNoPoint)
{
    KrEditSegment segment = Segment(0, 65, {10, 40});
    EXPECT_FALSE(segment.RemovePoint(11));
    EXPECT_FALSE(segment.RemovePoint(50));
    EXPECT_EQ(segment.length, 65);
    EXPECT_THAT(segment.points, ElementsAre(10, 40));
}

TEST(TestKrEditSegment, PointsOnBothEndsOfTheRangeBelongToIt)
{
    KrEditSegment segment = Segment(10, 20, {10, 30});
    EXPECT_TRUE(segment.RemovePoint(30));
    EXPECT_TRUE(segment.RemovePoint(10));
    EXPECT_THAT(segment.points, IsEmpty());
}

TEST(TestKrSegmentChange, StoresAndRestoresOnlyReplacedSegments)
{
    const KrEditSegment a{0, 10, {5}};
    const KrEditSegment b{20, 10, {25}};
    const KrEditSegment c{40, 10, {45}};
    const KrEditSegment merged{15, 40, {25, 35, 45}};
    const struct {
        QList<KrEditSegment> before;
        QList<KrEditSegment> after;
        int replacedCount;
    } cases[] = {
        {{}, {}, 0},
        {{}, {a}, 0},
        {{a}, {}, 1},
        {{a, b}, {a, b}, 0},
        {{a, c}, {a, b, c}, 0},
        {{a, b, c}, {a, c}, 1},
        {{a, b, c}, {a, merged}, 2},
        {{a, a, b}, {a, b}, 1},
        {{a, b}, {a, a, b}, 0},
        {{a, b, c}, {c, b, a}, 3},
    };
    for (const auto& example : cases) {
        const KrSegmentChange change = KrSegmentChange::Between(example.before, example.after);
        EXPECT_EQ(change.replaced.size(), example.replacedCount);
        QList<KrEditSegment> segments = example.after;
        change.Revert(&segments);
        EXPECT_EQ(segments, example.before);
    }
}
