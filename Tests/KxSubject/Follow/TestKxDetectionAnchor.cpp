#include <KxSubject/Follow/KxDetectionAnchor.h>

#include <Tests/KxSubject/LooksEachSecond.h>

#include <gtest/gtest.h>

namespace
{

const KxSubjectOptions Options;

/// Looks at frames 0, 25, 50 and so on.
KxSubjectRecord Record(const std::vector<std::vector<KxDetection>>& looks)
{
    return LooksEachSecond(25, looks);
}

KxDetection Person(float left, float width = 0.1F)
{
    return {left, 0.2F, width, 0.6F, 0.6F, KxDetectionKind::Person};
}

KxSubjectBox Box(double left, double width = 0.1)
{
    return {left, 0.2, width, 0.6};
}

void ExpectBox(const std::optional<KxSubjectBox>& box, double left, double width = 0.1)
{
    ASSERT_TRUE(box);
    EXPECT_NEAR(box->x, left, 1e-6);
    EXPECT_NEAR(box->width, width, 1e-6);
}

} // namespace

TEST(KxDetectionAnchor, ABoxThatDriftsReturnsToItsDetection)
{
    const KxSubjectRecord record = Record({{Person(0.3F), Person(0.6F)}, {Person(0.36F), Person(0.6F)}});
    KxDetectionAnchor anchor(record, Options);
    ExpectBox(anchor.Correct({0, Box(0.3), 1.0}), 0.3);
    ExpectBox(anchor.Correct({25, Box(0.32), 1.0}), 0.36);
    EXPECT_FALSE(anchor.Correct({26, Box(0.33), 1.0})) << "there was no look";
}

TEST(KxDetectionAnchor, TheCorrectionIsToTheDetectionWhatThePersonDrew)
{
    // The person left out what is on the left.
    const KxSubjectRecord record = Record({{Person(0.3F, 0.2F)}, {Person(0.4F, 0.2F)}});
    KxDetectionAnchor anchor(record, Options);
    ExpectBox(anchor.Correct({0, Box(0.39, 0.11), 1.0}), 0.39, 0.11);
    ExpectBox(anchor.Correct({25, Box(0.46, 0.11), 1.0}), 0.49, 0.11);
}

TEST(KxDetectionAnchor, WhoWasDrawnNearlyAsDetectedIsTheDetection)
{
    const KxSubjectRecord record = Record({{Person(0.3F, 0.2F)}, {Person(0.4F, 0.4F)}});
    KxDetectionAnchor anchor(record, Options);
    ExpectBox(anchor.Correct({0, Box(0.33, 0.2), 1.0}), 0.3, 0.2);
    ExpectBox(anchor.Correct({25, Box(0.43, 0.4), 1.0}), 0.4, 0.4);
}

TEST(KxDetectionAnchor, TheCorrectionIsToTheDetectionWhatThePersonDrewLast)
{
    const KxSubjectRecord record = Record({{Person(0.3F, 0.2F)}, {Person(0.4F, 0.2F)}, {Person(0.5F, 0.2F)}});
    KxDetectionAnchor anchor(record, Options);
    ExpectBox(anchor.Correct({0, Box(0.39, 0.11), 1.0}), 0.39, 0.11);
    anchor.DrawAgain();
    ExpectBox(anchor.Correct({25, Box(0.4, 0.11), 1.0}), 0.4, 0.11);
    ExpectBox(anchor.Correct({50, Box(0.48, 0.11), 1.0}), 0.5, 0.11);
}

TEST(KxDetectionAnchor, ABoxThatWasDrawnAgainMayBeMuchSmallerThanTheFirst)
{
    const KxSubjectRecord record = Record({{Person(0.3F, 0.2F)}, {Person(0.4F, 0.2F)}});
    KxDetectionAnchor anchor(record, Options);
    ExpectBox(anchor.Correct({0, Box(0.2, 0.4), 1.0}), 0.2, 0.4);
    anchor.DrawAgain();
    ExpectBox(anchor.Correct({25, Box(0.45, 0.1), 1.0}), 0.45, 0.1);
}

TEST(KxDetectionAnchor, ABoxThatWasDrawnAgainAndHardlyOverlapsTheThingKeepsTheShapeOfTheFirst)
{
    const KxSubjectRecord record = Record({{Person(0.3F, 0.2F)}, {Person(0.4F, 0.2F)}});
    KxDetectionAnchor anchor(record, Options);
    ExpectBox(anchor.Correct({0, Box(0.3, 0.2), 1.0}), 0.3, 0.2);
    anchor.DrawAgain();
    ExpectBox(anchor.Correct({25, Box(0.4, 0.07), 1.0}), 0.4, 0.2);
}

TEST(KxDetectionAnchor, APersonWhoWasDrawnWithTheirBicycleIsRecognised)
{
    const KxSubjectRecord record = Record({{Person(0.4F)}, {Person(0.5F)}});
    KxDetectionAnchor anchor(record, Options);
    ExpectBox(anchor.Correct({0, Box(0.34, 0.22), 1.0}), 0.34, 0.22);
    ExpectBox(anchor.Correct({25, Box(0.2, 0.22), 1.0}), 0.44, 0.22);
}

TEST(KxDetectionAnchor, AFaceIsNotTakenForItsPerson)
{
    const KxSubjectRecord record = Record({{Person(0.3F)}, {Person(0.3F)}});
    KxDetectionAnchor anchor(record, Options);
    const KxSubjectBox face{0.33, 0.22, 0.04, 0.12};
    EXPECT_FALSE(anchor.Correct({0, face, 1.0}));
    EXPECT_FALSE(anchor.Correct({25, face, 0.0})) << "lost, too";
}

