#include <Tests/KrAutoReframe/Player/PlayerViewTest.h>

#include <Tests/KrAutoReframe/WidgetProbe.h>

#include <KxPlayer/KxMediaPlayerWidget.h>

#include <QLabel>
#include <QPointer>
#include <QVBoxLayout>
#include <QtTest>

using namespace WidgetProbe;

TEST_F(PlayerViewTest, PutsThePlayerOverTheBar)
{
    auto* const layout = qobject_cast<QVBoxLayout*>(view->layout());
    ASSERT_NE(layout, nullptr);
    EXPECT_EQ(layout->contentsMargins(), QMargins(0, 0, 0, 0));
    EXPECT_EQ(layout->spacing(), 0);
    ASSERT_EQ(layout->count(), 2);
    EXPECT_EQ(layout->itemAt(0)->widget(), view->findChild<KxMediaPlayerWidget*>());
    EXPECT_EQ(layout->itemAt(1)->widget(), bar);
    EXPECT_EQ(layout->stretch(0), 1);
    EXPECT_EQ(layout->stretch(1), 0);
    EXPECT_EQ(bar->playerPresenter(), presenter);
    EXPECT_EQ(view->property("bgColorType").toInt(), 1);
    EXPECT_FALSE(overlay->isVisible());
    EXPECT_EQ(overlay->parent(), view.get());
    EXPECT_TRUE(overlay->isWindow());
    EXPECT_TRUE(MethodsOf(KrAutoReframePlayerView::staticMetaObject, QMetaMethod::Signal).isEmpty());
    EXPECT_TRUE(MethodsOf(KrAutoReframePlayerView::staticMetaObject, QMetaMethod::Slot).isEmpty());
}

TEST_F(PlayerViewTest, PlaysAndPauses)
{
    view->Play();
    view->Pause();
    EXPECT_EQ(Calls(), (QStringList{QStringLiteral("play"), QStringLiteral("pause")}));
}

TEST_F(PlayerViewTest, WithoutAHelperItOnlyPlays)
{
    Show(QSharedPointer<KrAutoReframeHelper>());
    view->Play();
    EXPECT_FALSE(view->SwitchTimeline(false, true));
    ShowFrame(3);
    const QSize pictureBefore = Picture().size();
    view->UpdatePictureSize();
    EXPECT_EQ(Picture().size(), pictureBefore);
    Q_EMIT overlay->sigRectFChanged(Moved);
    Q_EMIT bar->sigUndo();
    Q_EMIT bar->sigRedo();
    Q_EMIT bar->sigDelete();
    Q_EMIT bar->sigPrevious();
    Q_EMIT bar->sigNext();
    EXPECT_EQ(Calls(), QStringList{QStringLiteral("play")});
    EXPECT_TRUE(Delete().isEnabled());

    KrAutoReframePlayerView alone(nullptr);
    EXPECT_FALSE(alone.SwitchTimeline(true, false));
}

TEST_F(PlayerViewTest, SharesTheHelpersLife)
{
    auto owned = std::make_shared<KrAutoReframeHelper>();
    QPointer<KrAutoReframeHelper> alive(owned.get());
    QSharedPointer<KrAutoReframeHelper> shared = ShareHelper(owned);
    EXPECT_EQ(shared.data(), owned.get());
    owned.reset();
    EXPECT_FALSE(alive.isNull());
    Show(shared);
    shared.reset();
    EXPECT_FALSE(alive.isNull());
    view.reset();
    EXPECT_TRUE(alive.isNull());
    EXPECT_TRUE(ShareHelper(nullptr).isNull());
}

TEST_F(PlayerViewTest, SwitchesNothingWithoutResults)
{
    EXPECT_FALSE(view->SwitchTimeline(false, true));
    helper->SetTimeline(timeline);
    Calls().clear();
    EXPECT_FALSE(view->SwitchTimeline(false, true));
    EXPECT_TRUE(Calls().isEmpty());
    EXPECT_FALSE(overlay->isVisible());
}

