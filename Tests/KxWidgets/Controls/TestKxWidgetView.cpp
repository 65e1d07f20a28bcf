#include <Tests/KxWidgets/Hand.h>

#include <KxWidgets/KxFramelessDialog.h>
#include <KxWidgets/KxMainFormMinimizeMessage.h>
#include <KxWidgets/KxWidgetView.h>

#include <gtest/gtest.h>

namespace
{

class OtherMessage : public KxSceneMessage
{
};

TEST(KxWidgetViewTest, MessageMinimisesItsWindow)
{
    KxWidgetView view;
    view.show();
    ASSERT_FALSE(view.isMinimized());
    EXPECT_TRUE(KxUIView::sendMessageToScene(view.scene(), KxMainFormMinimizeMessage(0)));
    EXPECT_TRUE(view.isMinimized());
}

TEST(KxWidgetViewTest, OtherMessagesAndWindowsAreIgnored)
{
    KxWidgetView view;
    view.show();
    EXPECT_FALSE(KxUIView::sendMessageToScene(view.scene(), OtherMessage()));
    EXPECT_FALSE(KxUIView::sendMessageToScene(view.scene(), KxMainFormMinimizeMessage(1)));
    EXPECT_FALSE(KxUIView::sendMessageToScene(nullptr, KxMainFormMinimizeMessage(0)));
    EXPECT_FALSE(view.isMinimized());
}

TEST(KxWidgetViewTest, MinimisedDialogIsRestoredWithItsParent)
{
    KxWidgetView view;
    view.show();
    KxFramelessDialog dialog(QStringLiteral("Auto Reframe"), &view, false, true);
    dialog.show();
    dialog.showMinimized();
    KxUIView::sendMessageToScene(view.scene(), KxMainFormMinimizeMessage(0));
    ASSERT_TRUE(dialog.isMinimized());
    view.showNormal();
    EXPECT_FALSE(dialog.isMinimized());
}

} // namespace
