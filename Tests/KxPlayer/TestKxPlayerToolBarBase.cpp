#include <Tests/KxPlayer/PlayerClip.h>

#include <KxPlayer/KxMediaPlayerPresenter.h>
#include <KxPlayer/KxMediaPlayerWidget.h>
#include <KxPlayer/KxPlayerToolBarBase.h>
#include <KxWidgets/IKxShortcutEditManager.h>
#include <KxWidgets/KxSwitchToolButton.h>
#include <KxWidgets/KxToolSlider.h>

#include <QBoxLayout>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace
{

using Bar = KxPlayerToolBarBase;
constexpr int Last = PlayerClip::Frames - 1;

class TestToolBar : public testing::Test
{
protected:
    TestToolBar()
    {
        auto* layout = new QVBoxLayout(&window);
        window.resize(640, 480);
        layout->addWidget(widget);
        layout->addWidget(&bar);
        auto* barLayout = new QVBoxLayout(&bar);
        bar.slider()->setFixedHeight(20);
        barLayout->addWidget(bar.slider());
        bar.setPlayerPresenter(&player);
        window.show();
        QApplication::setActiveWindow(&window);
        player.openTimeline(timeline.get(), true, false);
        EXPECT_TRUE(Await(0));
    }

    ~TestToolBar() override { bar.setParent(nullptr); }

    bool Await(int frame)
    {
        return QTest::qWaitFor([&] { return !frames.isEmpty() && frames.last()[0] == frame; }, 20000);
    }

    void Press(int action)
    {
        const QKeySequence keys = IKxShortcutEditManager::GetInstance()->keySequence(action);
        ASSERT_EQ(keys.count(), 1);
        const int key = keys[0];
        QTest::keyClick(&window, static_cast<Qt::Key>(key & ~Qt::KeyboardModifierMask),
                        Qt::KeyboardModifiers(QFlag(key & static_cast<int>(Qt::KeyboardModifierMask))));
    }

    PlayerClip::Timeline timeline = PlayerClip::Open(PlayerClip::Numbered());
    QWidget window;
    KxMediaPlayerWidget* widget = mediaPlayerFactory()->createPlayerWidget(&window);
    KxMediaPlayerPresenter& player = *widget->getOrCreatePresenter();
    QSignalSpy frames{&player, &KxMediaPlayerPresenter::sigFrameChanged};
    Bar bar{&window, new KxToolSlider(nullptr, Qt::Horizontal), true};
};

} // namespace

TEST_F(TestToolBar, HasFourButtonsByNumberAndName)
{
    EXPECT_EQ(bar.button(Bar::PlayPauseButton)->objectName(), QLatin1String("KxPlayerToolBar_play"));
    EXPECT_EQ(bar.button(Bar::StopButton)->objectName(), QLatin1String("KxPlayerToolBar_stop"));
    EXPECT_EQ(bar.button(Bar::BackwardButton)->objectName(), QLatin1String("KxPlayerToolBar_backward"));
    EXPECT_EQ(bar.button(Bar::ForwardButton)->objectName(), QLatin1String("KxPlayerToolBar_forward"));
    EXPECT_EQ(bar.button(0), nullptr);
    EXPECT_EQ(bar.button(2), nullptr);
    EXPECT_EQ(bar.button(6), nullptr);
    EXPECT_NE(qobject_cast<KxSwitchToolButton*>(bar.button(Bar::PlayPauseButton)), nullptr);
    EXPECT_TRUE(bar.button(Bar::BackwardButton)->isHidden());
    EXPECT_TRUE(bar.button(Bar::ForwardButton)->isHidden());
    EXPECT_EQ(bar.slider()->parentWidget(), &bar);
    EXPECT_EQ(bar.playerPresenter(), &player);
}

TEST(KxPlayerToolBar, OwnsItsSliderAlsoWithoutALayout)
{
    auto* const slider = new KxToolSlider(nullptr, Qt::Horizontal);
    const QPointer<KxToolSlider> owned(slider);
    {
        const Bar bar(nullptr, slider, true);
        EXPECT_EQ(slider->parentWidget(), &bar);
    }
    EXPECT_TRUE(owned.isNull());
}

TEST_F(TestToolBar, SliderFollowsTheTimeline)
{
    EXPECT_EQ(bar.slider()->duration(), PlayerClip::Frames);
    player.seek(33, 0, 0);
    ASSERT_TRUE(Await(33));
    EXPECT_EQ(bar.slider()->value(), 33);
    player.openTimeline(nullptr, true, false);
    EXPECT_EQ(bar.slider()->duration(), 1);
    EXPECT_EQ(bar.slider()->value(), 0);
}

