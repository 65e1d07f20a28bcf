#include <Tests/KrAutoReframe/Engine/HelperTest.h>

using testing::ElementsAre;
using testing::IsEmpty;
namespace Peer = KrAutoReframeHelperPeer;

TEST_F(TestKrAutoReframeHelper, AnEditTakesOverASecondOnBothSides)
{
    OpenAndApply(100);
    EXPECT_TRUE(helper->AddKeyFrame(50, Rect(0.9)));
    EXPECT_EQ(Segments(), QStringLiteral("25..75: 50"));
    EXPECT_EQ(PushedFrames(), QStringLiteral("0..25 50 75..99"));
    EXPECT_DOUBLE_EQ(PushedX(25), 0.025);
    EXPECT_DOUBLE_EQ(PushedX(50), 0.9);
    EXPECT_DOUBLE_EQ(PushedX(75), 0.075);
    EXPECT_EQ(WorkKeyFrames().PushCount(), 2);
}

TEST_F(TestKrAutoReframeHelper, AnEditNearTheStartIsCutAtFrameZero)
{
    OpenAndApply(100);
    helper->AddKeyFrame(10, Rect(0.9));
    EXPECT_EQ(Segments(), QStringLiteral("0..35: 10"));
    EXPECT_EQ(PushedFrames(), QStringLiteral("0 10 35..99"));
}

TEST_F(TestKrAutoReframeHelper, AnEditNearTheEndIsCutAtTheLastFrame)
{
    OpenAndApply(100);
    helper->AddKeyFrame(90, Rect(0.9));
    EXPECT_EQ(Segments(), QStringLiteral("65..99: 90"));
    EXPECT_EQ(PushedFrames(), QStringLiteral("0..65 90 99"));
}

TEST_F(TestKrAutoReframeHelper, AnEditAtAnEndOfItsRangeReplacesTheKeyFrameThere)
{
    OpenAndApply(100);
    helper->AddKeyFrame(0, Rect(0.8));
    helper->AddKeyFrame(99, Rect(0.9));
    EXPECT_EQ(Segments(), QStringLiteral("0..25: 0; 74..99: 99"));
    EXPECT_EQ(PushedFrames(), QStringLiteral("0 25..74 99"));
    EXPECT_DOUBLE_EQ(PushedX(0), 0.8);
    EXPECT_DOUBLE_EQ(PushedX(99), 0.9);
}

TEST_F(TestKrAutoReframeHelper, TheSecondIsTruncatedToWholeFrames)
{
    OpenAndApply(200, KxRational{30000, 1001});
    helper->AddKeyFrame(100, Rect(0.9));
    EXPECT_EQ(Segments(), QStringLiteral("71..129: 100"));
}

TEST_F(TestKrAutoReframeHelper, TheRateIsDividedAsAFraction)
{
    OpenAndApply(200, KxRational{5, 2});
    helper->AddKeyFrame(100, Rect(0.9));
    EXPECT_EQ(Segments(), QStringLiteral("98..102: 100"));
}

TEST_F(TestKrAutoReframeHelper, WithoutARateAnEditTakesOverItsOwnFrameOnly)
{
    for (const KxRational& rate : {KxRational{25, -1}, KxRational{25, 0}, KxRational{0, 1}}) {
        OpenAndApply(100, rate);
        helper->AddKeyFrame(50, Rect(0.9));
        EXPECT_EQ(Segments(), QStringLiteral("50..50: 50"));
        EXPECT_EQ(PushedFrames(), QStringLiteral("0..99"));
        EXPECT_DOUBLE_EQ(PushedX(50), 0.9);
        EXPECT_DOUBLE_EQ(ShownX(50), 0.9);
        EXPECT_DOUBLE_EQ(ShownX(51), 0.051);
    }
}

