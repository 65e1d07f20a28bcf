#include "KrAutoReframePlayerView.h"

#include "FakeHost.h"
#include "FakePlayer/FakePlayer.h"
#include "KrAutoReframePlayerControlBar.h"
#include "ShadowForm.h"
#include "WidgetProbe.h"

#include <KxCore/KxScreen.h>
#include <KxCore/KxUtility.h>
#include <KxPlayer/KxMediaPlayerWidget.h>
#include <KxWidgets/IKxShortcutEditManager.h>
#include <KxWidgets/KxToolButton.h>
#include <KxWidgets/KxToolSlider.h>

#include <QCloseEvent>
#include <QLabel>
#include <QShortcut>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QtTest>

#include <gtest/gtest.h>

#include <memory>

using namespace WidgetProbe;

namespace
{

constexpr int WaitMs = 60000;
constexpr int FrameCount = 100;
const QColor Plain(0x55, 0xE5, 0xC5);
const QColor Edited(0xFF, 0x8B, 0x55);

class PlayerViewTest : public testing::Test
{
protected:
    PlayerViewTest() { Open(QSize(1920, 1080)); }

    ~PlayerViewTest() override
    {
        view.reset();
        helper.reset();
        FakeHost::Reset();
        KxSingleton<KxScreen>::instance()->setDevicePixelRatio(std::nullopt);
    }

    void Open(const QSize& resolution)
    {
        FakeHost::Facts facts;
        facts.frameCount = FrameCount;
        facts.resolution = resolution;
        timeline = FakeHost::MakeTimeline({facts});
        helper = QSharedPointer<KrAutoReframeHelper>::create();
        Show(helper);
    }

    void Show(const QSharedPointer<KrAutoReframeHelper>& sharedHelper)
    {
        view = std::make_unique<KrAutoReframePlayerView>(sharedHelper, nullptr);
        overlay = view->findChild<ShadowForm*>();
        bar = view->findChild<KrAutoReframePlayerControlBar*>();
        presenter = view->findChild<KxMediaPlayerWidget*>()->getOrCreatePresenter();
        view->resize(640, 500);
        view->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(view.get()));
        Calls().clear();
    }

    void Analyse(int resultCount = FrameCount)
    {
        helper->SetTimeline(timeline);
        const QSignalSpy opened(helper.data(), &KrAutoReframeHelper::sigOpenTimelineFinished);
        QSignalSpy finished(helper.data(), &KrAutoReframeHelper::sigApplyFinished);
        ASSERT_TRUE(helper->ApplyResults(FakeHost::MakeResults(resultCount)));
        ASSERT_TRUE(finished.wait(WaitMs));
        ASSERT_TRUE(finished.at(0).at(0).toBool());
    }

    /// Analysed and with the crop over the source, as the dialog leaves it.
    void ShowCrop()
    {
        Analyse();
        ASSERT_TRUE(view->SwitchTimeline(false, true));
        Calls().clear();
    }

    FakePlayer::Script& Script() const { return FakePlayer::ScriptOf(*presenter); }
    QStringList& Calls() const { return Script().calls; }
    void ShowFrame(int frame) { FakePlayer::ShowFrame(*presenter, frame); }
    KxToolButton& Button(const char* name) const { return *view->findChild<KxToolButton*>(QLatin1String(name)); }
    KxToolButton& Undo() const { return Button("KrAutoReframe_undo"); }
    KxToolButton& Redo() const { return Button("KrAutoReframe_redo"); }
    KxToolButton& Delete() const { return Button("KrAutoReframe_delete"); }
    KxToolButton& Previous() const { return Button("KrAutoReframe_pre"); }
    KxToolButton& Next() const { return Button("KrAutoReframe_next"); }

    /// Whether the slider shows marks.
    bool HasMarks() const
    {
        QWidget* const marks = view->findChild<QWidget*>(QStringLiteral("KrUIStyle_ToolBarSlider_MarkWidget"));
        const QImage image = Paint(*marks);
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, image.height() / 2).alpha() != 0) {
                return true;
            }
        }
        return false;
    }

    /// The outline's colour at the crop's top left corner.
    QColor Outline() const
    {
        const QLabel& picture = *overlay->GetPictureLabel();
        const QPoint corner(static_cast<int>(overlay->GetCropRect().x() * picture.width()),
                            static_cast<int>(overlay->GetCropRect().y() * picture.height()));
        return Paint(*overlay).pixelColor(picture.pos() + corner);
    }

    void Edit(int frame, const QRectF& rect)
    {
        ShowFrame(frame);
        Q_EMIT overlay->sigRectFChanged(rect);
    }

    FakeHost::Timeline* timeline = nullptr;
    QSharedPointer<KrAutoReframeHelper> helper;
    std::unique_ptr<KrAutoReframePlayerView> view;
    ShadowForm* overlay = nullptr;
    KrAutoReframePlayerControlBar* bar = nullptr;
    KxMediaPlayerPresenter* presenter = nullptr;
};

QRectF ResultOf(int frame)
{
    return QRectF(frame / 1000.0, 0.0, 0.25, 1.0);
}

