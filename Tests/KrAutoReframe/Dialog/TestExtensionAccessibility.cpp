#include <Tests/KrAutoReframe/Dialog/ExtendedDialogTest.h>

#include <QAccessible>
#include <QMenu>
#include <QToolButton>

// Whoever cannot see or cannot use a mouse reaches and understands what the extensions add, too.

namespace
{

class ExtensionAccessibilityTest : public ExtendedDialogTest
{
protected:
    ExtensionAccessibilityTest()
    {
        FakeHost::OfferChoices();
        MakeExtended();
        Load(Video(clip));
        Analyse();
    }
    ~ExtensionAccessibilityTest() override { dialog.reset(); }

    static QString NameOf(QObject& object)
    {
        QAccessibleInterface* const accessible = QAccessible::queryAccessibleInterface(&object);
        return accessible != nullptr ? accessible->text(QAccessible::Name) : QString();
    }
};

} // namespace

TEST_F(ExtensionAccessibilityTest, EveryControlIsNamed)
{
    int controls = 0;
    for (QWidget* const widget : dialog->findChildren<QWidget*>()) {
        if (qobject_cast<QAbstractButton*>(widget) != nullptr) {
            ++controls;
            EXPECT_FALSE(NameOf(*widget).isEmpty()) << widget->objectName().toStdString();
        }
    }
    EXPECT_GT(controls, 15);
    EXPECT_EQ(NameOf(view->PlayerWidget()), QStringLiteral("Picture"));
}

TEST_F(ExtensionAccessibilityTest, EveryControlOfTheExtensionsIsReachedByTheKeyboard)
{
    for (const char* const name : {"KrAutoReframe_previousDoubt", "KrAutoReframe_nextDoubt", "KrAutoReframe_view"}) {
        EXPECT_NE(BarButton(name).focusPolicy() & Qt::TabFocus, 0) << name;
        EXPECT_FALSE(BarButton(name).toolTip().isEmpty()) << name;
    }
    const QAbstractButton& show = PanelButton("KrAutoReframe_showInFolder");
    EXPECT_NE(show.focusPolicy() & Qt::TabFocus, 0);
    EXPECT_FALSE(show.toolTip().isEmpty());
    EXPECT_NE(view->PlayerWidget().focusPolicy() & Qt::TabFocus, 0);
}

TEST_F(ExtensionAccessibilityTest, TheEntriesOfTheViewMenuAreNamedAndExplained)
{
    const auto* const menu = view->findChild<QMenu*>(QStringLiteral("KrAutoReframe_viewMenu"));
    ASSERT_NE(menu, nullptr);
    int entries = 0;
    for (const QAction* const action : menu->actions()) {
        if (!action->isSeparator()) {
            ++entries;
            EXPECT_FALSE(action->text().isEmpty());
            EXPECT_NE(action->toolTip(), action->text());
        }
    }
    EXPECT_EQ(entries, 4);
}
