#include <Tests/KrAutoReframe/Engine/HelperTest.h>

#include <QUndoStack>

namespace
{

/// Results of another aspect ratio: half as high as the picture, and 0.5 wide.
QList<IKxAutoReframeResult> OtherAspect(int count)
{
    QList<IKxAutoReframeResult> results;
    for (int frame = 0; frame < count; ++frame) {
        results.append(IKxAutoReframeResult(frame, QRectF(0.001 * frame, 0.25, 0.5, 0.5)));
    }
    return results;
}

class EditSurvivalTest : public TestKrAutoReframeHelper
{
protected:
    EditSurvivalTest() { helper->SetEditsSurvive(true); }

    bool ApplyOtherAspect() { return helper->ApplyResults(OtherAspect(100)) && WaitForFinished(); }
    QRectF Shown(int frame) const { return helper->GetDisplayResults().at(frame).cropRect(); }
};

} // namespace

TEST_F(EditSurvivalTest, EditsStayWithTheResultsOfAnotherSpeed)
{
    OpenAndEdit();
    ASSERT_TRUE(Apply(100, 0.2));
    EXPECT_EQ(EditFrames(), QList<uint>{10});
    EXPECT_EQ(Segments(), QStringLiteral("0..35: 10"));
    EXPECT_EQ(PushedFrames(), QStringLiteral("0 10 35..99"));
    EXPECT_DOUBLE_EQ(PushedX(0), 0.2);
    EXPECT_DOUBLE_EQ(PushedX(10), 0.5);
    EXPECT_DOUBLE_EQ(ShownX(10), 0.5);
    EXPECT_NEAR(ShownX(5), 0.35, 1e-12);
    EXPECT_NEAR(ShownX(60), 0.26, 1e-12);
}

TEST_F(EditSurvivalTest, TheHistoryLeadsBackToTheNewResults)
{
    OpenAndEdit();
    helper->AddKeyFrame(80, Rect(0.7));
    ASSERT_TRUE(Apply(100, 0.2));
    EXPECT_TRUE(helper->Undo());
    EXPECT_EQ(EditFrames(), QList<uint>{10});
    EXPECT_NEAR(ShownX(80), 0.28, 1e-12);
    EXPECT_TRUE(helper->Undo());
    EXPECT_NEAR(ShownX(10), 0.21, 1e-12);
    EXPECT_EQ(PushedFrames(), QStringLiteral("0..99"));
    EXPECT_TRUE(helper->Redo());
    EXPECT_DOUBLE_EQ(ShownX(10), 0.5);
    EXPECT_TRUE(helper->Redo());
    EXPECT_DOUBLE_EQ(ShownX(80), 0.7);
}

TEST_F(EditSurvivalTest, InAnotherAspectRatioAnEditKeepsItsCentre)
{
    OpenAndApply(100);
    helper->AddKeyFrame(50, QRectF(0.3, 0.0, 0.2, 1.0));
    ASSERT_TRUE(ApplyOtherAspect());
    EXPECT_NEAR(Shown(50).x(), 0.15, 1e-12);
    EXPECT_NEAR(Shown(50).y(), 0.25, 1e-12);
    EXPECT_NEAR(Shown(50).width(), 0.5, 1e-12);
    EXPECT_NEAR(Shown(50).height(), 0.5, 1e-12);
    EXPECT_NEAR(PushedX(50), 0.15, 1e-12);
}

TEST_F(EditSurvivalTest, AnEditNearTheEdgeStaysInsideThePicture)
{
    OpenAndApply(100);
    helper->AddKeyFrame(50, QRectF(0.8, 0.0, 0.2, 1.0));
    ASSERT_TRUE(ApplyOtherAspect());
    EXPECT_NEAR(Shown(50).x(), 0.5, 1e-12);
}

TEST_F(EditSurvivalTest, BackInItsAspectRatioAnEditIsAsItWasPlaced)
{
    OpenAndApply(100);
    const QRectF placed = Rect(0.8);
    helper->AddKeyFrame(50, placed);
    ASSERT_TRUE(ApplyOtherAspect());
    ASSERT_TRUE(Apply(100));
    EXPECT_EQ(Shown(50), placed);
    EXPECT_EQ(helper->GetEditPoints().value(50), placed);
}

