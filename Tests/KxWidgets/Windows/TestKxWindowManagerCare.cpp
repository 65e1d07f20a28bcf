#include <KxWidgets/Windows/KxWindowManagerCare.h>
#include <Tests/KxWidgets/Hand.h>

#include <KxWidgets/KxFramelessDialog.h>

#include <QPushButton>
#include <QWindow>

#include <gtest/gtest.h>

namespace
{

/// The names of the windows that were raised, in order.
class Raised : public QObject
{
public:
    Raised() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::ZOrderChange) {
            names += watched->objectName();
        }
        return false;
    }

    QStringList names;
};

class KxWindowManagerCareTest : public testing::Test
{
protected:
    KxWindowManagerCareTest()
    {
        overlay.setObjectName(QStringLiteral("overlay"));
        overlay.setAttribute(Qt::WA_ShowWithoutActivating);
        box.setObjectName(QStringLiteral("box"));
        boxOverBox.setObjectName(QStringLiteral("boxOverBox"));
        for (KxFramelessDialog* window : {&dialog, &box, &boxOverBox}) {
            new KxWindowManagerCare(*window);
        }
        dialog.SetContentWidget(content);
        dialog.resize(400, 300);
    }

    static void Show(QWidget& window)
    {
        ASSERT_TRUE(Hand::ShowActive(window));
        QApplication::processEvents();
    }

    static QStringList RaisedByPressOn(QWidget& window)
    {
        Raised raised;
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, window.rect().center());
        raised.names.removeDuplicates();
        return raised.names;
    }

    KxFramelessDialog dialog{QStringLiteral("Dialog"), nullptr, false, true};
    QPushButton* content = new QPushButton;
    QWidget overlay{content, Qt::Tool | Qt::FramelessWindowHint};
    KxFramelessDialog box{QStringLiteral("Box"), &dialog, true, true};
    KxFramelessDialog boxOverBox{QStringLiteral("Box"), &box, true, true};
};

TEST(KxWindowManagerCarePlatformTest, OnlyDialogsUnderX11AreCorrected)
{
    EXPECT_TRUE(KxWindowManagerCare::IsNeededOn(QStringLiteral("xcb")));
    for (const char* platform : {"windows", "wayland", "cocoa", "offscreen"}) {
        EXPECT_FALSE(KxWindowManagerCare::IsNeededOn(QString::fromLatin1(platform)));
    }
    const KxFramelessDialog dialog(QStringLiteral("Dialog"), nullptr, false, true);
    const bool isCorrected = dialog.findChild<KxWindowManagerCare*>() != nullptr;
    EXPECT_EQ(isCorrected, QGuiApplication::platformName() == QStringLiteral("xcb"));
}

TEST_F(KxWindowManagerCareTest, ADialogInTheCornerIsMovedBackToItsPosition)
{
    Show(dialog);
    const QPoint place = dialog.pos();
    ASSERT_FALSE(place.isNull());
    dialog.move(0, 0);
    QApplication::processEvents();
    EXPECT_EQ(dialog.pos(), place);
}

TEST_F(KxWindowManagerCareTest, ADialogInTheCornerIsMovedBackBeforeItIsActive)
{
    dialog.show();
    const QPoint place = dialog.pos();
    ASSERT_FALSE(place.isNull());
    dialog.move(0, 0);
    QApplication::processEvents();
    EXPECT_EQ(dialog.pos(), place);
}

TEST_F(KxWindowManagerCareTest, EveryOtherPositionIsKept)
{
    Show(dialog);
    dialog.move(20, 0);
    QApplication::processEvents();
    EXPECT_EQ(dialog.pos(), QPoint(20, 0));
}

TEST_F(KxWindowManagerCareTest, APressOnAControlRaisesTheOverlay)
{
    Show(dialog);
    overlay.show();
    EXPECT_EQ(RaisedByPressOn(dialog), QStringList{QStringLiteral("overlay")});
    overlay.hide();
    EXPECT_EQ(RaisedByPressOn(dialog), QStringList());
}

TEST_F(KxWindowManagerCareTest, ABoxStaysAboveTheOverlay)
{
    Show(dialog);
    overlay.show();
    Show(box);
    EXPECT_EQ(RaisedByPressOn(box), QStringList({QStringLiteral("overlay"), QStringLiteral("box")}));
}

TEST_F(KxWindowManagerCareTest, ABoxAboveABoxStaysAboveBoth)
{
    Show(dialog);
    overlay.show();
    Show(box);
    Show(boxOverBox);
    EXPECT_EQ(RaisedByPressOn(boxOverBox),
              QStringList({QStringLiteral("overlay"), QStringLiteral("box"), QStringLiteral("boxOverBox")}));
}

} // namespace