TEST_F(TestKrAutoReframeHelper, TheDisplayIsInterpolatedBetweenTheKeyFramesOfAnEdit)
{
    OpenAndApply(100);
    helper->AddKeyFrame(10, QRectF(0.9, 0.2, 0.5, 0.5));
    EXPECT_DOUBLE_EQ(ShownX(0), 0.0);
    EXPECT_NEAR(ShownX(5), 0.45, 1e-12);
    EXPECT_DOUBLE_EQ(ShownX(10), 0.9);
    EXPECT_NEAR(ShownX(20), 0.9 + (0.035 - 0.9) * 10 / 25, 1e-12);
    EXPECT_DOUBLE_EQ(ShownX(35), 0.035);
    EXPECT_DOUBLE_EQ(ShownX(36), 0.036);
    EXPECT_NEAR(helper->GetDisplayResults().at(5).cropRect().y(), 0.1, 1e-12);
    EXPECT_NEAR(helper->GetDisplayResults().at(5).cropRect().width(), 0.375, 1e-12);
    EXPECT_DOUBLE_EQ(helper->GetResults().at(10).cropRect().x(), 0.010);
}

TEST_F(TestKrAutoReframeHelper, AKeptCopyOfTheDisplayDoesNotChange)
{
    OpenAndApply(100);
    helper->AddKeyFrame(10, Rect(0.9));
    const QList<IKxAutoReframeResult> taken = helper->GetDisplayResults();
    helper->AddKeyFrame(10, Rect(0.5));
    EXPECT_DOUBLE_EQ(taken.at(10).cropRect().x(), 0.9);
    EXPECT_DOUBLE_EQ(ShownX(10), 0.5);
}

TEST_F(TestKrAutoReframeHelper, EditsThatMeetMergeIntoOneSegment)
{
    OpenAndApply(100);
    helper->AddKeyFrame(10, Rect(0.9));
    helper->AddKeyFrame(40, Rect(0.8));
    EXPECT_EQ(Segments(), QStringLiteral("0..65: 10 40"));
    EXPECT_EQ(PushedFrames(), QStringLiteral("0 10 40 65..99"));
    EXPECT_EQ(EditFrames(), (QList<uint>{10, 40}));
    EXPECT_NEAR(ShownX(25), 0.85, 1e-12);
    EXPECT_DOUBLE_EQ(ShownX(65), 0.065);
}

TEST_F(TestKrAutoReframeHelper, AnEditThatTouchesOneFrameMerges)
{
    OpenAndApply(200);
    helper->AddKeyFrame(10, Rect(0.9));
    helper->AddKeyFrame(60, Rect(0.8));
    EXPECT_EQ(Segments(), QStringLiteral("0..85: 10 60"));
}

TEST_F(TestKrAutoReframeHelper, AnEditOneFrameFartherStaysApart)
{
    OpenAndApply(200);
    helper->AddKeyFrame(61, Rect(0.8));
    helper->AddKeyFrame(10, Rect(0.9));
    EXPECT_EQ(Segments(), QStringLiteral("0..35: 10; 36..86: 61"));
    EXPECT_EQ(PushedFrames(), QStringLiteral("0 10 35..36 61 86..199"));
}

TEST_F(TestKrAutoReframeHelper, ASecondEditOfAFrameReplacesItsRectangle)
{
    OpenAndApply(100);
    helper->AddKeyFrame(10, Rect(0.9));
    helper->AddKeyFrame(10, Rect(0.7));
    EXPECT_EQ(Segments(), QStringLiteral("0..35: 10"));
    EXPECT_EQ(EditFrames(), QList<uint>{10});
    EXPECT_DOUBLE_EQ(PushedX(10), 0.7);
}

TEST_F(TestKrAutoReframeHelper, TheSegmentAfterOneThatWasMergedIsNotLookedAtInThatPass)
{
    OpenAndApply(300);
    helper->AddKeyFrame(50, Rect(0.1));
    helper->AddKeyFrame(110, Rect(0.2));
    helper->AddKeyFrame(200, Rect(0.3));
    EXPECT_EQ(Segments(), QStringLiteral("25..75: 50; 85..135: 110; 175..225: 200"));

    EXPECT_EQ(helper->DoAddKeyFrame(80, Rect(0.4)), (KrAutoReframeHelper::FrameRange{25, 105}));
    EXPECT_EQ(Segments(), QStringLiteral("25..105: 50 80; 85..135: 110; 175..225: 200"));
}

TEST_F(TestKrAutoReframeHelper, TheSegmentAfterTheSkippedOneIsLookedAt)
{
    OpenAndApply(300);
    Peer::SetSegments(*helper, {KrEditSegment{10, 20, {20}}, KrEditSegment{35, 10, {40}}, KrEditSegment{50, 20, {60}}});
    helper->DoAddKeyFrame(38, Rect(0.4));
    EXPECT_EQ(Segments(), QStringLiteral("10..70: 20 38 60; 35..45: 40"));
}

