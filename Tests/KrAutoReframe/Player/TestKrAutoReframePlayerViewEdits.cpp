#include <Tests/KrAutoReframe/Player/PlayerViewTest.h>

#include <Tests/KrAutoReframe/WidgetProbe.h>

#include <KxPlayer/KxMediaPlayerWidget.h>

#include <QLabel>
#include <QtTest>

using namespace WidgetProbe;

TEST_F(PlayerViewTest, MovingTheCropMakesAnEdit)
{
    ShowCrop();
    Edit(50, Moved);
    EXPECT_EQ(helper->GetEditPointFrames(), QList<uint>{50});
    EXPECT_EQ(helper->GetDisplayResults().at(50).cropRect(), Moved);
    EXPECT_EQ(overlay->GetCropRect(), Moved);
    EXPECT_EQ(Outline(), Edited);
    EXPECT_TRUE(HasMarks());
    EXPECT_TRUE(Undo().isEnabled());
    EXPECT_FALSE(Redo().isEnabled());
    EXPECT_TRUE(Delete().isEnabled());
    EXPECT_FALSE(Previous().isEnabled());
    EXPECT_FALSE(Next().isEnabled());
    EXPECT_TRUE(Calls().isEmpty());
    ShowFrame(51);
    EXPECT_EQ(Outline(), Plain);
    EXPECT_FALSE(Delete().isEnabled());
    EXPECT_TRUE(Previous().isEnabled());
    EXPECT_FALSE(Next().isEnabled());
    ShowFrame(49);
    EXPECT_FALSE(Previous().isEnabled());
    EXPECT_TRUE(Next().isEnabled());
}

TEST_F(PlayerViewTest, ADragWithTheMouseMakesOneEdit)
{
    Script().videoRect = QRect(QPoint(0, 0), view->findChild<KxMediaPlayerWidget*>()->size());
    ShowCrop();
    Script().isPlaying = true;
    ShowFrame(0);
    const QSize picture = Picture().size();
    const QPoint grip = Picture().pos() + QPoint(picture.width() / 8, picture.height() / 2);
    Press(*overlay, grip);
    EXPECT_EQ(Calls(), QStringList{QStringLiteral("pause")});
    for (int step = 1; step <= 49; ++step) {
        MoveHeld(*overlay, grip + QPoint(step, 0));
    }
    EXPECT_TRUE(helper->GetEditPointFrames().isEmpty());
    Release(*overlay, grip + QPoint(49, 0));
    EXPECT_EQ(helper->GetEditPointFrames(), QList<uint>{0});
    EXPECT_NEAR(overlay->GetCropRect().x(), 40.0 / picture.width(), 1e-9);
    EXPECT_NEAR(helper->GetDisplayResults().at(0).cropRect().x(), 40.0 / picture.width(), 1e-9);
}

TEST_F(PlayerViewTest, PausesBeforeEachEdit)
{
    ShowCrop();
    const auto expectPause = [this] {
        EXPECT_EQ(Calls(), QStringList{QStringLiteral("pause")});
        Calls().clear();
        Script().isPlaying = true;
    };
    Script().isPlaying = true;
    Q_EMIT overlay->sigRectFChanged(Moved);
    expectPause();
    Q_EMIT bar->sigUndo();
    expectPause();
    Q_EMIT bar->sigRedo();
    expectPause();
    Q_EMIT bar->sigDelete();
    expectPause();
    Q_EMIT bar->sigPrevious();
    expectPause();
    Q_EMIT bar->sigNext();
    expectPause();
}

TEST_F(PlayerViewTest, WhilePlayingNoFrameLooksEdited)
{
    ShowCrop();
    Edit(20, Moved);
    Edit(80, Moved);
    Edit(50, Moved);
    ASSERT_EQ(Outline(), Edited);
    Script().isPlaying = true;
    ShowFrame(50);
    EXPECT_EQ(Outline(), Plain);
    EXPECT_FALSE(Delete().isEnabled());
    EXPECT_FALSE(Previous().isEnabled());
    EXPECT_FALSE(Next().isEnabled());
    Script().isPlaying = false;
    ShowFrame(50);
    EXPECT_EQ(Outline(), Edited);
    EXPECT_TRUE(Delete().isEnabled());
    EXPECT_TRUE(Previous().isEnabled());
    EXPECT_TRUE(Next().isEnabled());
}

TEST_F(PlayerViewTest, AfterPauseAndAtTheEndOfPlayingButtonsAndOutlineAreThoseOfTheFrame)
{
    ShowCrop();
    Edit(20, Moved);
    Edit(80, Moved);
    Edit(50, Moved);
    const auto expectEditedFrame = [this] {
        EXPECT_EQ(Outline(), Edited);
        EXPECT_TRUE(Delete().isEnabled());
        EXPECT_TRUE(Previous().isEnabled());
        EXPECT_TRUE(Next().isEnabled());
    };
    const auto playToFrame50 = [this] {
        presenter->play();
        ShowFrame(50);
        EXPECT_EQ(Outline(), Plain);
        EXPECT_FALSE(Delete().isEnabled());
        EXPECT_FALSE(Previous().isEnabled());
        EXPECT_FALSE(Next().isEnabled());
    };
    playToFrame50();
    presenter->pause();
    expectEditedFrame();
    playToFrame50();
    FakePlayer::ReachEnd(*presenter);
    expectEditedFrame();
}

TEST_F(PlayerViewTest, WhenPlayingStartsNoFrameLooksEdited)
{
    ShowCrop();
    Edit(50, Moved);
    presenter->play();
    EXPECT_EQ(Outline(), Plain);
    EXPECT_FALSE(Delete().isEnabled());
}

