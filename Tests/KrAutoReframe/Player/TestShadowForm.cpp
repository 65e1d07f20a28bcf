#include <KrAutoReframe/Player/ShadowForm.h>

#include <Tests/KrAutoReframe/WidgetProbe.h>

#include <QLabel>
#include <QSignalSpy>
#include <QtTest>

#include <gtest/gtest.h>

#include <memory>

using namespace WidgetProbe;

namespace
{

const QSize Picture(400, 200);
// In the picture's pixels: x and y (100, 50), 100 wide and high.
const QRectF Crop(0.25, 0.25, 0.25, 0.5);
const QPoint Inside(150, 100);

/// Gives a form of the size of `window` its picture and its crop.
void Prepare(ShadowForm& form, const QSize& window)
{
    form.GetPictureLabel()->setFixedSize(Picture);
    form.setFixedSize(window);
    form.SetCropRect(Crop);
}

/// Where the pointer is held, counted from the press, and the crop's corner then; both in pixels.
struct Step {
    QPoint pointer;
    QPoint crop;
};

class ShadowFormTest : public testing::Test
{
protected:
    ShadowFormTest() { Open(Picture); }

    void Open(const QSize& window)
    {
        form = std::make_unique<ShadowForm>(nullptr);
        Prepare(*form, window);
        form->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(form.get()));
        changed = std::make_unique<QSignalSpy>(form.get(), &ShadowForm::sigRectFChanged);
        pressed = std::make_unique<QSignalSpy>(form.get(), &ShadowForm::sigMousePressed);
    }

    /// Presses and moves the pointer about without leaving the start distance, so that the next step counts from
    /// `position`.
    void PressAt(const QPoint& position)
    {
        Press(*form, position);
        MoveHeld(*form, position);
    }

    /// Presses inside the crop and drags it.
    void ExpectDragged(const QList<Step>& steps)
    {
        PressAt(Inside);
        for (const Step& step : steps) {
            MoveHeld(*form, Inside + step.pointer);
            ExpectCrop(step.crop.x(), step.crop.y());
        }
    }

    void ExpectCrop(double xPx, double yPx) const
    {
        EXPECT_NEAR(form->GetCropRect().x() * Picture.width(), xPx, 1e-9);
        EXPECT_NEAR(form->GetCropRect().y() * Picture.height(), yPx, 1e-9);
        EXPECT_EQ(form->GetCropRect().size(), Crop.size());
    }

    Qt::CursorShape Cursor() const { return form->GetPictureLabel()->cursor().shape(); }

    std::unique_ptr<ShadowForm> form;
    std::unique_ptr<QSignalSpy> changed;
    std::unique_ptr<QSignalSpy> pressed;
};

/// The colours of the pixels outside and inside the outline.
struct Surroundings {
    QColor outside{0, 0, 0, 142};
    QColor inside{0, 0, 0, 1};
};

/// Checks every pixel: dimmed outside, the outline, almost clear inside. `crop` includes the outline.
void ExpectPainted(const QImage& image, const QRect& crop, const QColor& outline, const Surroundings& surroundings = {})
{
    const QRect hole = crop.adjusted(1, 1, -1, -1);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor expected = hole.contains(x, y)   ? surroundings.inside
                                    : crop.contains(x, y) ? outline
                                                          : surroundings.outside;
            ASSERT_EQ(image.pixelColor(x, y), expected) << "at " << x << ", " << y;
        }
    }
}

} // namespace

TEST_F(ShadowFormTest, IsATranslucentToolWindowThatTakesNoFocus)
{
    EXPECT_EQ(form->windowFlags(), Qt::WindowFlags(0x20080b));
    EXPECT_TRUE(form->testAttribute(Qt::WA_TranslucentBackground));
    EXPECT_TRUE(form->testAttribute(Qt::WA_ShowWithoutActivating));
    EXPECT_TRUE(form->hasMouseTracking());
    EXPECT_TRUE(form->GetPictureLabel()->hasMouseTracking());
    EXPECT_TRUE(ShadowForm(nullptr).GetCropRect().isNull());
}

