#include <Tests/KrAutoReframe/Dialog/ExtendedDialogTest.h>

#include <QUndoStack>
#include <QtTest>

namespace
{

class KrCropKeysTest : public ExtendedDialogTest
{
protected:
    static constexpr double Left = 0.25;

    /// Analyses a video of 1920 x 1080 whose crops are a quarter wide, and gives the picture the focus.
    void ShowCrop()
    {
        QList<IKxAutoReframeResult> results;
        for (int frame = 0; frame < FrameCount; ++frame) {
            results.append(IKxAutoReframeResult(frame, QRectF(Left, 0.0, 0.25, 1.0)));
        }
        Load(Video(clip));
        Analyse(results);
        presenter->pause();
        FakePlayer::ShowFrame(*presenter, 40);
        // Offscreen the overlay becomes the active window, although it does not accept the focus.
        QApplication::setActiveWindow(dialog.get());
        Picture().setFocus(Qt::TabFocusReason);
        ASSERT_TRUE(Picture().hasFocus());
    }
    QWidget& Picture() const { return view->PlayerWidget(); }
    double ShownLeft() const { return Helper().GetDisplayResults().at(40).cropRect().x(); }
};

} // namespace

TEST_F(KrCropKeysTest, AnArrowKeyMovesTheCropByAPixelOfTheVideo)
{
    ShowCrop();
    QTest::keyClick(&Picture(), Qt::Key_Right);
    EXPECT_NEAR(ShownLeft(), Left + 1.0 / 1920.0, 1e-12);
    QTest::keyClick(&Picture(), Qt::Key_Left);
    EXPECT_NEAR(ShownLeft(), Left, 1e-12);
    EXPECT_EQ(Helper().GetEditPointFrames(), QList<uint>{40});
}

TEST_F(KrCropKeysTest, WithShiftItMovesByTen)
{
    ShowCrop();
    QTest::keyClick(&Picture(), Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_NEAR(ShownLeft(), Left - 10.0 / 1920.0, 1e-12);
}

TEST_F(KrCropKeysTest, AKeyThatIsHeldIsOneEdit)
{
    ShowCrop();
    for (int repeat = 0; repeat < 5; ++repeat) {
        QTest::keyPress(&Picture(), Qt::Key_Right);
    }
    EXPECT_TRUE(Helper().GetEditPointFrames().isEmpty());
    QTest::keyRelease(&Picture(), Qt::Key_Right);
    EXPECT_NEAR(ShownLeft(), Left + 5.0 / 1920.0, 1e-12);
    EXPECT_EQ(Helper().GetUndoStack().count(), 1);
}

TEST_F(KrCropKeysTest, TheCropStopsAtTheEdge)
{
    ShowCrop();
    for (int repeat = 0; repeat < 100; ++repeat) {
        QTest::keyPress(&Picture(), Qt::Key_Right, Qt::ShiftModifier);
    }
    QTest::keyRelease(&Picture(), Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_DOUBLE_EQ(ShownLeft(), 0.75);
}

TEST_F(KrCropKeysTest, AKeyThatMovesNothingIsNoEdit)
{
    ShowCrop();
    QTest::keyClick(&Picture(), Qt::Key_Up);
    EXPECT_EQ(Helper().GetUndoStack().count(), 0);
}

TEST_F(KrCropKeysTest, InTheReframedVideoTheKeysStep)
{
    ShowCrop();
    Preview().click();
    Player().calls.clear();
    QTest::keyClick(&Picture(), Qt::Key_Right);
    EXPECT_TRUE(Helper().GetEditPointFrames().isEmpty());
}

TEST_F(KrCropKeysTest, ElsewhereTheArrowKeysLeaveTheCropAlone)
{
    ShowCrop();
    Export().setFocus(Qt::TabFocusReason);
    QTest::keyClick(&Export(), Qt::Key_Right);
    EXPECT_TRUE(Helper().GetEditPointFrames().isEmpty());
}

TEST_F(KrCropKeysTest, TheCropShowsTheFocusThatTheKeyboardHasMoved)
{
    ShowCrop();
    const QImage focused = overlay->grab().toImage();
    Export().setFocus(Qt::TabFocusReason);
    const QImage plain = overlay->grab().toImage();
    EXPECT_NE(focused, plain);
    Picture().setFocus(Qt::MouseFocusReason);
    EXPECT_EQ(overlay->grab().toImage(), plain);
}
