#include <Tests/KrAutoReframe/Dialog/DialogFixture.h>

// Where the system has no file chooser of its own, the host's answers.

TEST_F(DialogTest, TheSystemsChooserReturnsPathsWithSlashes)
{
    recorders.chosen = QStringList{QStringLiteral("/v/a.mp4"), QStringLiteral("/v/b.mp4"), QStringLiteral("/v/c.mp4")};
    EXPECT_EQ(dialog->GetOpenFileNames(QStringLiteral("ignored"), QStringLiteral("/v"), L"Videos\0*.mp4\0",
                                       dialog.get(), true),
              recorders.chosen);
    ASSERT_EQ(recorders.choosers.size(), 1u);
    EXPECT_EQ(recorders.choosers.front().folder, QStringLiteral("/v"));
    EXPECT_EQ(recorders.choosers.front().filter, QStringLiteral("Videos(*.mp4;)"));
    EXPECT_NE(recorders.choosers.front().caption, QStringLiteral("ignored"));
    EXPECT_EQ(dialog->GetOpenFileNames(QString(), QStringLiteral("/v"), nullptr, nullptr, false),
              QStringList{QStringLiteral("/v/a.mp4")});
    recorders.chosen = QStringList{QStringLiteral("/a.mp4"), QStringLiteral("/b.mp4")};
    EXPECT_EQ(dialog->GetOpenFileNames(QString(), QString(), nullptr, nullptr, true), recorders.chosen);
    recorders.chosen.clear();
    EXPECT_TRUE(dialog->GetOpenFileNames(QString(), QString(), nullptr, nullptr, true).isEmpty());
}