TEST_F(TestToolBar, ButtonsDriveThePlayer)
{
    auto* const play = qobject_cast<KxSwitchToolButton*>(bar.button(Bar::PlayPauseButton));
    EXPECT_EQ(play->Face(), 0);
    play->click();
    EXPECT_TRUE(player.inPlaying());
    EXPECT_EQ(play->Face(), 1);
    play->click();
    EXPECT_FALSE(player.inPlaying());
    EXPECT_EQ(play->Face(), 0);
    player.seek(30, 0, 0);
    ASSERT_TRUE(Await(30));
    bar.button(Bar::ForwardButton)->click();
    ASSERT_TRUE(Await(31));
    bar.button(Bar::BackwardButton)->click();
    ASSERT_TRUE(Await(30));
    bar.button(Bar::StopButton)->click();
    ASSERT_TRUE(Await(0));
}

TEST_F(TestToolBar, ShortcutsActOnlyWhileTheirButtonIsEnabled)
{
    Press(IKxShortcutEditManager::PlayPause);
    EXPECT_TRUE(player.inPlaying());
    bar.button(Bar::PlayPauseButton)->setEnabled(false);
    Press(IKxShortcutEditManager::PlayPause);
    EXPECT_TRUE(player.inPlaying());
    bar.button(Bar::PlayPauseButton)->setEnabled(true);
    Press(IKxShortcutEditManager::PlayPause);
    EXPECT_FALSE(player.inPlaying());
    player.seek(10, 0, 0);
    ASSERT_TRUE(Await(10));
    Press(IKxShortcutEditManager::Forward);
    ASSERT_TRUE(Await(11));
    bar.button(Bar::BackwardButton)->setEnabled(false);
    Press(IKxShortcutEditManager::Backward);
    Press(IKxShortcutEditManager::Forward);
    ASSERT_TRUE(Await(12));
    Press(IKxShortcutEditManager::Stop);
    ASSERT_TRUE(Await(0));
}

TEST_F(TestToolBar, ADragSeeksAndEndsAtTheNewestPosition)
{
    KxToolSlider* const slider = bar.slider();
    frames.clear();
    Q_EMIT slider->sigValueChangeStart(0);
    for (int value = 1; value <= 50; ++value) {
        slider->setValue(value + 0.7, true);
    }
    // A picture that is shown does not move the dragged slider.
    ASSERT_TRUE(QTest::qWaitFor([&] { return !frames.isEmpty(); }));
    EXPECT_NEAR(slider->value(), 50.7, 1e-9);
    Q_EMIT slider->sigValueChangeEnd(slider->value());
    ASSERT_TRUE(Await(50));
    EXPECT_EQ(slider->value(), 50);
    // Some of the fifty positions were skipped.
    EXPECT_LT(frames.size(), 10);
}

TEST_F(TestToolBar, ADragCanWaitForItsEnd)
{
    Bar quiet(&window, new KxToolSlider(nullptr, Qt::Horizontal), false);
    quiet.setPlayerPresenter(&player);
    bar.setPlayerPresenter(nullptr);
    frames.clear();
    KxToolSlider* const slider = quiet.slider();
    Q_EMIT slider->sigValueChangeStart(0);
    slider->setValue(20, true);
    player.seek(5, 0, 0);
    ASSERT_TRUE(Await(5));
    EXPECT_EQ(slider->value(), 20);
    Q_EMIT slider->sigValueChangeEnd(20);
    ASSERT_TRUE(Await(20));
    EXPECT_EQ(frames.size(), 2);
}

TEST_F(TestToolBar, ThePositionAfterTheLastFrameIsTheLastFrame)
{
    Q_EMIT bar.slider()->sigValueChangeStart(0);
    bar.slider()->setValue(PlayerClip::Frames, true);
    Q_EMIT bar.slider()->sigValueChangeEnd(PlayerClip::Frames);
    ASSERT_TRUE(Await(Last));
}

TEST_F(TestToolBar, ForgetsAPresenter)
{
    bar.setPlayerPresenter(nullptr);
    EXPECT_EQ(bar.playerPresenter(), nullptr);
    bar.button(Bar::PlayPauseButton)->click();
    EXPECT_FALSE(player.inPlaying());
    player.seek(9, 0, 0);
    ASSERT_TRUE(Await(9));
    EXPECT_EQ(bar.slider()->value(), 0);
    bar.setPlayerPresenter(&player);
    EXPECT_EQ(bar.slider()->value(), 9);
    delete widget;
    EXPECT_EQ(bar.playerPresenter(), nullptr);
    bar.button(Bar::StopButton)->click();
}

TEST_F(TestToolBar, ToolTipsShowTheKeys)
{
    for (const int number : {Bar::PlayPauseButton, Bar::StopButton, Bar::BackwardButton, Bar::ForwardButton}) {
        EXPECT_TRUE(bar.button(number)->toolTip().contains(QLatin1Char('(')));
        EXPECT_FALSE(bar.button(number)->toolTip().contains(QLatin1Char('%')));
        EXPECT_FALSE(bar.button(number)->accessibleName().isEmpty());
    }
}
