#include <Tests/KrAutoReframe/Player/PlayerViewTest.h>
#include <Tests/Support/Eventually.h>

#include <KxCore/KxMachineFacts.h>
#include <KxCore/KxUtility.h>
#include <KxPlayer/KxMediaPlayerWidget.h>

#include <QLabel>
#include <QtTest>

TEST_F(PlayerViewTest, LaysTheOverlayOverThePicture)
{
    ShowCrop();
    view->move(100, 50);
    KxMachineFacts::Replaced().devicePixelRatio = 1.0;
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
    KxMachineFacts::Replaced().devicePixelRatio = 2.0;
    view->UpdateOverlayGeometry();
    EXPECT_EQ(overlay->pos(), view->mapToGlobal(QPoint(10, 20)));
    EXPECT_EQ(overlay->size(), QSize(301, 151));
    KxMachineFacts::Replaced().devicePixelRatio = 1.5;
    view->UpdateOverlayGeometry();
    EXPECT_EQ(overlay->size(), QSize(401, 201));
}

TEST_F(PlayerViewTest, ADevicePixelRatioOfZeroCountsAsOne)
{
    ShowCrop();
    Script().videoRect = QRect(0, 0, 600, 300);
    KxMachineFacts::Replaced().devicePixelRatio = 0.0;
    view->UpdateOverlayGeometry();
    EXPECT_EQ(overlay->size(), QSize(600, 300));
}

TEST_F(PlayerViewTest, TheOverlayIsAChildWhereWindowsCannotLieOverEachOther)
{
    KxMachineFacts::Replaced().canOverlayWindows = false;
    Open(QSize(1920, 1080));
    EXPECT_FALSE(overlay->isVisible());
    ShowCrop();
    EXPECT_FALSE(overlay->isWindow());
    EXPECT_EQ(overlay->parentWidget(), view.get());
    EXPECT_TRUE(overlay->isVisible());
    view->move(100, 50);
    KxMachineFacts::Replaced().devicePixelRatio = 2.0;
    Script().videoRect = QRect(10, 20, 601, 301);
    view->UpdateOverlayGeometry();
    EXPECT_EQ(overlay->geometry(), QRect(10, 20, 301, 151));
    EXPECT_EQ(view->childAt(20, 30), &Picture());
    view->SwitchTimeline(true, false);
    EXPECT_FALSE(overlay->isVisible());
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

TEST_F(PlayerViewTest, TheOverlayDoesNotCoverAnErrorMessageOfThePlayer)
{
    ShowCrop();
    Edit(10, Moved);
    EXPECT_TRUE(Delete().isEnabled());
    Q_EMIT presenter->sigFailed(QStringLiteral("The file is gone."));
    EXPECT_FALSE(overlay->isVisible());
    EXPECT_FALSE(Delete().isEnabled()) << "an edit could not be seen";
    Script().videoRect = QRect(1, 2, 333, 222);
    ShowFrame(10);
    EXPECT_TRUE(overlay->isVisible());
    EXPECT_EQ(overlay->size(), QSize(333, 222)) << "the player was resized in between";
    EXPECT_EQ(overlay->GetCropRect(), Moved);
    EXPECT_TRUE(Delete().isEnabled());
}

TEST_F(PlayerViewTest, AnErrorOfThePlayerShowsNoOverlayWhereThereWasNone)
{
    ShowCrop();
    ASSERT_TRUE(view->SwitchTimeline(true, true));
    Q_EMIT presenter->sigFailed(QStringLiteral("The file is gone."));
    ShowFrame(0);
    EXPECT_FALSE(overlay->isVisible());
    ASSERT_TRUE(view->SwitchTimeline(false, true));
    Q_EMIT presenter->sigFailed(QStringLiteral("The file is gone."));
    ASSERT_TRUE(view->SwitchTimeline(true, true));
    ShowFrame(0);
    EXPECT_FALSE(overlay->isVisible()) << "the reframed video has none";
    ASSERT_TRUE(view->SwitchTimeline(false, true));
    Q_EMIT presenter->sigFailed(QStringLiteral("The file is gone."));
    helper->SetTimeline(timeline);
    ShowFrame(0);
    EXPECT_FALSE(overlay->isVisible()) << "another source has none";
    ShowCrop();
    Q_EMIT presenter->sigFailed(QStringLiteral("The file is gone."));
    view->close();
    ShowFrame(0);
    EXPECT_FALSE(overlay->isVisible()) << "the view is closed";
}

TEST_F(PlayerViewTest, TheOverlayFollowsMovesAndSizes)
{
    ShowCrop();
    Script().videoRect = QRect(0, 0, 500, 250);
    view->resize(700, 520);
    ASSERT_EVENTUALLY_EQ(overlay->size(), QSize(500, 250));
    const QSize player = view->findChild<KxMediaPlayerWidget*>()->size();
    const QRect frame = KxUtility::getFitCentralWindowRectByRatio(QRect(QPoint(0, 0), player), QSize(1920, 1080));
    const QRect picture = KxUtility::getFitCentralWindowRectByRatio(frame, QSize(1920, 1080));
    EXPECT_EQ(Picture().size(), picture.size());
    view->move(view->pos() + QPoint(30, 40));
    ASSERT_EVENTUALLY_EQ(overlay->pos(), view->mapToGlobal(QPoint(0, 0)));
}

TEST_F(PlayerViewTest, FitsThePictureIntoTheWideFrameFirst)
{
    Open(QSize(1080, 1920));
    helper->SetTimeline(timeline);
    KxMediaPlayerWidget& player = *view->findChild<KxMediaPlayerWidget*>();
    view->resize(640, view->height() - player.height() + 480);
    ASSERT_EVENTUALLY_EQ(player.size(), QSize(640, 480));
    // 640 x 360 of the widget, and of that 202 x 360 for the picture.
    EXPECT_EQ(Picture().size(), QSize(202, 360));
}

TEST_F(PlayerViewTest, APictureIsWideWithoutASource)
{
    KxMediaPlayerWidget& player = *view->findChild<KxMediaPlayerWidget*>();
    view->resize(640, view->height() - player.height() + 480);
    ASSERT_EVENTUALLY_EQ(player.size(), QSize(640, 480));
    EXPECT_EQ(Picture().size(), QSize(640, 360));
}

TEST_F(PlayerViewTest, ANewSourceOfAnotherShapeIsFittedAnew)
{
    ShowCrop();
    FakeHost::Facts facts;
    facts.frameCount = FrameCount;
    facts.resolution = QSize(1000, 1000);
    helper->SetTimeline(FakeHost::MakeTimeline({facts}));
    const QSize picture = Picture().size();
    EXPECT_EQ(picture.width(), picture.height());
}

TEST_F(PlayerViewTest, ClosingHidesTheOverlay)
{
    ShowCrop();
    ASSERT_TRUE(overlay->isVisible());
    EXPECT_TRUE(view->close());
    EXPECT_FALSE(overlay->isVisible());
}