TEST(KxDetectionAnchor, WhatIsLostIsTheNearestOfItsSizeThatWasNotBesideIt)
{
    const KxSubjectRecord record =
        Record({{Person(0.3F), Person(0.42F)}, {}, {Person(0.46F), Person(0.43F), Person(0.36F, 0.6F)}});
    KxDetectionAnchor anchor(record, Options);
    ExpectBox(anchor.Correct({0, Box(0.3), 1.0}), 0.3);
    EXPECT_FALSE(anchor.Correct({25, Box(0.3), 0.0}));
    EXPECT_FALSE(anchor.Correct({50, Box(0.3), 0.0})) << "both were beside it, one is too large";
    const KxSubjectRecord apart = Record({{Person(0.3F), Person(0.42F)}, {}, {Person(0.5F), Person(0.42F)}});
    KxDetectionAnchor other(apart, Options);
    ExpectBox(other.Correct({0, Box(0.3), 1.0}), 0.3);
    ExpectBox(other.Correct({50, Box(0.3), 0.0}), 0.5);
}

TEST(KxDetectionAnchor, ABoxThatStayedOnTheBackgroundGoesAfterTheThing)
{
    const KxSubjectRecord record = Record({{Person(0.3F), Person(0.7F)}, {Person(0.45F), Person(0.7F)}});
    KxDetectionAnchor anchor(record, Options);
    ExpectBox(anchor.Correct({0, Box(0.3), 1.0}), 0.3);
    ExpectBox(anchor.Correct({25, Box(0.3), 1.0}), 0.45);
}

TEST(KxDetectionAnchor, ABystanderWhoIsPassedIsNotTakenForTheThing)
{
    // The tracker stays on the bystander while the thing goes on.
    const KxSubjectRecord record = Record({{Person(0.3F), Person(0.38F)}, {Person(0.48F), Person(0.38F)}});
    KxDetectionAnchor anchor(record, Options);
    ExpectBox(anchor.Correct({0, Box(0.3), 1.0}), 0.3);
    ExpectBox(anchor.Correct({25, Box(0.38), 1.0}), 0.48);
}

TEST(KxDetectionAnchor, WhatMeetsAnotherOneOfItsKindMayBeThatOne)
{
    const auto isAmbiguous = [](const std::vector<KxDetection>& found, double trackedLeft) {
        const KxSubjectRecord record = Record({{Person(0.3F)}, found});
        KxDetectionAnchor anchor(record, Options);
        EXPECT_TRUE(anchor.Correct({0, Box(0.3), 1.0}));
        EXPECT_FALSE(anchor.IsAmbiguous()) << "the person who drew it knows";
        EXPECT_TRUE(anchor.Correct({25, Box(trackedLeft), 1.0}));
        return anchor.IsAmbiguous();
    };
    EXPECT_FALSE(isAmbiguous({Person(0.6F)}, 0.6));
    EXPECT_FALSE(isAmbiguous({Person(0.6F), Person(0.66F)}, 0.6)) << "overlaps by a quarter";
    EXPECT_TRUE(isAmbiguous({Person(0.6F), Person(0.65F)}, 0.6)) << "overlaps by a third";
    EXPECT_TRUE(isAmbiguous({Person(0.6F), Person(0.26F)}, 0.6)) << "is where it was";
    EXPECT_FALSE(isAmbiguous({Person(0.6F), Person(0.24F)}, 0.6)) << "is beside where it was";
    EXPECT_FALSE(isAmbiguous({Person(0.33F), Person(0.26F)}, 0.36)) << "is nearer to where it was";
}

TEST(KxDetectionAnchor, AfterAMissedLookAConfidentTrackerIsNotSentBack)
{
    const KxSubjectRecord record = Record({{Person(0.3F)}, {}, {Person(0.32F)}});
    for (const double confidence : {1.0, 0.0}) {
        KxDetectionAnchor anchor(record, Options);
        ExpectBox(anchor.Correct({0, Box(0.3), 1.0}), 0.3);
        EXPECT_FALSE(anchor.Correct({25, Box(0.45), confidence}));
        EXPECT_EQ(anchor.Correct({50, Box(0.6), confidence}).has_value(), confidence == 0.0) << confidence;
    }
}

TEST(KxDetectionAnchor, ADetectionOfMuchAnotherSizeIsNoCorrection)
{
    const KxSubjectRecord record = Record({{Person(0.3F, 0.3F)}, {Person(0.3F, 0.1F)}});
    KxDetectionAnchor anchor(record, Options);
    ExpectBox(anchor.Correct({0, Box(0.3, 0.3), 1.0}), 0.3, 0.3);
    EXPECT_FALSE(anchor.Correct({25, Box(0.3, 0.3), 1.0}));
}

TEST(KxDetectionAnchor, WhoRunsAwayWhileALookMissesThemIsNotLeftForABystander)
{
    const auto sized = [](float left, float side) {
        return KxDetection{left, 0.3F, 0.1F * side, 0.6F * side, 0.6F, KxDetectionKind::Person};
    };
    const KxSubjectRecord record = Record({{sized(0.6F, 1.0F)}, {}, {sized(0.4F, 0.6F), sized(0.5F, 0.6F)}});
    KxDetectionAnchor anchor(record, Options);
    ExpectBox(anchor.Correct({0, Box(0.6), 1.0}), 0.6);
    const KxSubjectBox tracked{0.39, 0.3, 0.06, 0.36};
    const std::optional<KxSubjectBox> corrected = anchor.Correct({50, tracked, 1.0});
    ASSERT_TRUE(corrected);
    EXPECT_NEAR(corrected->x, 0.4, 1e-6);
}
