#include <Tests/KxWidgets/Hand.h>

#include <KxWidgets/KxToolSlider.h>

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace
{

// 116 pixels: the handle takes 16 and moves over 100, so that a pixel is a unit.
class KxToolSliderTest : public testing::Test
{
protected:
    KxToolSliderTest()
    {
        slider.resize(116, 16);
        slider.setDuration(100.0);
        slider.show();
    }

    KxToolSlider slider{nullptr, Qt::Horizontal};
    QSignalSpy changed{&slider, &KxToolSlider::sigValueChanged};
    QSignalSpy started{&slider, &KxToolSlider::sigValueChangeStart};
    QSignalSpy ended{&slider, &KxToolSlider::sigValueChangeEnd};
};

TEST_F(KxToolSliderTest, WidthExcludesTheHandle)
{
    EXPECT_EQ(slider.GetOrientation(), Qt::Horizontal);
    EXPECT_EQ(slider.GetChunkWidth(), 16);
    EXPECT_EQ(slider.GetChunkHeight(), 16);
    EXPECT_EQ(slider.GetWidth(), 100);
    EXPECT_EQ(slider.chunkWidget()->parentWidget(), &slider);
    slider.setValue(30.0, false);
    EXPECT_EQ(slider.chunkWidget()->geometry(), QRect(30, 0, 16, 16));
}

TEST_F(KxToolSliderTest, ThinSliderHasAThinHandle)
{
    slider.setFixedHeight(8);
    slider.resize(116, 8);
    EXPECT_EQ(slider.GetChunkWidth(), 8);
    EXPECT_EQ(slider.GetWidth(), 108);
}

TEST_F(KxToolSliderTest, ValueIsLimitedAndReportsOnlyChanges)
{
    slider.setValue(250.0, true);
    EXPECT_DOUBLE_EQ(slider.value(), 100.0);
    slider.setValue(300.0, true);
    slider.setValue(-5.0, true);
    EXPECT_DOUBLE_EQ(slider.value(), 0.0);
    slider.setValue(12.5, false);
    EXPECT_DOUBLE_EQ(slider.value(), 12.5);
    ASSERT_EQ(changed.count(), 2);
    EXPECT_DOUBLE_EQ(changed.at(0).at(0).toDouble(), 100.0);
    EXPECT_DOUBLE_EQ(changed.at(1).at(0).toDouble(), 0.0);
    EXPECT_EQ(started.count() + ended.count(), 0);
}

TEST_F(KxToolSliderTest, ShorterDurationMovesTheValueInsideWithoutASignal)
{
    slider.setValue(80.0, false);
    slider.setDuration(40.0);
    EXPECT_DOUBLE_EQ(slider.value(), 40.0);
    EXPECT_EQ(slider.chunkWidget()->x(), 100);
    slider.setDuration(-1.0);
    EXPECT_DOUBLE_EQ(slider.duration(), 0.0);
    EXPECT_DOUBLE_EQ(slider.value(), 0.0);
    EXPECT_EQ(changed.count(), 0);
}

TEST_F(KxToolSliderTest, DurationChangeMovesTheHandleOfTheSameValue)
{
    slider.setValue(20.0, false);
    slider.setDuration(40.0);
    EXPECT_DOUBLE_EQ(slider.value(), 20.0);
    EXPECT_EQ(slider.chunkWidget()->x(), 50);
}

TEST_F(KxToolSliderTest, ZeroDurationCanBeDragged)
{
    slider.setDuration(0.0);
    Hand::Press(slider, {60, 8});
    Hand::Drag(slider, {80, 8});
    Hand::Release(slider, {80, 8});
    EXPECT_DOUBLE_EQ(slider.value(), 0.0);
    EXPECT_EQ(changed.count(), 0);
    EXPECT_FALSE(slider.grab().isNull());
}

TEST_F(KxToolSliderTest, PressBesideTheHandleMovesItAndBeginsADrag)
{
    Hand::Press(slider, {58, 8});
    EXPECT_DOUBLE_EQ(slider.value(), 50.0);
    for (int x = 59; x <= 68; ++x) {
        Hand::Drag(slider, {x, 8});
    }
    Hand::Release(slider, {68, 8});
    EXPECT_DOUBLE_EQ(slider.value(), 60.0);
    EXPECT_EQ(changed.count(), 11);
    ASSERT_EQ(started.count(), 1);
    EXPECT_DOUBLE_EQ(started.at(0).at(0).toDouble(), 0.0);
    ASSERT_EQ(ended.count(), 1);
    EXPECT_DOUBLE_EQ(ended.at(0).at(0).toDouble(), 60.0);
}

TEST_F(KxToolSliderTest, PressOnTheHandleLeavesItWhereItIs)
{
    slider.setValue(50.0, false);
    Hand::Press(slider, {53, 8});
    EXPECT_DOUBLE_EQ(slider.value(), 50.0);
    Hand::Drag(slider, {55, 8});
    EXPECT_DOUBLE_EQ(slider.value(), 52.0);
    Hand::Release(slider, {55, 8});
}

TEST_F(KxToolSliderTest, PressOnTheHandleWidgetReachesTheSlider)
{
    slider.setValue(50.0, false);
    Hand::Press(*slider.chunkWidget(), {8, 8});
    Hand::Drag(*slider.chunkWidget(), {18, 8});
    EXPECT_DOUBLE_EQ(slider.value(), 60.0);
    Hand::Release(*slider.chunkWidget(), {8, 8});
    EXPECT_EQ(started.count(), 1);
    EXPECT_EQ(ended.count(), 1);
}

TEST_F(KxToolSliderTest, DragBeyondTheEndsStopsThere)
{
    Hand::Press(slider, {58, 8});
    Hand::Drag(slider, {900, 8});
    EXPECT_DOUBLE_EQ(slider.value(), 100.0);
    Hand::Drag(slider, {-900, 8});
    EXPECT_DOUBLE_EQ(slider.value(), 0.0);
    Hand::Release(slider, {-900, 8});
}

TEST_F(KxToolSliderTest, ClickWithoutAChangeStartsAndEndsByDefault)
{
    Hand::Press(slider, {4, 8});
    Hand::Release(slider, {4, 8});
    EXPECT_EQ(started.count(), 1);
    EXPECT_EQ(ended.count(), 1);
    EXPECT_EQ(changed.count(), 0);
}

TEST_F(KxToolSliderTest, ClickWithoutAChangeCanBeSilent)
{
    slider.SetAwaysEmitValueChangeStartEnd(false);
    Hand::Press(slider, {4, 8});
    Hand::Release(slider, {4, 8});
    EXPECT_EQ(started.count() + ended.count() + changed.count(), 0);
}

TEST_F(KxToolSliderTest, StartCanWaitForTheFirstChange)
{
    slider.SetAwaysEmitValueChangeStartEnd(false);
    QStringList order;
    QObject::connect(&slider, &KxToolSlider::sigValueChangeStart, &slider,
                     [&](double value) { order << QStringLiteral("start %1").arg(value); });
    QObject::connect(&slider, &KxToolSlider::sigValueChanged, &slider,
                     [&](double value) { order << QStringLiteral("change %1").arg(value); });
    QObject::connect(&slider, &KxToolSlider::sigValueChangeEnd, &slider,
                     [&](double value) { order << QStringLiteral("end %1").arg(value); });
    Hand::Press(slider, {8, 8});
    EXPECT_TRUE(order.isEmpty());
    Hand::Drag(slider, {9, 8});
    Hand::Drag(slider, {10, 8});
    Hand::Release(slider, {10, 8});
    EXPECT_EQ(order.join(QLatin1Char(',')).toStdString(), "start 0,change 1,change 2,end 2");
}

TEST_F(KxToolSliderTest, OtherButtonsDoNothing)
{
    Hand::Send(slider, QEvent::MouseButtonPress, {58, 8}, Qt::RightButton, Qt::RightButton);
    Hand::Send(slider, QEvent::MouseMove, {68, 8}, Qt::NoButton, Qt::RightButton);
    Hand::Send(slider, QEvent::MouseButtonRelease, {68, 8}, Qt::RightButton, Qt::NoButton);
    EXPECT_DOUBLE_EQ(slider.value(), 0.0);
    EXPECT_EQ(started.count() + ended.count() + changed.count(), 0);
}

TEST_F(KxToolSliderTest, KeysMoveItByFrameTenthAndToTheEnds)
{
    slider.setValue(50.0, false);
    const std::vector<std::pair<Qt::Key, double>> steps{
        {Qt::Key_Right, 51},  {Qt::Key_Up, 52},       {Qt::Key_Left, 51}, {Qt::Key_Down, 50},
        {Qt::Key_PageUp, 60}, {Qt::Key_PageDown, 50}, {Qt::Key_End, 100}, {Qt::Key_Home, 0},
    };
    for (const auto& [key, expected] : steps) {
        QTest::keyClick(&slider, key);
        EXPECT_DOUBLE_EQ(slider.value(), expected);
    }
    const int steps_made = static_cast<int>(steps.size());
    EXPECT_EQ(changed.count(), steps_made);
    EXPECT_EQ(started.count(), steps_made);
    EXPECT_EQ(ended.count(), steps_made);
    QTest::keyClick(&slider, Qt::Key_Home);
    EXPECT_EQ(changed.count(), steps_made);
    EXPECT_EQ(started.count(), steps_made);
}

TEST_F(KxToolSliderTest, TakesPrecedenceOverShortcutsForItsKeysOnly)
{
    QKeyEvent left(QEvent::ShortcutOverride, Qt::Key_Left, Qt::NoModifier);
    left.ignore();
    QApplication::sendEvent(&slider, &left);
    EXPECT_TRUE(left.isAccepted());
    QKeyEvent jump(QEvent::ShortcutOverride, Qt::Key_Left, Qt::ControlModifier);
    jump.ignore();
    QApplication::sendEvent(&slider, &jump);
    EXPECT_FALSE(jump.isAccepted());
    QKeyEvent space(QEvent::ShortcutOverride, Qt::Key_Space, Qt::NoModifier);
    space.ignore();
    QApplication::sendEvent(&slider, &space);
    EXPECT_FALSE(space.isAccepted());
}

TEST_F(KxToolSliderTest, WheelMovesItOnlyWithTheFocus)
{
    slider.setValue(50.0, false);
    slider.clearFocus();
    Hand::Wheel(slider, 120);
    EXPECT_DOUBLE_EQ(slider.value(), 50.0);
    ASSERT_TRUE(Hand::ShowActive(slider));
    slider.setFocus();
    Hand::Wheel(slider, 240);
    EXPECT_DOUBLE_EQ(slider.value(), 52.0);
    Hand::Wheel(slider, -60);
    EXPECT_DOUBLE_EQ(slider.value(), 52.0);
    Hand::Wheel(slider, -60);
    EXPECT_DOUBLE_EQ(slider.value(), 51.0);
}

TEST_F(KxToolSliderTest, VerticalHasItsZeroAtTheBottom)
{
    KxToolSlider vertical(nullptr, Qt::Vertical);
    vertical.resize(16, 116);
    vertical.setDuration(100.0);
    vertical.show();
    EXPECT_EQ(vertical.GetWidth(), 100);
    EXPECT_EQ(vertical.chunkWidget()->geometry(), QRect(0, 100, 16, 16));
    Hand::Press(vertical, {8, 8});
    EXPECT_DOUBLE_EQ(vertical.value(), 100.0);
    EXPECT_EQ(vertical.chunkWidget()->y(), 0);
    Hand::Release(vertical, {8, 8});
}

TEST_F(KxToolSliderTest, ResizeKeepsTheValueAndMovesTheHandle)
{
    slider.setValue(50.0, false);
    slider.resize(216, 16);
    EXPECT_DOUBLE_EQ(slider.value(), 50.0);
    EXPECT_EQ(slider.chunkWidget()->x(), 100);
    EXPECT_EQ(changed.count(), 0);
}

} // namespace