TEST_F(TestKrAutoReframeHelper, AFrameAfterTheLastOneCountsAsTheLastOne)
{
    OpenAndApply(100);
    EXPECT_TRUE(helper->AddKeyFrame(NoFrame, Rect(0.9)));
    EXPECT_EQ(EditFrames(), QList<uint>{99});
    EXPECT_TRUE(helper->RemoveKeyFrame(100));
    EXPECT_TRUE(EditFrames().isEmpty());
}

TEST_F(TestKrAutoReframeHelper, WithoutFramesNothingCanBeEdited)
{
    EXPECT_FALSE(helper->AddKeyFrame(0, Rect(0.9)));
    EXPECT_FALSE(helper->RemoveKeyFrame(0));
    EXPECT_EQ(helper->DoAddKeyFrame(0, Rect(0.9)), (KrAutoReframeHelper::FrameRange{NoFrame, NoFrame}));
    EXPECT_EQ(helper->DoRemoveKeyFrame(0), (KrAutoReframeHelper::FrameRange{NoFrame, NoFrame}));
    EXPECT_TRUE(EditFrames().isEmpty());
}

TEST_F(TestKrAutoReframeHelper, AnEditFarBehindTheEndHasNoRange)
{
    OpenAndApply(100);
    EXPECT_EQ(helper->DoAddKeyFrame(200, Rect(0.9)), (KrAutoReframeHelper::FrameRange{NoFrame, NoFrame}));
    EXPECT_EQ(Segments(), QString());
    EXPECT_EQ(WorkKeyFrames().PushCount(), 1);
}

TEST_F(TestKrAutoReframeHelper, WithoutResultsAnEditIsKeptButNothingIsPushed)
{
    Open(100);
    EXPECT_TRUE(helper->AddKeyFrame(50, Rect(0.9)));
    EXPECT_EQ(EditFrames(), QList<uint>{50});
    EXPECT_EQ(Segments(), QStringLiteral("25..75: 50"));
    EXPECT_EQ(WorkKeyFrames().PushCount(), 0);
    EXPECT_TRUE(helper->GetDisplayResults().isEmpty());
}

TEST_F(TestKrAutoReframeHelper, RemovingTheOnlyPointRestoresAKeyFrameAFrame)
{
    OpenAndApply(100);
    helper->AddKeyFrame(50, Rect(0.9));
    EXPECT_TRUE(helper->RemoveKeyFrame(50));
    EXPECT_EQ(Segments(), QString());
    EXPECT_TRUE(EditFrames().isEmpty());
    EXPECT_EQ(PushedFrames(), QStringLiteral("0..99"));
    EXPECT_DOUBLE_EQ(PushedX(50), 0.05);
    EXPECT_DOUBLE_EQ(ShownX(50), 0.05);
    EXPECT_DOUBLE_EQ(ShownX(40), 0.04);
}

TEST_F(TestKrAutoReframeHelper, RemovingTheFirstPointMovesTheStart)
{
    OpenAndApply(100);
    helper->AddKeyFrame(10, Rect(0.9));
    helper->AddKeyFrame(40, Rect(0.8));
    EXPECT_EQ(helper->DoRemoveKeyFrame(10), (KrAutoReframeHelper::FrameRange{0, 65}));
    EXPECT_EQ(Segments(), QStringLiteral("25..65: 40"));
    EXPECT_EQ(PushedFrames(), QStringLiteral("0..25 40 65..99"));
    EXPECT_DOUBLE_EQ(PushedX(10), 0.01);
    EXPECT_DOUBLE_EQ(ShownX(24), 0.024);
}

TEST_F(TestKrAutoReframeHelper, RemovingTheLastPointMovesTheEnd)
{
    OpenAndApply(100);
    helper->AddKeyFrame(10, Rect(0.9));
    helper->AddKeyFrame(40, Rect(0.8));
    EXPECT_EQ(helper->DoRemoveKeyFrame(40), (KrAutoReframeHelper::FrameRange{0, 65}));
    EXPECT_EQ(Segments(), QStringLiteral("0..25: 10"));
    EXPECT_EQ(PushedFrames(), QStringLiteral("0 10 25..99"));
    EXPECT_DOUBLE_EQ(ShownX(25), 0.025);
    EXPECT_DOUBLE_EQ(ShownX(40), 0.04);
}

