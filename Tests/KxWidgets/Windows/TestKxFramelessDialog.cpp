#include <KxWidgets/Windows/KxResizeGeometry.h>
#include <Tests/KxWidgets/Hand.h>

#include <KxWidgets/KxDialogButtonBar.h>
#include <KxWidgets/KxFramelessDialog.h>
#include <KxWidgets/KxLineEdit.h>
#include <KxWidgets/KxPushButton.h>
#include <KxWidgets/KxTopLevelWindowTitleBar.h>

#include <QLayout>
#include <QPointer>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace
{

class KxFramelessDialogTest : public testing::Test
{
protected:
    KxFramelessDialogTest() { dialog.resize(400, 300); }

    // The widget that a press at `position` would reach.
    static QWidget* At(QWidget& window, const QPoint& position)
    {
        QWidget* child = window.childAt(position);
        return child != nullptr ? child : &window;
    }

    static bool IsGrip(const QWidget* widget) { return widget->objectName() == QStringLiteral("KxResizeGrip"); }

    KxFramelessDialog dialog{QStringLiteral("Auto Reframe"), nullptr, false, true};
    KxTopLevelWindowTitleBar& bar = *dialog.GetTitleBar();
};

TEST_F(KxFramelessDialogTest, HasNoDesktopFrame)
{
    EXPECT_TRUE(dialog.windowFlags() & Qt::FramelessWindowHint);
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Auto Reframe"));
    EXPECT_EQ(bar.Title(), QStringLiteral("Auto Reframe"));
    dialog.SetTitleName(QStringLiteral("Export to MP4"), false);
    EXPECT_EQ(bar.Title(), QStringLiteral("Export to MP4"));
}

TEST_F(KxFramelessDialogTest, ContentIsReplacedAndTheOldOneDestroyed)
{
    QPointer<QWidget> first = new QWidget;
    QPointer<QWidget> second = new QWidget;
    dialog.SetContentWidget(first);
    dialog.SetContentWidget(second);
    dialog.SetBottomBarVisible(false);
    dialog.show();
    EXPECT_TRUE(first.isNull());
    ASSERT_FALSE(second.isNull());
    EXPECT_TRUE(second->isVisible());
    EXPECT_EQ(second->geometry(), QRect(1, 1 + bar.height(), 398, 300 - 2 - bar.height()));
}

TEST_F(KxFramelessDialogTest, PressesAtTheEdgesReachTheGrips)
{
    dialog.SetContentWidget(new QWidget);
    dialog.show();
    for (int x = 0; x < dialog.width(); x += 3) {
        for (int y = 0; y < dialog.height(); y += 3) {
            const Qt::Edges edges = KxResizeGeometry::EdgesAt({x, y}, dialog.size());
            if (edges != Qt::Edges()) {
                const QWidget* hit = At(dialog, {x, y});
                ASSERT_TRUE(IsGrip(hit)) << x << ' ' << y;
                EXPECT_EQ(hit->property("edges").toInt(), static_cast<int>(edges)) << x << ' ' << y;
                EXPECT_EQ(hit->cursor().shape(), KxResizeGeometry::CursorFor(edges));
            }
        }
    }
    EXPECT_FALSE(IsGrip(At(dialog, {200, 150})));
    EXPECT_FALSE(IsGrip(At(dialog, bar.GetButton(KxTopLevelWindowTitleBar::CloseButton)->geometry().center())));
}

TEST_F(KxFramelessDialogTest, FixedSizeHasNoGrips)
{
    KxFramelessDialog fixed(QStringLiteral("Box"), nullptr, true, true);
    fixed.resize(400, 300);
    fixed.show();
    EXPECT_FALSE(IsGrip(At(fixed, {0, 0})));
    EXPECT_FALSE(IsGrip(At(fixed, {399, 150})));
    fixed.GetTitleBar()->SetResizeble(true);
    EXPECT_TRUE(IsGrip(At(fixed, {399, 150})));
}

TEST_F(KxFramelessDialogTest, MaximisedHasNoGripsAndNoBorder)
{
    dialog.show();
    dialog.showMaximized();
    EXPECT_FALSE(IsGrip(At(dialog, {0, dialog.height() / 2})));
    EXPECT_EQ(dialog.layout()->contentsMargins(), QMargins());
    dialog.showNormal();
    EXPECT_TRUE(IsGrip(At(dialog, {0, dialog.height() / 2})));
    EXPECT_EQ(dialog.layout()->contentsMargins(), QMargins(1, 1, 1, 1));
}

TEST_F(KxFramelessDialogTest, DraggedCornerResizesWithinTheLimits)
{
    dialog.setMinimumSize(350, 250);
    dialog.show();
    dialog.move(100, 100);
    QWidget* corner = At(dialog, {399, 299});
    const QPoint inside = corner->mapFrom(&dialog, QPoint(399, 299));
    Hand::Press(*corner, inside);
    Hand::Drag(*corner, inside + QPoint(30, 20));
    EXPECT_EQ(dialog.geometry(), QRect(100, 100, 430, 320));
    Hand::Release(*corner, inside);
    QWidget* left = At(dialog, {0, 150});
    Hand::Press(*left, {0, 100});
    Hand::Drag(*left, {300, 100});
    EXPECT_EQ(dialog.geometry(), QRect(180, 100, 350, 320));
    Hand::Release(*left, {0, 100});
    Hand::Drag(*left, {-50, 100});
    EXPECT_EQ(dialog.width(), 350);
}

TEST_F(KxFramelessDialogTest, TitleBarMovesTheWindow)
{
    dialog.show();
    dialog.move(100, 100);
    Hand::Press(bar, {150, 20});
    Hand::Drag(bar, {152, 20});
    EXPECT_EQ(dialog.pos(), QPoint(100, 100));
    Hand::Drag(bar, {180, 60});
    EXPECT_EQ(dialog.pos(), QPoint(130, 140));
    Hand::Release(bar, {150, 20});
    Hand::Drag(bar, {200, 20});
    EXPECT_EQ(dialog.pos(), QPoint(130, 140));
}

TEST_F(KxFramelessDialogTest, DoubleClickMaximisesAResizableWindow)
{
    dialog.show();
    Hand::Send(bar, QEvent::MouseButtonDblClick, {150, 20}, Qt::LeftButton, Qt::LeftButton);
    EXPECT_TRUE(dialog.isMaximized());
    Hand::Send(bar, QEvent::MouseButtonDblClick, {150, 20}, Qt::LeftButton, Qt::LeftButton);
    EXPECT_FALSE(dialog.isMaximized());
    bar.SetResizeble(false);
    Hand::Send(bar, QEvent::MouseButtonDblClick, {150, 20}, Qt::LeftButton, Qt::LeftButton);
    EXPECT_FALSE(dialog.isMaximized());
}

TEST_F(KxFramelessDialogTest, ButtonsAreShownByTheirBitsInOrder)
{
    QAbstractButton* minimise = bar.GetButton(4);
    QAbstractButton* maximise = bar.GetButton(16);
    QAbstractButton* close = bar.GetButton(32);
    ASSERT_TRUE(minimise && maximise && close);
    bar.SetButtons(52);
    dialog.show();
    EXPECT_TRUE(minimise->isVisible() && maximise->isVisible() && close->isVisible());
    EXPECT_LT(minimise->x(), maximise->x());
    EXPECT_LT(maximise->x(), close->x());
    bar.SetResizeble(false);
    EXPECT_FALSE(maximise->isVisible());
    bar.SetResizeble(true);
    bar.SetButtons(32);
    EXPECT_FALSE(minimise->isVisible() || maximise->isVisible());
    EXPECT_TRUE(close->isVisible());
    for (const QAbstractButton* button : {minimise, maximise, close}) {
        EXPECT_FALSE(button->accessibleName().isEmpty());
        EXPECT_TRUE(button->focusPolicy() & Qt::TabFocus);
    }
}

TEST_F(KxFramelessDialogTest, ButtonsDoWhatTheySay)
{
    bar.SetButtons(52);
    dialog.show();
    bar.GetButton(16)->click();
    EXPECT_TRUE(dialog.isMaximized());
    EXPECT_EQ(bar.GetButton(16)->accessibleName(), QStringLiteral("Restore"));
    bar.GetButton(16)->click();
    EXPECT_FALSE(dialog.isMaximized());
    EXPECT_EQ(bar.GetButton(16)->accessibleName(), QStringLiteral("Maximize"));
    bar.GetButton(4)->click();
    EXPECT_TRUE(dialog.isMinimized());
    dialog.showNormal();
    QSignalSpy rejected(&dialog, &QDialog::rejected);
    bar.GetButton(32)->click();
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(rejected.count(), 1);
}

TEST_F(KxFramelessDialogTest, OpensInTheMiddleOfItsParent)
{
    QWidget parent;
    parent.setGeometry(50, 60, 600, 400);
    parent.show();
    KxFramelessDialog child(QStringLiteral("Box"), &parent, true, true);
    child.resize(200, 100);
    child.show();
    EXPECT_EQ(child.geometry().center(), parent.geometry().center());
}

TEST_F(KxFramelessDialogTest, FocusStartsInTheContentAndTabReachesEverything)
{
    auto* content = new QWidget;
    auto* edit = KxLineEdit::creartNormalLineEdit(content, 24);
    dialog.SetContentWidget(content);
    KxPushButton* button = dialog.GetButtonBar()->AddPushButton_R(0, -1);
    bar.SetButtons(52);
    ASSERT_TRUE(Hand::ShowActive(dialog));
    EXPECT_EQ(dialog.focusWidget(), edit);
    QList<QWidget*> reached;
    for (int step = 0; step < 5; ++step) {
        reached.append(dialog.focusWidget());
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(dialog.focusWidget(), edit);
    EXPECT_TRUE(reached.contains(button));
    for (const int bit : {4, 16, 32}) {
        EXPECT_TRUE(reached.contains(bar.GetButton(bit)));
    }
}

TEST_F(KxFramelessDialogTest, ReturnInAFieldPressesThePrimaryButton)
{
    auto* content = new QWidget;
    auto* edit = KxLineEdit::creartNormalLineEdit(content, 24);
    dialog.SetContentWidget(content);
    QSignalSpy clicked(dialog.GetButtonBar()->AddPushButton_R(0, -1), &QAbstractButton::clicked);
    ASSERT_TRUE(Hand::ShowActive(dialog));
    QTest::keyClick(edit, Qt::Key_Return);
    EXPECT_EQ(clicked.count(), 1);
    EXPECT_TRUE(dialog.isVisible());
}

TEST_F(KxFramelessDialogTest, ReturnWithoutADefaultButtonPressesNothing)
{
    auto* content = new QWidget;
    auto* edit = KxLineEdit::creartNormalLineEdit(content, 24);
    dialog.SetContentWidget(content);
    QSignalSpy clicked(dialog.GetButtonBar()->AddPushButton_R(1, -1), &QAbstractButton::clicked);
    ASSERT_TRUE(Hand::ShowActive(dialog));
    QTest::keyClick(edit, Qt::Key_Return);
    EXPECT_EQ(clicked.count(), 0);
}

TEST_F(KxFramelessDialogTest, EscapeRejects)
{
    QSignalSpy rejected(&dialog, &QDialog::rejected);
    dialog.show();
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_EQ(rejected.count(), 1);
}

TEST_F(KxFramelessDialogTest, CornersAreRoundOverTheContent)
{
    auto* content = new QWidget;
    content->setAutoFillBackground(true);
    dialog.SetContentWidget(content);
    dialog.SetBottomBarVisible(false);
    dialog.show();
    QImage picture(dialog.size(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    dialog.render(&picture, QPoint(), QRegion(), QWidget::DrawChildren | QWidget::DrawWindowBackground);
    for (const QPoint& corner : {QPoint(0, 0), QPoint(399, 0), QPoint(0, 299), QPoint(399, 299)}) {
        EXPECT_LT(qAlpha(picture.pixel(corner)), 16);
    }
    EXPECT_EQ(qAlpha(picture.pixel(200, 150)), 255);
    EXPECT_EQ(qAlpha(picture.pixel(0, 150)), 255);
}

} // namespace
