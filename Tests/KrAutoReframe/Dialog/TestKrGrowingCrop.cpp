#include <KrAutoReframe/Extensions/KrFollowControls.h>
#include <KrAutoReframe/Extensions/KrGrowingCrop.h>
#include <Tests/KrAutoReframe/Dialog/ExtendedDialogTest.h>
#include <Tests/KrAutoReframe/WidgetProbe.h>
#include <Tests/Support/Eventually.h>

#include <QLabel>
#include <QMenu>
#include <QUndoStack>

namespace
{

constexpr int Running = 1;
constexpr int Ended = 2;
constexpr int Shown = 50;

/// A choice whose task runs until the test ends it. The frame on the screen is 50, whose crop begins at .05.
class KrGrowingCropTest : public ExtendedDialogTest
{
protected:
    KrGrowingCropTest()
        : following(FakeHost::OfferChoices())
    {
        MakeExtended();
        following.shots = {{0, 100, 0.9, KxAutoReframeDoubt::None}};
        Load(Video(clip));
        Analyse();
        presenter->pause();
        FakePlayer::ShowFrame(*presenter, Shown);
    }
    ~KrGrowingCropTest() override { dialog.reset(); }

    QPoint At(double x, double y) const
    {
        const QRect picture = overlay->GetPictureLabel()->geometry();
        return picture.topLeft() + QPoint(qRound(x * picture.width()), qRound(y * picture.height()));
    }
    /// Draws a box, and follows what is in it.
    void Follow(double x)
    {
        WidgetProbe::Press(*overlay, At(x, 0.3), Qt::RightButton);
        WidgetProbe::SendMouse(*overlay, QEvent::MouseMove, At(x + 0.1, 0.7), Qt::NoButton, Qt::RightButton);
        WidgetProbe::Release(*overlay, At(x + 0.1, 0.7), Qt::RightButton);
        auto* const menu = view->findChild<QMenu*>(QStringLiteral("KrAutoReframe_followMenu"));
        ASSERT_NE(menu, nullptr);
        menu->actions().first()->trigger();
        menu->close();
    }
    bool IsGrowing() const { return dialog->findChild<KrGrowingCrop*>()->IsGrowing(); }
    /// Follows, and waits until it takes longer than an answer at once.
    void FollowForLong(double x)
    {
        ASSERT_NO_FATAL_FAILURE(Follow(x));
        ASSERT_EVENTUALLY(IsGrowing());
    }
    /// The service has found the crops of these frames.
    void Find(int from, int to, double firstX)
    {
        following.partial = FakeHost::MakeResults(100, firstX).mid(from, to - from);
    }
    void End(int status, double firstX)
    {
        following.partial.clear();
        following.Answer(status, status == 0 ? FakeHost::MakeResults(100, firstX) : QList<IKxAutoReframeResult>());
        following.FireFromThread(Ended, 100);
    }
    double CropX() const { return overlay->GetCropRect().x(); }
    double ShownX(int frame) const { return Helper().GetDisplayResults().at(frame).cropRect().x(); }
    int Starts() const { return following.Calls().filter(QStringLiteral("StartTask")).size(); }

    FakeHost::ServiceWithChoices& following;
};

} // namespace

TEST_F(KrGrowingCropTest, TheCropIsDrawnAsFarAsItWasFollowed)
{
    ASSERT_NO_FATAL_FAILURE(FollowForLong(0.6));
    EXPECT_TRUE(progress->isHidden());
    EXPECT_DOUBLE_EQ(CropX(), 0.05);
    Find(Shown, Shown + 1, 0.6);
    ASSERT_EVENTUALLY(CropX() == 0.65);
    EXPECT_DOUBLE_EQ(ShownX(51), 0.051);
    Find(40, 70, 0.5);
    ASSERT_EVENTUALLY(CropX() == 0.55);
    FakePlayer::ShowFrame(*presenter, 45);
    EXPECT_DOUBLE_EQ(CropX(), 0.545);
    FakePlayer::ShowFrame(*presenter, 80);
    EXPECT_DOUBLE_EQ(CropX(), 0.08);
    EXPECT_DOUBLE_EQ(Helper().GetResults().at(45).cropRect().x(), 0.045);
    End(0, 0.4);
    ASSERT_EVENTUALLY(!IsGrowing());
    EXPECT_DOUBLE_EQ(CropX(), 0.48);
    EXPECT_DOUBLE_EQ(Helper().GetResults().at(45).cropRect().x(), 0.445);
}

TEST_F(KrGrowingCropTest, MeanwhileTheShareIsShownAndWhatNeedsTheWholeResultWaits)
{
    ASSERT_NO_FATAL_FAILURE(FollowForLong(0.6));
    following.FireFromThread(Running, 50);
    ASSERT_EVENTUALLY(Hint() == QStringLiteral("Following: 40 %"));
    EXPECT_EQ(HintRole(), QStringLiteral("muted"));
    EXPECT_FALSE(Export().isEnabled());
    EXPECT_FALSE(RestartButton().isEnabled());
    EXPECT_FALSE(Preview().isEnabled());
    EXPECT_TRUE(Ratios().isEnabled());
    End(0, 0.4);
    ASSERT_EVENTUALLY(Hint().isEmpty());
    EXPECT_TRUE(Export().isEnabled());
    EXPECT_TRUE(RestartButton().isEnabled());
    EXPECT_TRUE(Preview().isEnabled());
}