TEST_F(ShadowFormTest, DeclaresItsSignalsInOrder)
{
    EXPECT_EQ(MethodsOf(ShadowForm::staticMetaObject, QMetaMethod::Signal),
              (QStringList{QStringLiteral("sigRectFChanged(QRectF)"), QStringLiteral("sigMousePressed()")}));
}

TEST_F(ShadowFormTest, CentresThePicture)
{
    Open(QSize(441, 221));
    EXPECT_EQ(form->GetPictureLabel()->geometry(), QRect(QPoint(20, 10), Picture));
}

TEST_F(ShadowFormTest, DimsEverythingOutsideTheCrop)
{
    ExpectPainted(Paint(*form), QRect(100, 50, 100, 100), QColor(0x55, 0xE5, 0xC5));
}

TEST_F(ShadowFormTest, OutlinesAnEditedFrameInTheOtherColour)
{
    form->SetEditedFrame(true);
    ExpectPainted(Paint(*form), QRect(100, 50, 100, 100), QColor(0xFF, 0x8B, 0x55));
    form->SetEditedFrame(false);
    ExpectPainted(Paint(*form), QRect(100, 50, 100, 100), QColor(0x55, 0xE5, 0xC5));
}

TEST_F(ShadowFormTest, PaintsTheCropRelativeToThePicture)
{
    Open(QSize(440, 220));
    ExpectPainted(Paint(*form), QRect(120, 60, 100, 100), QColor(0x55, 0xE5, 0xC5));
}

TEST_F(ShadowFormTest, TruncatesEachProduct)
{
    // x 40.8, y 20.8, width 100.8, height 60.8 pixels.
    form->SetCropRect(QRectF(0.102, 0.104, 0.252, 0.304));
    ExpectPainted(Paint(*form), QRect(40, 20, 100, 60), QColor(0x55, 0xE5, 0xC5));
}

TEST_F(ShadowFormTest, PaintsACropOfTheWholePicture)
{
    form->SetCropRect(QRectF(0.0, 0.0, 1.0, 1.0));
    ExpectPainted(Paint(*form), QRect(0, 0, 400, 200), QColor(0x55, 0xE5, 0xC5));
}

TEST_F(ShadowFormTest, AsAChildItDimsThePictureOutsideTheCrop)
{
    QWidget picture;
    picture.setPalette(QPalette(Qt::white));
    picture.setFixedSize(Picture);
    auto* const child = new ShadowForm(&picture, ShadowForm::Kind::Child);
    EXPECT_FALSE(child->isWindow());
    EXPECT_EQ(child->focusPolicy(), Qt::NoFocus);
    Prepare(*child, Picture);
    ExpectPainted(picture.grab().toImage(), QRect(100, 50, 100, 100), QColor(0x55, 0xE5, 0xC5),
                  {QColor(113, 113, 113), Qt::white});
}

TEST_F(ShadowFormTest, AsAChildItCanBeDragged)
{
    QWidget picture;
    picture.setFixedSize(Picture);
    form = std::make_unique<ShadowForm>(&picture, ShadowForm::Kind::Child);
    Prepare(*form, Picture);
    picture.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&picture));
    QSignalSpy dragged(form.get(), &ShadowForm::sigRectFChanged);
    PressAt(Inside);
    MoveHeld(*form, Inside + QPoint(30, 20));
    Release(*form, Inside + QPoint(30, 20));
    EXPECT_EQ(dragged.count(), 1);
    ExpectCrop(130, 70);
    form.reset();
}

TEST_F(ShadowFormTest, APressInsideIsReported)
{
    Press(*form, Inside);
    EXPECT_EQ(pressed->count(), 1);
    EXPECT_EQ(Cursor(), Qt::ClosedHandCursor);
    Release(*form, Inside);
    EXPECT_EQ(pressed->count(), 1);
    EXPECT_EQ(changed->count(), 0);
    ExpectCrop(100, 50);
}