TEST_F(PlayerViewTest, AnEditShowsInTheReframedVideoAtOnce)
{
    ShowCrop();
    Edit(50, Moved);
    Edit(51, Moved);
    view->SwitchTimeline(true, false);
    ShowFrame(50);
    const QStringList reopened{QStringLiteral("open true true")};
    const std::vector<std::function<void()>> edits{[this] { Q_EMIT bar->sigUndo(); }, [this] { Q_EMIT bar->sigRedo(); },
                                                   [this] { Q_EMIT bar->sigDelete(); }};
    for (const std::function<void()>& edit : edits) {
        Calls().clear();
        Script().opened.clear();
        edit();
        EXPECT_EQ(Calls(), reopened);
        EXPECT_EQ(Script().opened, QList<IKxTimeline*>{helper->GetWorkTimeline()});
        EXPECT_EQ(presenter->currentFrame(), 50);
    }
}

TEST_F(PlayerViewTest, TheReframedVideoIsNotReopenedWithoutAnEdit)
{
    ShowCrop();
    view->SwitchTimeline(true, false);
    ShowFrame(50);
    Calls().clear();
    Q_EMIT bar->sigUndo();
    Q_EMIT bar->sigRedo();
    Q_EMIT bar->sigDelete();
    EXPECT_TRUE(Calls().isEmpty());
}

TEST_F(PlayerViewTest, AnEditDoesNotReopenTheSource)
{
    ShowCrop();
    Edit(50, Moved);
    view->SwitchTimeline(true, false);
    view->SwitchTimeline(false, false);
    Calls().clear();
    Q_EMIT bar->sigUndo();
    EXPECT_TRUE(Calls().isEmpty());

    view->SwitchTimeline(true, false);
    helper->SetTimeline(timeline);
    Analyse();
    Calls().clear();
    Q_EMIT overlay->sigRectFChanged(Moved);
    EXPECT_TRUE(Calls().isEmpty());
}

TEST_F(PlayerViewTest, UnderTheReframedVideoNoFrameCanBeEdited)
{
    ShowCrop();
    Edit(20, Moved);
    Edit(50, Moved);
    view->SwitchTimeline(true, false);
    ShowFrame(50);
    EXPECT_FALSE(Delete().isEnabled());
    EXPECT_FALSE(Previous().isEnabled());
    EXPECT_FALSE(Next().isEnabled());
    EXPECT_TRUE(HasMarks());
}

TEST_F(PlayerViewTest, UndoesRedoesAndDeletes)
{
    ShowCrop();
    Edit(50, Moved);
    Undo().click();
    EXPECT_TRUE(helper->GetEditPointFrames().isEmpty());
    EXPECT_EQ(overlay->GetCropRect(), ResultOf(50));
    EXPECT_EQ(Outline(), Plain);
    EXPECT_FALSE(HasMarks());
    EXPECT_FALSE(Undo().isEnabled());
    EXPECT_TRUE(Redo().isEnabled());
    Redo().click();
    EXPECT_EQ(overlay->GetCropRect(), Moved);
    EXPECT_EQ(Outline(), Edited);
    Delete().click();
    EXPECT_TRUE(helper->GetEditPointFrames().isEmpty());
    EXPECT_EQ(overlay->GetCropRect(), ResultOf(50));
    EXPECT_FALSE(HasMarks());
    EXPECT_FALSE(Delete().isEnabled());
    Undo().click();
    EXPECT_EQ(overlay->GetCropRect(), Moved);
}

TEST_F(PlayerViewTest, AShortcutWithNothingToUndoDoesNothing)
{
    ShowCrop();
    Q_EMIT bar->sigUndo();
    Q_EMIT bar->sigRedo();
    Q_EMIT bar->sigDelete();
    EXPECT_TRUE(Calls().isEmpty());
    EXPECT_TRUE(helper->GetEditPointFrames().isEmpty());
    EXPECT_EQ(overlay->GetCropRect(), ResultOf(0));
}

TEST_F(PlayerViewTest, SeeksToTheNeighbouringEdits)
{
    ShowCrop();
    Edit(20, Moved);
    Edit(80, Moved);
    ShowFrame(50);
    Calls().clear();
    Previous().click();
    EXPECT_EQ(Calls(), QStringList{QStringLiteral("seek 20 0 0")});
    Calls().clear();
    Next().click();
    EXPECT_EQ(Calls(), QStringList{QStringLiteral("seek 80 0 0")});
}

TEST_F(PlayerViewTest, AHeldKeyDoesNotRestartTheSeekToAnEdit)
{
    ShowCrop();
    Edit(20, Moved);
    Edit(80, Moved);
    ShowFrame(50);
    Calls().clear();
    Q_EMIT bar->sigNext();
    Q_EMIT bar->sigNext();
    const QString seek80 = QStringLiteral("seek 80 0 0");
    EXPECT_EQ(Calls(), QStringList{seek80});
    Q_EMIT bar->sigPrevious();
    Q_EMIT bar->sigNext();
    EXPECT_EQ(Calls(), (QStringList{seek80, QStringLiteral("seek 20 0 0"), seek80}));
    ShowFrame(50);
    Q_EMIT bar->sigNext();
    EXPECT_EQ(Calls().size(), 4);
    Q_EMIT presenter->sigFailed(QStringLiteral("Cannot show frame 80."));
    Q_EMIT bar->sigNext();
    EXPECT_EQ(Calls().size(), 5);
}

TEST_F(PlayerViewTest, SeeksNowhereWithoutANeighbour)
{
    ShowCrop();
    Q_EMIT bar->sigPrevious();
    Q_EMIT bar->sigNext();
    Edit(50, Moved);
    Q_EMIT bar->sigPrevious();
    Q_EMIT bar->sigNext();
    EXPECT_TRUE(Calls().isEmpty());
}
