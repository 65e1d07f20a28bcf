#include <KxSubject/Choice/KxDetectedBox.h>

#include <Tests/KxSubject/LooksEachSecond.h>

#include <gtest/gtest.h>

namespace
{

constexpr double Middle = 0.5; ///< of all boxes, from top to bottom

KxDetection Box(double left, double width = 0.1, KxDetectionKind kind = KxDetectionKind::Person)
{
    return {static_cast<float>(left), 0.3F, static_cast<float>(width), 0.4F, 0.6F, kind};
}

/// Looks at frames 0, 10, 20 and so on, at ten frames a second.
KxSubjectRecord Record(const std::vector<std::vector<KxDetection>>& looks)
{
    return LooksEachSecond(10, looks);
}

/// The left edge of the box there, -1 if there is none.
double LeftAt(const KxSubjectRecord& record, std::int64_t frame, double x)
{
    const std::optional<KxSubjectBox> box = KxDetectedBoxAt(record, {}, frame, x, Middle);
    return box ? box->x : -1.0;
}

constexpr double Rounding = 1e-6;

} // namespace

TEST(KxDetectedBox, OfSeveralItIsTheOneWhoseMiddleIsNearest)
{
    const KxSubjectRecord record = Record({{Box(0.3), Box(0.36)}});
    EXPECT_NEAR(LeftAt(record, 0, 0.4), 0.36, Rounding);
    EXPECT_NEAR(LeftAt(record, 0, 0.34), 0.3, Rounding);
    EXPECT_EQ(LeftAt(record, 0, 0.5), -1.0);
    EXPECT_FALSE(KxDetectedBoxAt(record, {}, 0, 0.34, 0.75)) << "below it";
}

TEST(KxDetectedBox, BetweenTwoLooksItIsOnTheLine)
{
    const KxSubjectRecord record = Record({{Box(0.3)}, {Box(0.4, 0.2)}});
    const std::optional<KxSubjectBox> box = KxDetectedBoxAt(record, {}, 5, 0.42, Middle);
    ASSERT_TRUE(box);
    EXPECT_NEAR(box->x, 0.35, Rounding);
    EXPECT_NEAR(box->width, 0.15, Rounding);
    EXPECT_NEAR(box->height, 0.4, Rounding);
}

TEST(KxDetectedBox, BesideItsLooksAThingIsThereForHalfASecond)
{
    const KxSubjectRecord record = Record({{}, {Box(0.3)}, {}, {}});
    EXPECT_EQ(LeftAt(record, 4, 0.35), -1.0);
    EXPECT_NEAR(LeftAt(record, 5, 0.35), 0.3, Rounding);
    EXPECT_NEAR(LeftAt(record, 15, 0.35), 0.3, Rounding);
    EXPECT_EQ(LeftAt(record, 16, 0.35), -1.0);
}

TEST(KxDetectedBox, WhatWasSeenInAnotherShotIsNotThere)
{
    KxSubjectRecord record = Record({{Box(0.3)}, {Box(0.3)}, {}});
    record.boundaries = {{13, 13, 13, KxShotBoundaryKind::Cut}};
    EXPECT_NEAR(LeftAt(record, 12, 0.35), 0.3, Rounding);
    EXPECT_EQ(LeftAt(record, 13, 0.35), -1.0);
}

TEST(KxDetectedBox, WhatIsTooWideIsNotOneThing)
{
    EXPECT_EQ(LeftAt(Record({{Box(0.1, 0.7)}}), 0, 0.5), -1.0);
    EXPECT_NEAR(LeftAt(Record({{Box(0.1, 0.5)}}), 0, 0.5), 0.1, Rounding);
}

TEST(KxDetectedBox, AVehicleHasAnExtentToo)
{
    EXPECT_NEAR(LeftAt(Record({{Box(0.3, 0.1, KxDetectionKind::Vehicle)}}), 0, 0.35), 0.3, Rounding);
}