TEST_F(ShadowFormTest, TheCropsEdgesBelongToIt)
{
    // Right and bottom are one pixel inside the painted outline: hits are tested against the filled rectangle.
    for (const QPoint& edge : {QPoint(100, 50), QPoint(198, 148), QPoint(100, 148), QPoint(198, 50)}) {
        Press(*form, edge);
        Release(*form, edge);
    }
    EXPECT_EQ(pressed->count(), 4);
    for (const QPoint& beside : {QPoint(99, 50), QPoint(199, 148), QPoint(100, 149), QPoint(198, 49)}) {
        Press(*form, beside);
        Release(*form, beside);
    }
    EXPECT_EQ(pressed->count(), 4);
}

TEST_F(ShadowFormTest, APressOutsideDoesNothing)
{
    Press(*form, QPoint(20, 20));
    MoveHeld(*form, QPoint(60, 60));
    Release(*form, QPoint(60, 60));
    EXPECT_EQ(pressed->count(), 0);
    EXPECT_EQ(changed->count(), 0);
    ExpectCrop(100, 50);
}

TEST_F(ShadowFormTest, AnotherButtonDoesNothing)
{
    Press(*form, Inside, Qt::RightButton);
    MoveHeld(*form, Inside + QPoint(30, 0));
    Release(*form, Inside + QPoint(30, 0), Qt::RightButton);
    EXPECT_EQ(pressed->count(), 0);
    EXPECT_EQ(changed->count(), 0);
    ExpectCrop(100, 50);
}

TEST_F(ShadowFormTest, AReleaseOfAnotherButtonDoesNotEndADrag)
{
    PressAt(Inside);
    MoveHeld(*form, Inside + QPoint(20, 0));
    Release(*form, Inside + QPoint(20, 0), Qt::RightButton);
    EXPECT_EQ(changed->count(), 0);
    EXPECT_EQ(Cursor(), Qt::ClosedHandCursor);
    MoveHeld(*form, Inside + QPoint(25, 0));
    ExpectCrop(125, 50);
    Release(*form, Inside + QPoint(25, 0));
    EXPECT_EQ(changed->count(), 1);
}

TEST_F(ShadowFormTest, TheCursorShowsWhetherTheCropCanBeDragged)
{
    Hover(*form, Inside);
    EXPECT_EQ(Cursor(), Qt::OpenHandCursor);
    Hover(*form, QPoint(20, 20));
    EXPECT_EQ(Cursor(), Qt::ArrowCursor);
    Press(*form, Inside);
    MoveHeld(*form, Inside + QPoint(1, 0));
    EXPECT_EQ(Cursor(), Qt::ClosedHandCursor);
    Release(*form, Inside);
    EXPECT_EQ(Cursor(), Qt::OpenHandCursor);
    Press(*form, Inside);
    Release(*form, QPoint(20, 20));
    EXPECT_EQ(Cursor(), Qt::ArrowCursor);
}

TEST_F(ShadowFormTest, MovesWithThePointerOnceItPassedTheStartDistance)
{
    ASSERT_EQ(QApplication::startDragDistance(), 10);
    Press(*form, Inside);
    for (int step = 1; step <= 9; ++step) {
        MoveHeld(*form, Inside + QPoint(step, 0));
    }
    ExpectCrop(100, 50);
    for (int step = 10; step <= 20; ++step) {
        MoveHeld(*form, Inside + QPoint(step, 0));
    }
    ExpectCrop(111, 50);
    EXPECT_EQ(changed->count(), 0);
    Release(*form, Inside + QPoint(20, 0));
    ASSERT_EQ(changed->count(), 1);
    EXPECT_EQ(changed->at(0).at(0).toRectF(), form->GetCropRect());
    EXPECT_EQ(pressed->count(), 1);
}

TEST_F(ShadowFormTest, AClickBelowTheStartDistanceChangesNothing)
{
    Press(*form, Inside);
    MoveHeld(*form, Inside + QPoint(5, 4));
    Release(*form, Inside + QPoint(5, 4));
    EXPECT_EQ(changed->count(), 0);
    ExpectCrop(100, 50);
}