TEST_F(TestKrAutoReframeHelper, RemovingAMiddlePointKeepsTheRange)
{
    OpenAndApply(200);
    helper->AddKeyFrame(40, Rect(0.9));
    helper->AddKeyFrame(60, Rect(0.8));
    helper->AddKeyFrame(80, Rect(0.7));
    helper->RemoveKeyFrame(60);
    EXPECT_EQ(Segments(), QStringLiteral("15..105: 40 80"));
    EXPECT_EQ(PushedFrames(), QStringLiteral("0..15 40 80 105..199"));
    EXPECT_NEAR(ShownX(60), 0.8, 1e-12);
}

TEST_F(TestKrAutoReframeHelper, RemovingWhereNoPointIsFails)
{
    OpenAndApply(100);
    helper->AddKeyFrame(50, Rect(0.9));
    EXPECT_FALSE(helper->RemoveKeyFrame(51));
    EXPECT_EQ(helper->DoRemoveKeyFrame(51), (KrAutoReframeHelper::FrameRange{NoFrame, NoFrame}));
    EXPECT_EQ(EditFrames(), QList<uint>{50});
}

TEST_F(TestKrAutoReframeHelper, ThePointIsRemovedFromTheFirstSegmentThatHasIt)
{
    OpenAndApply(200);
    helper->AddKeyFrame(50, Rect(0.9));
    Peer::SetSegments(*helper, {KrEditSegment{20, 40, {30}}, KrEditSegment{25, 50, {50}}, KrEditSegment{45, 20, {50}}});
    EXPECT_EQ(helper->DoRemoveKeyFrame(50), (KrAutoReframeHelper::FrameRange{25, 75}));
    EXPECT_EQ(Segments(), QStringLiteral("20..60: 30; 45..65: 50"));
}

TEST_F(TestKrAutoReframeHelper, APointWithoutARectangleBecomesAnEmptyKeyFrameAndNoEditPoint)
{
    OpenAndApply(100);
    Peer::SetSegments(*helper, {KrEditSegment{30, 20, {40}}});
    helper->DoAddKeyFrame(50, Rect(0.9));
    EXPECT_EQ(Segments(), QStringLiteral("25..75: 40 50"));
    EXPECT_EQ(EditFrames(), QList<uint>{50});
    for (const KxCropPanZoomKeyFrameParam& keyFrame : WorkKeyFrames().KeyFrames()) {
        EXPECT_EQ(keyFrame.cropRect.isEmpty(), keyFrame.frame == 40);
    }
}

TEST_F(TestKrAutoReframeHelper, RestoringARangeWithoutSegmentsBringsTheResultsBack)
{
    OpenAndApply(100);
    helper->AddKeyFrame(50, Rect(0.9));
    Peer::SetSegments(*helper, {});
    helper->RestoreRange(25, 75);
    EXPECT_EQ(PushedFrames(), QStringLiteral("0..99"));
    EXPECT_DOUBLE_EQ(ShownX(50), 0.05);
    EXPECT_EQ(WorkKeyFrames().PushCount(), 3);
}

TEST_F(TestKrAutoReframeHelper, RestoringPushesOnceAndRebuildsTheSegmentsInside)
{
    OpenAndApply(200);
    helper->AddKeyFrame(60, Rect(0.9));
    const int pushCount = WorkKeyFrames().PushCount();
    helper->RestoreRange(20, 120);
    EXPECT_EQ(WorkKeyFrames().PushCount(), pushCount + 1);
    EXPECT_FALSE(Peer::IsFlushSuspended(*helper));
    EXPECT_EQ(PushedFrames(), QStringLiteral("0..35 60 85..199"));
    EXPECT_NEAR(ShownX(50), 0.035 + (0.9 - 0.035) * 15 / 25, 1e-12);
}

TEST_F(TestKrAutoReframeHelper, ASegmentThatIsNotWhollyInsideIsLaidOverWithResults)
{
    OpenAndApply(200);
    helper->AddKeyFrame(60, Rect(0.9));
    helper->RestoreRange(50, 120);
    EXPECT_EQ(PushedFrames(), QStringLiteral("0..35 50..199"));
}

