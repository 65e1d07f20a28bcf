#include <Apps/AutoReframe/Help/AboutDialog.h>
#include <Apps/AutoReframe/Help/HelpDialog.h>
#include <KxWidgets/KxUIStyle.h>

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QScrollBar>
#include <QTest>
#include <QTextBrowser>

#include <gtest/gtest.h>

namespace
{

/// The keys that the dialog shows for an action.
QString KeyOf(const HelpDialog& dialog, const QString& action)
{
    const auto labels = dialog.findChildren<QLabel*>(QStringLiteral("HelpDialog_action"));
    const auto keys = dialog.findChildren<QLabel*>(QStringLiteral("HelpDialog_key"));
    for (int i = 0; i < labels.size() && i < keys.size(); ++i) {
        if (labels.at(i)->text() == action) {
            return keys.at(i)->text();
        }
    }
    return QStringLiteral("none");
}

TEST(HelpDialogTest, ListsTheShortcutsOfBothWindows)
{
    const HelpDialog dialog(nullptr);
    EXPECT_EQ(KeyOf(dialog, QStringLiteral("Import videos")), QStringLiteral("Ctrl+O"));
    EXPECT_EQ(KeyOf(dialog, QStringLiteral("Show this list")), QStringLiteral("F1"));
    EXPECT_EQ(KeyOf(dialog, QStringLiteral("Play, pause")), QStringLiteral("Space"));
    EXPECT_EQ(KeyOf(dialog, QStringLiteral("Next doubtful shot")), QStringLiteral("N"));
}

TEST(HelpDialogTest, EscapeAndTheButtonCloseIt)
{
    HelpDialog dialog(nullptr);
    dialog.show();
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
    dialog.show();
    dialog.findChild<QAbstractButton*>(QStringLiteral("HelpDialog_close"))->click();
    EXPECT_FALSE(dialog.isVisible());
}

TEST(HelpDialogTest, TheButtonEndsWhereTheKeysEnd)
{
    HelpDialog dialog(nullptr);
    dialog.show();
    const auto right = [&dialog](const QWidget* widget) {
        return widget->mapTo(&dialog, widget->rect().topRight()).x();
    };
    EXPECT_EQ(right(dialog.findChild<QAbstractButton*>(QStringLiteral("HelpDialog_close"))),
              right(dialog.findChildren<QLabel*>(QStringLiteral("HelpDialog_key")).last()));
}

TEST(AboutDialogTest, NamesItsVersionTheLibrariesAndTheLicences)
{
    const AboutDialog dialog({QStringLiteral("Qt 5.15"), QStringLiteral("SQLite 3.40")}, nullptr);
    EXPECT_EQ(dialog.findChild<QLabel*>(QStringLiteral("AboutDialog_name"))->text(),
              QStringLiteral("Auto Reframe " KR_VERSION));
    EXPECT_EQ(dialog.findChild<QLabel*>(QStringLiteral("AboutDialog_versions"))->text(),
              QStringLiteral("Qt 5.15 · SQLite 3.40"));
    QFile licences(QStringLiteral(LICENCES));
    ASSERT_TRUE(licences.open(QIODevice::ReadOnly));
    const QString text = dialog.findChild<QTextBrowser*>()->toPlainText().remove(QChar(0x200b));
    EXPECT_TRUE(text.contains(QLatin1String("Apache-2.0")));
    EXPECT_TRUE(text.startsWith(QString::fromUtf8(licences.readLine()).mid(2).trimmed()));
}

TEST(AboutDialogTest, TheLicencesDoNotScrollSideways)
{
    // The style has an influence on the room for the text.
    KxUIStyle::Apply(*qApp);
    AboutDialog dialog({}, nullptr);
    dialog.show();
    auto* const licences = dialog.findChild<QTextBrowser*>();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
    EXPECT_GT(licences->verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(licences->horizontalScrollBar()->maximum(), 0);
}

} // namespace
