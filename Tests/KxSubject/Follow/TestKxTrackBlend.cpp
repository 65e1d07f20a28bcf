#include <KxSubject/Follow/KxTrackBlend.h>

#include <gtest/gtest.h>

namespace
{

using Point = KxFollowTrack::Point;

Point At(std::int32_t frame, double left, float confidence)
{
    return {frame, {left, 0.2, 0.1, 0.4}, confidence};
}

const Point LeftSeed = At(0, 0.1, 1.0F);
const Point RightSeed = At(100, 0.5, 1.0F);

std::vector<Point> Blend(const std::vector<Point>& left, const std::vector<Point>& right)
{
    return KxTrackBlend::Between({LeftSeed, left}, {RightSeed, right}, {});
}

} // namespace

TEST(KxTrackBlend, WhereBothAgreeTheBoxMovesGraduallyFromOneToTheOther)
{
    const auto points = Blend({At(25, 0.20, 0.9F), At(75, 0.40, 0.6F)}, {At(75, 0.42, 0.8F), At(25, 0.24, 0.7F)});
    ASSERT_EQ(points.size(), 2U);
    EXPECT_NEAR(points[0].box.x, 0.21, 1e-9);
    EXPECT_NEAR(points[1].box.x, 0.415, 1e-9);
    EXPECT_EQ(points[0].confidence, 0.9F);
    EXPECT_EQ(points[1].confidence, 0.8F);
}

TEST(KxTrackBlend, WhereTheyDisagreeTheNearerAndMoreConfidentOneCounts)
{
    const auto points = Blend({At(25, 0.2, 0.5F), At(75, 0.2, 0.5F)}, {At(75, 0.6, 0.5F), At(25, 0.6, 0.5F)});
    ASSERT_EQ(points.size(), 2U);
    EXPECT_EQ(points[0].box.x, 0.2);
    EXPECT_EQ(points[1].box.x, 0.6);
    EXPECT_EQ(Blend({At(60, 0.2, 1.0F)}, {At(60, 0.6, 0.4F)})[0].box.x, 0.2) << "farther, but much surer";
}

TEST(KxTrackBlend, ASideThatEndsOnTheOtherSeedWasRightAllTheWay)
{
    const std::vector<Point> strayed{At(75, 0.9, 1.0F), At(25, 0.9, 1.0F), At(2, 0.9, 1.0F)};
    const auto points = Blend({At(25, 0.2, 0.5F), At(75, 0.4, 0.5F), At(98, 0.49, 0.5F)}, strayed);
    ASSERT_EQ(points.size(), 4U);
    EXPECT_EQ(points[2].frame, 75);
    EXPECT_EQ(points[2].box.x, 0.4) << "the other side is nearer and more confident, and somewhere else";
    const auto mirrored = Blend({At(25, 0.9, 1.0F), At(98, 0.9, 1.0F)}, {At(25, 0.2, 0.5F), At(2, 0.11, 0.5F)});
    EXPECT_EQ(mirrored[1].box.x, 0.2);
}

TEST(KxTrackBlend, WhereBothHaveLostItTheBoxStaysNearWhereItWasSeenLast)
{
    // It leaves the picture on the right and comes back there; the second seed is far from that.
    const auto points = Blend({At(20, 0.9, 0.8F), At(50, 0.2, 0.0F), At(80, 0.2, 0.0F)},
                              {At(80, 0.86, 0.8F), At(50, 0.2, 0.0F), At(20, 0.2, 0.0F)});
    ASSERT_EQ(points.size(), 3U);
    EXPECT_EQ(points[1].frame, 50);
    EXPECT_NEAR(points[1].box.x, 0.88, 1e-9);
}

TEST(KxTrackBlend, WhereBothNeverSeeItTheBoxIsOnTheLineBetweenTheSeeds)
{
    const auto points = Blend({At(50, 0.9, 0.1F)}, {At(50, 0.0, 0.2F)});
    ASSERT_EQ(points.size(), 1U);
    EXPECT_NEAR(points[0].box.x, 0.3, 1e-9);
    EXPECT_GE(points[0].confidence, 0.3F) << "two seeds always give a place";
}

TEST(KxTrackBlend, OneSideAloneIsTakenAndTheSeedsAreLeftOut)
{
    const auto points = Blend({At(0, 0.1, 1.0F), At(10, 0.15, 0.9F)}, {At(100, 0.5, 1.0F)});
    ASSERT_EQ(points.size(), 1U);
    EXPECT_EQ(points[0].frame, 10);
    EXPECT_EQ(points[0].box.x, 0.15);
}

TEST(KxTrackBlend, ASideThatEndsOnTheOtherSeedIsNeitherDoubtedNorAmbiguous)
{
    for (const auto mark : {&Point::isDoubted, &Point::isAmbiguous}) {
        Point marked = At(75, 0.4, 0.9F);
        marked.*mark = true;
        Point arrived = At(98, 0.49, 0.9F);
        arrived.*mark = true;
        EXPECT_FALSE(Blend({marked, arrived}, {})[0].*mark);
        EXPECT_TRUE(Blend({marked}, {})[0].*mark);
        Point arrivedBackward = At(2, 0.11, 0.9F);
        arrivedBackward.*mark = true;
        EXPECT_FALSE(Blend({}, {marked, arrivedBackward})[1].*mark);
    }
}