TEST_F(TestKrAutoReframeHelper, ASecondSegmentInsideLaysResultsOverTheFirst)
{
    OpenAndApply(200);
    helper->AddKeyFrame(40, Rect(0.9));
    helper->AddKeyFrame(120, Rect(0.8));
    EXPECT_EQ(PushedFrames(), QStringLiteral("0..15 40 65..95 120 145..199"));
    helper->RestoreRange(10, 160);
    EXPECT_EQ(PushedFrames(), QStringLiteral("0..95 120 145..199"));
    EXPECT_DOUBLE_EQ(PushedX(40), 0.04);
    EXPECT_DOUBLE_EQ(ShownX(40), 0.04);
    EXPECT_EQ(EditFrames(), (QList<uint>{40, 120}));
}

TEST_F(TestKrAutoReframeHelper, TheRestIsFilledFromTheLastSegmentsEndOn)
{
    OpenAndApply(100);
    helper->AddKeyFrame(99, Rect(0.9));
    EXPECT_DOUBLE_EQ(PushedX(99), 0.9);
    helper->RestoreRange(60, 99);
    EXPECT_DOUBLE_EQ(PushedX(99), 0.099);
}

TEST_F(TestKrAutoReframeHelper, RestoringAnImpossibleRangeDoesNothing)
{
    OpenAndApply(100);
    helper->AddKeyFrame(50, Rect(0.9));
    helper->RestoreRange(NoFrame, NoFrame);
    helper->RestoreRange(60, 40);
    helper->RestoreRange(60, 100);
    EXPECT_EQ(WorkKeyFrames().PushCount(), 2);
    EXPECT_EQ(PushedFrames(), QStringLiteral("0..25 50 75..99"));
}

TEST_F(TestKrAutoReframeHelper, WithoutEditsThereAreNoNeighbours)
{
    EXPECT_EQ(helper->GetNextKeyFrame(0), NoFrame);
    EXPECT_EQ(helper->GetPrevKeyFrame(0), NoFrame);
    Open(100);
    EXPECT_EQ(helper->GetNextKeyFrame(0), NoFrame);
    EXPECT_EQ(helper->GetPrevKeyFrame(99), NoFrame);
}

TEST_F(TestKrAutoReframeHelper, NeighboursAreTheNearestEditPointsBesideAFrame)
{
    OpenAndApply(100);
    helper->AddKeyFrame(70, Rect(0.9));
    helper->AddKeyFrame(10, Rect(0.8));
    helper->AddKeyFrame(40, Rect(0.7));
    EXPECT_EQ(helper->GetNextKeyFrame(0), 10u);
    EXPECT_EQ(helper->GetNextKeyFrame(10), 40u);
    EXPECT_EQ(helper->GetNextKeyFrame(69), 70u);
    EXPECT_EQ(helper->GetNextKeyFrame(70), NoFrame);
    EXPECT_EQ(helper->GetNextKeyFrame(99), NoFrame);
    EXPECT_EQ(helper->GetPrevKeyFrame(99), 70u);
    EXPECT_EQ(helper->GetPrevKeyFrame(70), 40u);
    EXPECT_EQ(helper->GetPrevKeyFrame(11), 10u);
    EXPECT_EQ(helper->GetPrevKeyFrame(10), NoFrame);
    EXPECT_EQ(helper->GetPrevKeyFrame(0), NoFrame);
}

TEST_F(TestKrAutoReframeHelper, NeighboursOfAFrameAfterTheLastOneAreThoseOfTheLastOne)
{
    OpenAndApply(100);
    helper->AddKeyFrame(99, Rect(0.9));
    helper->AddKeyFrame(20, Rect(0.8));
    EXPECT_EQ(helper->GetPrevKeyFrame(5000), 20u);
    EXPECT_EQ(helper->GetNextKeyFrame(NoFrame), NoFrame);
}

TEST_F(TestKrAutoReframeHelper, EditedFramesAreListedAscendingAndAreMembers)
{
    OpenAndApply(100);
    helper->AddKeyFrame(70, Rect(0.9));
    helper->AddKeyFrame(10, Rect(0.8));
    EXPECT_EQ(EditFrames(), (QList<uint>{10, 70}));
    EXPECT_TRUE(helper->IsEditFrame(10));
    EXPECT_FALSE(helper->IsEditFrame(11));
    EXPECT_FALSE(helper->IsEditFrame(NoFrame));
}
