#include <Tests/KxWidgets/Hand.h>
#include <Tests/KxWidgets/ShownToolTip.h>

#include <KxWidgets/KxDialogButtonBar.h>
#include <KxWidgets/KxPushButton.h>
#include <KxWidgets/KxSwitchToolButton.h>
#include <KxWidgets/KxToggleSwitch.h>
#include <KxWidgets/KxToolButton.h>
#include <KxWidgets/KxToolTipHelper.h>

#include <QHelpEvent>
#include <QMenu>
#include <QSignalSpy>
#include <QToolTip>

#include <gtest/gtest.h>

#include <memory>

namespace
{

TEST(KxToolButtonTest, NameIsTheObjectNameAndIsNotShown)
{
    QWidget parent;
    KxToolButton* button = KxToolButton::CreateToolButton(&parent, QStringLiteral("KrAutoReframe_undo"));
    EXPECT_EQ(button->objectName(), QStringLiteral("KrAutoReframe_undo"));
    EXPECT_TRUE(button->text().isEmpty());
    EXPECT_TRUE(button->focusPolicy() & Qt::TabFocus);
}

TEST(KxToolButtonTest, AccessibleNameIsTheToolTipWithoutTheShortcut)
{
    QWidget parent;
    KxToolButton* button = KxToolButton::CreateToolButton(&parent, QString());
    button->setToolTip(QStringLiteral("Undo (Ctrl+Z)"));
    EXPECT_EQ(button->accessibleName(), QStringLiteral("Undo"));
    button->setToolTip(QStringLiteral("Redo ()"));
    EXPECT_EQ(button->accessibleName(), QStringLiteral("Redo"));
    button->setAccessibleName(QStringLiteral("Own"));
    button->setToolTip(QStringLiteral("Third (3)"));
    EXPECT_EQ(button->accessibleName(), QStringLiteral("Own"));
}

TEST(KxToolButtonTest, GlyphIsPaintedAndFollowsTheState)
{
    const auto button = std::unique_ptr<KxToolButton>(KxToolButton::CreateToolButton(nullptr, QString()));
    button->resize(28, 28);
    const QImage empty = button->grab().toImage();
    button->SetGlyph(QStringLiteral("undo"));
    const QImage normal = button->grab().toImage();
    EXPECT_NE(normal, empty);
    button->setEnabled(false);
    EXPECT_NE(button->grab().toImage(), normal);
}

TEST(KxToolButtonTest, LooksLeftByTheMouseWhenItsMenuClosesElsewhere)
{
    QWidget window;
    window.resize(400, 300);
    KxToolButton* button = KxToolButton::CreateToolButton(&window, QString());
    button->move(10, 10);
    QMenu menu;
    menu.addAction(QStringLiteral("Thirds"));
    button->setMenu(&menu);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    for (const bool ends : {true, false}) {
        QCursor::setPos(button->mapToGlobal(button->rect().center()));
        ASSERT_TRUE(QTest::qWaitFor([button] { return button->underMouse(); }));
        menu.popup(window.mapToGlobal(QPoint(200, 200)));
        if (ends) {
            QCursor::setPos(window.mapToGlobal(QPoint(300, 250)));
        }
        menu.close();
        EXPECT_EQ(button->underMouse(), !ends);
    }
}

TEST(KxToolButtonTest, ReturnAndSpacePressIt)
{
    const auto button = std::unique_ptr<KxToolButton>(KxToolButton::CreateToolButton(nullptr, QString()));
    QSignalSpy clicked(button.get(), &QAbstractButton::clicked);
    QTest::keyClick(button.get(), Qt::Key_Return);
    QTest::keyClick(button.get(), Qt::Key_Space);
    EXPECT_EQ(clicked.count(), 2);
}

TEST(KxSwitchToolButtonTest, EachFaceHasItsToolTip)
{
    QWidget parent;
    KxSwitchToolButton* button = KxSwitchToolButton::CreateSwitchToolButton(&parent, QStringLiteral("play"));
    button->AddTips({QStringLiteral("Play (Space)"), QStringLiteral("Pause (Space)")});
    EXPECT_EQ(button->toolTip(), QStringLiteral("Play (Space)"));
    button->SetFace(1);
    EXPECT_EQ(button->property("face").toInt(), 1);
    EXPECT_EQ(button->toolTip(), QStringLiteral("Pause (Space)"));
    EXPECT_EQ(button->accessibleName(), QStringLiteral("Pause"));
    button->AddTips({QStringLiteral("A"), QStringLiteral("B")});
    EXPECT_EQ(button->toolTip(), QStringLiteral("B"));
    button->SetFace(0);
    EXPECT_EQ(button->toolTip(), QStringLiteral("A"));
}

TEST(KxPushButtonTest, KindsAndHeights)
{
    QWidget parent;
    KxPushButton* primary = KxPushButton::CreatePrimaryButton(&parent, 32);
    KxPushButton* secondary = KxPushButton::CreateSecondaryButton(&parent, 24);
    EXPECT_EQ(primary->property("buttonKind").toString(), QStringLiteral("primary"));
    EXPECT_EQ(secondary->property("buttonKind").toString(), QStringLiteral("secondary"));
    EXPECT_EQ(primary->height(), 32);
    EXPECT_EQ(secondary->height(), 24);
}

TEST(KxPushButtonTest, WidthFollowsTheTextUnlessTurnedOff)
{
    QWidget parent;
    KxPushButton* button = KxPushButton::CreatePrimaryButton(&parent, 32);
    button->setText(QStringLiteral("Go"));
    const int narrow = button->minimumSizeHint().width();
    button->setText(QStringLiteral("Go on with the analysis"));
    EXPECT_GT(button->minimumSizeHint().width(), narrow);
    button->SetAutoResizeText(false);
    EXPECT_EQ(button->minimumSizeHint().width(), 0);
}

TEST(KxPushButtonTest, ReturnPressesItOnce)
{
    const auto button = std::unique_ptr<KxPushButton>(KxPushButton::CreateSecondaryButton(nullptr, 32));
    QSignalSpy clicked(button.get(), &QAbstractButton::clicked);
    QTest::keyClick(button.get(), Qt::Key_Return);
    EXPECT_EQ(clicked.count(), 1);
    EXPECT_FALSE(button->autoDefault());
}

TEST(KxToggleSwitchTest, ReportsEveryChangeAndOnlyChanges)
{
    KxToggleSwitch toggle(nullptr);
    toggle.setText(QStringLiteral("Adjust Frame"));
    toggle.resize(224, 20);
    toggle.show();
    QSignalSpy toggled(&toggle, &QAbstractButton::toggled);
    toggle.setChecked(true);
    toggle.setChecked(true);
    QTest::mouseClick(&toggle, Qt::LeftButton);
    QTest::keyClick(&toggle, Qt::Key_Space);
    ASSERT_EQ(toggled.count(), 3);
    EXPECT_TRUE(toggled.at(0).at(0).toBool());
    EXPECT_FALSE(toggled.at(1).at(0).toBool());
    EXPECT_TRUE(toggled.at(2).at(0).toBool());
    toggle.setEnabled(false);
    QTest::mouseClick(&toggle, Qt::LeftButton);
    EXPECT_EQ(toggled.count(), 3);
}

TEST(KxToggleSwitchTest, LooksDifferentInEveryState)
{
    KxToggleSwitch toggle(nullptr);
    toggle.resize(60, 20);
    const QImage off = toggle.grab().toImage();
    toggle.setChecked(true);
    const QImage on = toggle.grab().toImage();
    EXPECT_NE(on, off);
    toggle.setEnabled(false);
    EXPECT_NE(toggle.grab().toImage(), on);
}

TEST(KxToggleSwitchTest, IsWideEnoughForItsText)
{
    KxToggleSwitch toggle(nullptr);
    const int alone = toggle.sizeHint().width();
    toggle.setText(QStringLiteral("Adjust Frame"));
    EXPECT_GE(toggle.sizeHint().width(), alone + toggle.fontMetrics().horizontalAdvance(toggle.text()));
    EXPECT_EQ(toggle.sizeHint().height(), 20);
}

TEST(KxDialogButtonBarTest, ButtonsAreAtTheRightInTheGivenOrder)
{
    KxDialogButtonBar bar(nullptr);
    KxPushButton* last = bar.AddPushButton_R(0, -1);
    KxPushButton* first = bar.AddPushButton_R(1, 0);
    bar.resize(480, 56);
    bar.show();
    EXPECT_LT(first->x(), last->x());
    EXPECT_EQ(last->geometry().right(), 480 - 24 - 1);
    EXPECT_EQ(last->property("buttonKind").toString(), QStringLiteral("primary"));
    EXPECT_EQ(first->property("buttonKind").toString(), QStringLiteral("secondary"));
}

class KxToolTipHelperTest : public testing::Test
{
protected:
    ~KxToolTipHelperTest() override { QToolTip::hideText(); }