TEST_F(EditSurvivalTest, ACancelledAnalysisLeavesEditsAndResults)
{
    OpenAndEdit();
    ASSERT_TRUE(helper->ApplyResults(FakeHost::MakeResults(100, 0.2)));
    helper->Cancel();
    ExpectCancelledAndUnchanged();
}

TEST_F(EditSurvivalTest, ANewSourceStartsWithoutEdits)
{
    OpenAndEdit();
    OpenAndApply(100);
    EXPECT_TRUE(EditFrames().isEmpty());
    EXPECT_FALSE(helper->GetUndoStack().canUndo());
    EXPECT_DOUBLE_EQ(ShownX(10), 0.01);
}

TEST_F(EditSurvivalTest, RestoredEditsTakeEffectWithTheFirstResults)
{
    Open(100);
    helper->RestoreEditPoints({{10, Rect(0.5)}, {80, Rect(0.7)}, {100, Rect(0.1)}});
    EXPECT_EQ(EditFrames(), (QList<uint>{10, 80}));
    ASSERT_TRUE(Apply(100));
    EXPECT_EQ(Segments(), QStringLiteral("0..35: 10; 55..99: 80"));
    EXPECT_EQ(PushedFrames(), QStringLiteral("0 10 35..55 80 99"));
    EXPECT_DOUBLE_EQ(ShownX(10), 0.5);
    EXPECT_FALSE(helper->GetUndoStack().canUndo());
    EXPECT_TRUE(helper->RemoveKeyFrame(10));
    EXPECT_DOUBLE_EQ(ShownX(10), 0.01);
}

TEST_F(TestKrAutoReframeHelper, WithoutSurvivalAnotherAnalysisDropsEditsAndHistory)
{
    OpenAndEdit();
    ASSERT_TRUE(Apply(100, 0.2));
    EXPECT_TRUE(EditFrames().isEmpty());
    EXPECT_FALSE(helper->GetUndoStack().canUndo());
    EXPECT_NEAR(ShownX(10), 0.21, 1e-12);
}

TEST_F(EditSurvivalTest, PreliminaryRectanglesAreOnlyDisplayed)
{
    OpenAndEdit();
    helper->ShowPreliminary(FakeHost::MakeResults(100, 0.6).mid(20, 40));
    EXPECT_DOUBLE_EQ(ShownX(10), 0.5);
    EXPECT_DOUBLE_EQ(ShownX(30), PushedX(10) + 20.0 / 25.0 * (PushedX(35) - PushedX(10)));
    EXPECT_DOUBLE_EQ(ShownX(36), 0.636);
    EXPECT_DOUBLE_EQ(ShownX(59), 0.659);
    EXPECT_DOUBLE_EQ(ShownX(60), 0.06);
    EXPECT_DOUBLE_EQ(helper->GetResults().at(50).cropRect().x(), 0.05);
    EXPECT_DOUBLE_EQ(PushedX(50), 0.05);
    helper->ShowResultsAgain();
    EXPECT_DOUBLE_EQ(ShownX(50), 0.05);
    ExpectUnchanged();
}

TEST_F(EditSurvivalTest, AnEditWinsOverPreliminaryRectanglesAndNewResultsReplaceThem)
{
    OpenAndApply(100);
    helper->ShowPreliminary(FakeHost::MakeResults(100, 0.6));
    helper->AddKeyFrame(50, Rect(0.2));
    EXPECT_DOUBLE_EQ(ShownX(50), 0.2);
    EXPECT_DOUBLE_EQ(ShownX(90), 0.69);
    ASSERT_TRUE(Apply(100, 0.3));
    EXPECT_DOUBLE_EQ(ShownX(50), 0.2);
    EXPECT_DOUBLE_EQ(ShownX(90), 0.39);
}

TEST_F(EditSurvivalTest, PreliminaryRectanglesThatAreNotOfTheVideoAreIgnored)
{
    helper->ShowPreliminary(FakeHost::MakeResults(10, 0.6));
    EXPECT_TRUE(helper->GetDisplayResults().isEmpty());
    OpenAndApply(100);
    helper->ShowPreliminary({IKxAutoReframeResult(-1, Rect(0.6)), IKxAutoReframeResult(100, Rect(0.6))});
    EXPECT_DOUBLE_EQ(ShownX(0), 0.0);
    EXPECT_DOUBLE_EQ(ShownX(99), 0.099);
}