TEST_F(ShadowFormTest, RefusesAStepPastTheRightEdgeWhileTheOtherAxisMoves)
{
    ExpectDragged({{{201, 10}, {100, 60}}});
    Release(*form, Inside + QPoint(201, 10));
    EXPECT_EQ(changed->count(), 1);
}

TEST_F(ShadowFormTest, AcceptsAStepThatJustFits)
{
    ExpectDragged({{{200, 50}, {300, 100}}, {{-100, -50}, {0, 0}}});
}

TEST_F(ShadowFormTest, StopsShortOfTheEdgeInsteadOfBeingPushedUpToIt)
{
    ExpectDragged({{{195, 0}, {295, 50}}, {{201, 0}, {295, 50}}, {{206, 0}, {300, 50}}});
}

TEST_F(ShadowFormTest, AcceptsOrRefusesEachAxisAloneInACorner)
{
    ExpectDragged({{{190, 45}, {290, 95}}, {{198, 53}, {298, 95}}, {{206, 58}, {298, 100}}, {{214, 66}, {298, 100}}});
}

TEST_F(ShadowFormTest, TheFirstStepCountsFromWhereTheDragBeforeEnded)
{
    // Before the first drag the last position is the corner.
    Press(*form, Inside);
    MoveHeld(*form, Inside + QPoint(10, 0));
    ExpectCrop(100 + 160, 50);
    MoveHeld(*form, Inside + QPoint(0, 20));
    ExpectCrop(250, 70);
    Release(*form, Inside + QPoint(0, 20));

    const QPoint next(300, 120);
    Press(*form, next);
    MoveHeld(*form, next - QPoint(20, 0));
    // (280, 120) less (150, 120): past the right edge.
    ExpectCrop(250, 70);
    Release(*form, next - QPoint(20, 0));
    EXPECT_EQ(changed->count(), 2);

    Press(*form, next);
    MoveHeld(*form, next + QPoint(0, 15));
    // (300, 135) less (280, 120).
    ExpectCrop(270, 85);
}

TEST_F(ShadowFormTest, NearThePressTheCropStaysButThePositionIsUpdated)
{
    ExpectDragged({{{20, 0}, {120, 50}}, {{3, 0}, {120, 50}}, {{25, 0}, {142, 50}}});
}

TEST_F(ShadowFormTest, ReportsADragWhoseStepsWereAllRefused)
{
    form->SetCropRect(QRectF(0.0, 0.0, 0.25, 1.0));
    PressAt(QPoint(50, 100));
    MoveHeld(*form, QPoint(50, 140));
    Release(*form, QPoint(50, 140));
    ASSERT_EQ(changed->count(), 1);
    EXPECT_EQ(changed->at(0).at(0).toRectF(), QRectF(0.0, 0.0, 0.25, 1.0));
}

TEST_F(ShadowFormTest, APictureWithoutSizeRefusesEveryStep)
{
    PressAt(Inside);
    form->GetPictureLabel()->setFixedSize(0, 0);
    MoveHeld(*form, Inside + QPoint(20, 0));
    EXPECT_EQ(form->GetCropRect(), Crop);
    Release(*form, Inside + QPoint(20, 0));
    EXPECT_EQ(changed->count(), 1);
}

TEST_F(ShadowFormTest, CanBeDraggedThroughTheWindowSystem)
{
    QWindow* const window = form->windowHandle();
    QTest::mouseMove(window, Inside);
    EXPECT_EQ(Cursor(), Qt::OpenHandCursor);
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, Inside);
    for (int step = 1; step <= 30; ++step) {
        QTest::mouseMove(window, Inside + QPoint(step, 0));
    }
    EXPECT_EQ(Cursor(), Qt::ClosedHandCursor);
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, Inside + QPoint(30, 0));
    ExpectCrop(121, 50);
    EXPECT_EQ(pressed->count(), 1);
    EXPECT_EQ(changed->count(), 1);
}