    static void Ask(QWidget& widget)
    {
        QHelpEvent event(QEvent::ToolTip, QPoint(1, 1), widget.mapToGlobal(QPoint(1, 1)));
        QApplication::sendEvent(&widget, &event);
    }
};

TEST_F(KxToolTipHelperTest, ShowsTheToolTipsOfChildrenMadeLater)
{
    QWidget bar;
    bar.installEventFilter(KxToolTipHelper::GetInstance());
    KxToolButton* button = KxToolButton::CreateToolButton(&bar, QString());
    button->setToolTip(QStringLiteral("Undo (Ctrl+Z)"));
    bar.show();
    Ask(*button);
    EXPECT_EQ(QToolTip::text(), QStringLiteral("Undo (Ctrl+Z)"));
}

TEST_F(KxToolTipHelperTest, ShowsTheToolTipOfADisabledButton)
{
    QWidget bar;
    bar.installEventFilter(KxToolTipHelper::GetInstance());
    KxToolButton* button = KxToolButton::CreateToolButton(&bar, QString());
    button->setToolTip(QStringLiteral("Backward (Left)"));
    button->setEnabled(false);
    bar.show();
    Ask(*button);
    EXPECT_EQ(QToolTip::text(), QStringLiteral("Backward (Left)"));
}

TEST_F(KxToolTipHelperTest, LongTextIsWrappedAndNotTakenForMarkup)
{
    QWidget bar;
    bar.installEventFilter(KxToolTipHelper::GetInstance());
    auto* child = new QWidget(&bar);
    child->setToolTip(QString(70, QLatin1Char('a')) + QStringLiteral(" & b"));
    bar.show();
    Ask(*child);
    EXPECT_TRUE(QToolTip::text().startsWith(QStringLiteral("<div>")));
    EXPECT_TRUE(QToolTip::text().contains(QStringLiteral("&amp; b")));
}

TEST_F(KxToolTipHelperTest, MarkupInATextIsShownAsItIs)
{
    QWidget bar;
    bar.installEventFilter(KxToolTipHelper::GetInstance());
    auto* child = new QWidget(&bar);
    bar.show();
    const QString shortName = QStringLiteral("<b>clip</b>.mp4");
    for (const QString& text : {shortName, shortName + QString(70, QLatin1Char('x'))}) {
        child->setToolTip(text);
        Ask(*child);
        EXPECT_EQ(ShownToolTip(), text);
    }
}

} // namespace