const QRectF Moved(0.5, 0.0, 0.25, 1.0);

} // namespace

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
    const QSize pictureBefore = overlay->GetPictureLabel()->size();
    view->UpdatePictureSize();
    EXPECT_EQ(overlay->GetPictureLabel()->size(), pictureBefore);
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

TEST_F(PlayerViewTest, LaysTheOverlayOverThePicture)
{
    ShowCrop();
    view->move(100, 50);
    KxSingleton<KxScreen>::instance()->setDevicePixelRatio(1.0);
    Script().videoRect = QRect(10, 20, 600, 300);
    view->UpdateOverlayGeometry();
    EXPECT_EQ(overlay->pos(), view->mapToGlobal(QPoint(10, 20)));
    EXPECT_EQ(overlay->size(), QSize(600, 300));
    EXPECT_EQ(overlay->minimumSize(), overlay->maximumSize());
}

TEST_F(PlayerViewTest, ScalesTheOverlaysSizeButNotItsPlace)
{
    ShowCrop();
    Script().videoRect = QRect(10, 20, 601, 301);
    KxSingleton<KxScreen>::instance()->setDevicePixelRatio(2.0);
    view->UpdateOverlayGeometry();
    EXPECT_EQ(overlay->pos(), view->mapToGlobal(QPoint(10, 20)));
    EXPECT_EQ(overlay->size(), QSize(301, 151));
    KxSingleton<KxScreen>::instance()->setDevicePixelRatio(1.5);
    view->UpdateOverlayGeometry();
    EXPECT_EQ(overlay->size(), QSize(401, 201));
}

TEST_F(PlayerViewTest, ADevicePixelRatioOfZeroCountsAsOne)
{
    ShowCrop();
    Script().videoRect = QRect(0, 0, 600, 300);
    KxSingleton<KxScreen>::instance()->setDevicePixelRatio(0.0);
    view->UpdateOverlayGeometry();
    EXPECT_EQ(overlay->size(), QSize(600, 300));
}

TEST_F(PlayerViewTest, AHiddenOverlayKeepsItsPlace)
{
    ShowCrop();
    overlay->hide();
    const QRect before = overlay->geometry();
    Script().videoRect = QRect(1, 2, 333, 222);
    view->UpdateOverlayGeometry();
    EXPECT_EQ(overlay->geometry(), before);
}

TEST_F(PlayerViewTest, TheOverlayFollowsMovesAndSizes)
{
    ShowCrop();
    Script().videoRect = QRect(0, 0, 500, 250);
    view->resize(700, 520);
    QTRY_COMPARE(overlay->size(), QSize(500, 250));
    const QSize player = view->findChild<KxMediaPlayerWidget*>()->size();
    const QRect frame = KxUtility::getFitCentralWindowRectByRatio(QRect(QPoint(0, 0), player), QSize(1920, 1080));
    const QRect picture = KxUtility::getFitCentralWindowRectByRatio(frame, QSize(1920, 1080));
    EXPECT_EQ(overlay->GetPictureLabel()->size(), picture.size());
    view->move(view->pos() + QPoint(30, 40));
    QTRY_COMPARE(overlay->pos(), view->mapToGlobal(QPoint(0, 0)));
}

TEST_F(PlayerViewTest, FitsThePictureIntoTheWideFrameFirst)
{
    Open(QSize(1080, 1920));
    helper->SetTimeline(timeline);
    KxMediaPlayerWidget& player = *view->findChild<KxMediaPlayerWidget*>();
    view->resize(640, view->height() - player.height() + 480);
    QTRY_COMPARE(player.size(), QSize(640, 480));
    // 640 x 360 of the widget, and of that 202 x 360 for the picture.
    EXPECT_EQ(overlay->GetPictureLabel()->size(), QSize(202, 360));
}

TEST_F(PlayerViewTest, APictureIsWideWithoutASource)
{
    KxMediaPlayerWidget& player = *view->findChild<KxMediaPlayerWidget*>();
    view->resize(640, view->height() - player.height() + 480);
    QTRY_COMPARE(player.size(), QSize(640, 480));
    EXPECT_EQ(overlay->GetPictureLabel()->size(), QSize(640, 360));
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
    const QSize picture = overlay->GetPictureLabel()->size();
    const QPoint grip = overlay->GetPictureLabel()->pos() + QPoint(picture.width() / 8, picture.height() / 2);
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

TEST_F(PlayerViewTest, ANewSourceOfAnotherShapeIsFittedAnew)
{
    ShowCrop();
    FakeHost::Facts facts;
    facts.frameCount = FrameCount;
    facts.resolution = QSize(1000, 1000);
    helper->SetTimeline(FakeHost::MakeTimeline({facts}));
    const QSize picture = overlay->GetPictureLabel()->size();
    EXPECT_EQ(picture.width(), picture.height());
}

TEST_F(PlayerViewTest, ClosingHidesTheOverlay)
{
    ShowCrop();
    ASSERT_TRUE(overlay->isVisible());
    EXPECT_TRUE(view->close());
    EXPECT_FALSE(overlay->isVisible());
}
