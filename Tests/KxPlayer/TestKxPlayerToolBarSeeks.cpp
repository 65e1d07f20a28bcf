#include <Tests/KrAutoReframe/FakePlayer/FakePlayer.h>

#include <KxPlayer/KxMediaPlayerPresenter.h>
#include <KxPlayer/KxMediaPlayerWidget.h>
#include <KxPlayer/KxPlayerToolBarBase.h>
#include <KxWidgets/KxToolSlider.h>

#include <QAbstractButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace
{

// The bar with a player whose pictures the test delivers.
class TestToolBarSeeks : public testing::Test
{
protected:
    TestToolBarSeeks()
    {
        bar.setPlayerPresenter(&player);
        Calls().clear();
    }

    QStringList& Calls() { return FakePlayer::ScriptOf(player).calls; }
    void Click(int number) { bar.button(number)->click(); }
    void DragTo(double value) { bar.slider()->setValue(value, true); }

    KxMediaPlayerWidget widget{nullptr};
    KxMediaPlayerPresenter& player = *widget.getOrCreatePresenter();
    KxPlayerToolBarBase bar{nullptr, new KxToolSlider(nullptr, Qt::Horizontal), true};
};

const QString Seek30 = QStringLiteral("seek 30 0 0");
const QString Seek50 = QStringLiteral("seek 50 0 0");

} // namespace

TEST_F(TestToolBarSeeks, ADragContinuesWhenThePictureIsShown)
{
    Q_EMIT bar.slider()->sigValueChangeStart(0);
    DragTo(30);
    DragTo(40);
    DragTo(50);
    EXPECT_EQ(Calls(), QStringList{Seek30});
    FakePlayer::ShowFrame(player, 30);
    EXPECT_EQ(Calls(), (QStringList{Seek30, Seek50}));
    FakePlayer::ShowFrame(player, 50);
    EXPECT_EQ(Calls().size(), 2);
}

TEST_F(TestToolBarSeeks, BackAtTheFrameThatIsBeingMadeNoSeekFollows)
{
    Q_EMIT bar.slider()->sigValueChangeStart(0);
    DragTo(30);
    DragTo(40);
    DragTo(30);
    FakePlayer::ShowFrame(player, 30);
    EXPECT_EQ(Calls(), QStringList{Seek30});
}

TEST_F(TestToolBarSeeks, ASlowPictureIsAbandonedForTheNewestPosition)
{
    Q_EMIT bar.slider()->sigValueChangeStart(0);
    DragTo(30);
    DragTo(40);
    DragTo(50);
    Q_EMIT bar.slider()->sigValueChangeEnd(50);
    EXPECT_EQ(Calls(), QStringList{Seek30});
    ASSERT_TRUE(QTest::qWaitFor([this] { return Calls().size() > 1; }));
    EXPECT_EQ(Calls(), (QStringList{Seek30, Seek50}));
}

TEST_F(TestToolBarSeeks, ALaterMoveDoesNotWaitForASlowPicture)
{
    DragTo(30);
    const QTimer* const patience = bar.findChild<QTimer*>(QStringLiteral("patience"));
    ASSERT_NE(patience, nullptr);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !patience->isActive(); }));
    EXPECT_EQ(Calls(), QStringList{Seek30});
    DragTo(50);
    EXPECT_EQ(Calls(), (QStringList{Seek30, Seek50}));
}

TEST_F(TestToolBarSeeks, StepsOfAHeldKeyWaitForThePictureAndShowTheNewestPlace)
{
    FakePlayer::ShowFrame(player, 10);
    for (int repeat = 0; repeat < 4; ++repeat) {
        Click(KxPlayerToolBarBase::ForwardButton);
    }
    EXPECT_EQ(Calls(), QStringList{QStringLiteral("stepForward")});
    FakePlayer::ShowFrame(player, 11);
    EXPECT_EQ(Calls(), (QStringList{QStringLiteral("stepForward"), QStringLiteral("seek 14 0 0")}));
    EXPECT_EQ(bar.slider()->value(), 11);
    Click(KxPlayerToolBarBase::ForwardButton);
    Click(KxPlayerToolBarBase::BackwardButton);
    FakePlayer::ShowFrame(player, 14);
    EXPECT_EQ(Calls().size(), 2);
    EXPECT_EQ(bar.slider()->value(), 14);
    Click(KxPlayerToolBarBase::BackwardButton);
    EXPECT_EQ(Calls().last(), QStringLiteral("stepBackward"));
    FakePlayer::ShowFrame(player, 13);
    EXPECT_EQ(Calls().size(), 3);
}

TEST_F(TestToolBarSeeks, StepsDoNotLeaveTheTimeline)
{
    FakePlayer::ShowFrame(player, 98);
    for (int repeat = 0; repeat < 4; ++repeat) {
        Click(KxPlayerToolBarBase::ForwardButton);
    }
    FakePlayer::ShowFrame(player, 99);
    EXPECT_EQ(Calls(), QStringList{QStringLiteral("stepForward")});
    FakePlayer::ShowFrame(player, 1);
    for (int repeat = 0; repeat < 4; ++repeat) {
        Click(KxPlayerToolBarBase::BackwardButton);
    }
    FakePlayer::ShowFrame(player, 0);
    EXPECT_EQ(Calls(), (QStringList{QStringLiteral("stepForward"), QStringLiteral("stepBackward")}));
}

TEST_F(TestToolBarSeeks, AStepAfterASeekWhilePlayingPauses)
{
    FakePlayer::SetPlaying(player, true);
    DragTo(30);
    Click(KxPlayerToolBarBase::ForwardButton);
    EXPECT_FALSE(player.inPlaying());
    FakePlayer::ShowFrame(player, 30);
    EXPECT_EQ(Calls(), (QStringList{Seek30, QStringLiteral("pause"), QStringLiteral("seek 31 0 0")}));
}