TEST_F(PlayerViewTest, ShowsTheSourceWithTheCropOverIt)
{
    Analyse();
    ShowFrame(40);
    Calls().clear();
    Script().opened.clear();
    EXPECT_TRUE(view->SwitchTimeline(false, true));
    EXPECT_EQ(Calls(), QStringList{QStringLiteral("open true false")});
    EXPECT_EQ(Script().opened, QList<IKxTimeline*>{timeline});
    EXPECT_TRUE(overlay->isVisible());
    EXPECT_EQ(overlay->GetCropRect(), ResultOf(0));
}

TEST_F(PlayerViewTest, ShowsTheReframedVideoAlone)
{
    ShowCrop();
    ShowFrame(40);
    Script().opened.clear();
    EXPECT_TRUE(view->SwitchTimeline(true, false));
    EXPECT_EQ(Calls(), (QStringList{QStringLiteral("open true false"), QStringLiteral("seek 40 0 0")}));
    EXPECT_EQ(Script().opened, QList<IKxTimeline*>{helper->GetWorkTimeline()});
    EXPECT_FALSE(overlay->isVisible());
}

TEST_F(PlayerViewTest, ShowsTheCropOfEachFrame)
{
    ShowCrop();
    ShowFrame(17);
    EXPECT_EQ(overlay->GetCropRect(), ResultOf(17));
    ShowFrame(FrameCount - 1);
    EXPECT_EQ(overlay->GetCropRect(), ResultOf(FrameCount - 1));
    ShowFrame(5);
    view->RefreshFrame(FrameCount);
    EXPECT_EQ(overlay->GetCropRect(), ResultOf(FrameCount - 1));
}

TEST_F(PlayerViewTest, AFrameBeyondTheResultsRefreshesTheMarksAlone)
{
    ShowCrop();
    Edit(17, Moved);
    bar->SlotUpdateSliderPaint({});
    ASSERT_FALSE(HasMarks());
    view->RefreshFrame(FrameCount + 1);
    EXPECT_TRUE(HasMarks());
    EXPECT_EQ(overlay->GetCropRect(), Moved);
    EXPECT_TRUE(Delete().isEnabled());
}

TEST_F(PlayerViewTest, ANegativeFrameChangesNothing)
{
    ShowCrop();
    Edit(17, Moved);
    bar->SlotUpdateSliderPaint({});
    view->RefreshFrame(-1);
    EXPECT_FALSE(HasMarks());
    EXPECT_EQ(overlay->GetCropRect(), Moved);
}

TEST_F(PlayerViewTest, WithoutResultsTheMarksAreStillRefreshed)
{
    helper->SetTimeline(timeline);
    bar->SlotUpdateSliderPaint({10});
    ASSERT_TRUE(HasMarks());
    ShowFrame(3);
    EXPECT_FALSE(HasMarks());
    EXPECT_TRUE(overlay->GetCropRect().isNull());
}

TEST_F(PlayerViewTest, AnOpenedTimelineDisablesUndoAndRedo)
{
    ShowCrop();
    Undo().setEnabled(true);
    Redo().setEnabled(true);
    Q_EMIT helper->sigOpenTimelineFinished();
    EXPECT_FALSE(Undo().isEnabled());
    EXPECT_FALSE(Redo().isEnabled());
}

TEST_F(PlayerViewTest, ANewSourceStartsOver)
{
    ShowCrop();
    Edit(50, Moved);
    ASSERT_TRUE(HasMarks());
    Calls().clear();
    Script().opened.clear();
    helper->SetTimeline(timeline);
    EXPECT_EQ(Calls(), (QStringList{QStringLiteral("stop"), QStringLiteral("open true false")}));
    EXPECT_EQ(Script().opened, QList<IKxTimeline*>{timeline});
    EXPECT_FALSE(overlay->isVisible());
    for (const KxToolButton* const button : {&Undo(), &Redo(), &Delete(), &Previous(), &Next()}) {
        EXPECT_FALSE(button->isEnabled()) << button->objectName().toStdString();
    }
    EXPECT_FALSE(HasMarks());
    EXPECT_TRUE(bar->button(KxPlayerToolBarBase::PlayPauseButton)->isEnabled());
    EXPECT_TRUE(bar->button(KxPlayerToolBarBase::StopButton)->isEnabled());
    EXPECT_TRUE(bar->button(KxPlayerToolBarBase::ForwardButton)->isEnabled());
    EXPECT_FALSE(bar->button(KxPlayerToolBarBase::BackwardButton)->isEnabled());
}