TEST_F(KrGrowingCropTest, UndoTakesTheChoiceBackAndTheOldCropIsThere)
{
    ASSERT_NO_FATAL_FAILURE(FollowForLong(0.6));
    Find(40, 70, 0.5);
    ASSERT_EVENTUALLY(CropX() == 0.55);
    following.ForgetCalls();
    BarButton("KrAutoReframe_undo").click();
    EXPECT_DOUBLE_EQ(CropX(), 0.05);
    EXPECT_TRUE(following.choices.isEmpty());
    EXPECT_EQ(following.Calls().value(0), QStringLiteral("StopTask(0)"));
    EXPECT_FALSE(IsGrowing());
    EXPECT_TRUE(Export().isEnabled());
    // The stopped task may have left the service without results.
    ASSERT_EVENTUALLY(Starts() == 1);
    EXPECT_DOUBLE_EQ(CropX(), 0.05);
    End(0, 0.0);
    ASSERT_EVENTUALLY(Hint().isEmpty());
    EXPECT_DOUBLE_EQ(CropX(), 0.05);
}

TEST_F(KrGrowingCropTest, TheEndOfATaskThatWasTakenBackChangesNothing)
{
    ASSERT_NO_FATAL_FAILURE(FollowForLong(0.6));
    // Its end is on its way to the user interface when the person takes the choice back.
    End(0, 0.4);
    Helper().Undo();
    EXPECT_DOUBLE_EQ(CropX(), 0.05);
    following.Answer(0, FakeHost::MakeResults(100, 0.0));
    ASSERT_EVENTUALLY(Starts() == 3);
    EXPECT_DOUBLE_EQ(Helper().GetResults().at(Shown).cropRect().x(), 0.05);
    following.FireFromThread(Ended, 100);
    ASSERT_EVENTUALLY(!IsGrowing() && Hint().isEmpty());
    EXPECT_DOUBLE_EQ(CropX(), 0.05);
}

TEST_F(KrGrowingCropTest, AnotherChoiceBeginsAnewFromTheOldCrop)
{
    ASSERT_NO_FATAL_FAILURE(FollowForLong(0.6));
    Find(40, 70, 0.5);
    ASSERT_EVENTUALLY(CropX() == 0.55);
    following.partial.clear();
    ASSERT_NO_FATAL_FAILURE(Follow(0.2));
    EXPECT_DOUBLE_EQ(CropX(), 0.05);
    ASSERT_EVENTUALLY(Starts() == 3 && IsGrowing());
    EXPECT_NEAR(following.choices.last().seeds.last().box.x(), 0.2, 0.01);
    Find(40, 70, 0.3);
    ASSERT_EVENTUALLY(CropX() == 0.35);
    End(0, 0.2);
    ASSERT_EVENTUALLY(CropX() == 0.25);
}

TEST_F(KrGrowingCropTest, AFailureBringsTheOldCropBack)
{
    ASSERT_NO_FATAL_FAILURE(FollowForLong(0.6));
    Find(40, 70, 0.5);
    ASSERT_EVENTUALLY(CropX() == 0.55);
    End(-1, 0.0);
    ASSERT_EVENTUALLY(!IsGrowing());
    EXPECT_DOUBLE_EQ(CropX(), 0.05);
    EXPECT_EQ(Hint(), QStringLiteral("Settings changed: analyze again"));
    EXPECT_EQ(HintRole(), QStringLiteral("hint"));
    EXPECT_EQ(recorders.boxes.size(), 1U);
    EXPECT_TRUE(Export().isEnabled());
}

TEST_F(KrGrowingCropTest, AnEditMeanwhileStays)
{
    ASSERT_NO_FATAL_FAILURE(FollowForLong(0.6));
    Find(0, 100, 0.5);
    ASSERT_EVENTUALLY(CropX() == 0.55);
    view->EditCrop(QRectF(0.2, 0.0, 0.25, 1.0));
    EXPECT_DOUBLE_EQ(CropX(), 0.2);
    Find(0, 100, 0.6);
    ASSERT_EVENTUALLY(ShownX(0) == 0.6);
    EXPECT_DOUBLE_EQ(CropX(), 0.2);
    EXPECT_TRUE(IsGrowing());
    End(0, 0.4);
    ASSERT_EVENTUALLY(!IsGrowing());
    EXPECT_DOUBLE_EQ(CropX(), 0.2);
    EXPECT_DOUBLE_EQ(ShownX(0), 0.4);
}

TEST_F(KrGrowingCropTest, AnotherSourceEndsIt)
{
    ASSERT_NO_FATAL_FAILURE(FollowForLong(0.6));
    Load(Video(QStringLiteral("/v/other.mp4")));
    EXPECT_FALSE(IsGrowing());
    EXPECT_FALSE(Export().isEnabled());
    EXPECT_TRUE(IsReadyToAnalyse());
    EXPECT_TRUE(Hint().isEmpty());
}

TEST_F(KrGrowingCropTest, CanBeClosedMeanwhile)
{
    ASSERT_NO_FATAL_FAILURE(FollowForLong(0.6));
    Find(40, 70, 0.5);
    ASSERT_EVENTUALLY(CropX() == 0.55);
    EXPECT_TRUE(following.collectsPartial);
    following.ForgetCalls();
    dialog.reset();
    EXPECT_TRUE(following.Calls().contains(QStringLiteral("StopTask(0)")));
    EXPECT_FALSE(following.collectsPartial);
    EXPECT_EQ(StateOf(clip).choices, QByteArray("1"));
}

TEST_F(KrGrowingCropTest, AnAnalysisOfThePersonEndsIt)
{
    ASSERT_NO_FATAL_FAILURE(FollowForLong(0.6));
    Find(40, 70, 0.5);
    ASSERT_EVENTUALLY(CropX() == 0.55);
    WhileModal([this] {
        EXPECT_FALSE(IsGrowing());
        End(0, 0.4);
    });
    dialog->slotStartAnalysis();
    EXPECT_DOUBLE_EQ(CropX(), 0.45);
    EXPECT_TRUE(Export().isEnabled());
}
