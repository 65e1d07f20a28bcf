#include <Tests/AutoReframe/RestoredWindowTest.h>

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QTimer>

#include <functional>

namespace
{

class TestRecentMenu : public RestoredWindowTest
{
protected:
    /// What the menu offers to open again.
    static QStringList Recent(
        Run& run, const std::function<void(const QMenu& recent)>& choose = [](const QMenu&) {})
    {
        QStringList texts;
        QTimer::singleShot(0, &run.window, [&] {
            auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_NE(menu, nullptr);
            const auto* const recent = menu->findChild<QMenu*>(QStringLiteral("RecentMenu"));
            for (QAction* const action : recent->actions()) {
                texts += action->isSeparator() ? QStringList() : QStringList(action->text());
            }
            choose(*recent);
            menu->close();
        });
        run.Button("TopBar_menu")->click();
        return texts;
    }
};

} // namespace

TEST_F(TestRecentMenu, OfAnImportedFolderTheMenuListsTheFolder)
{
    const QString folder = QFileInfo(Clip(QStringLiteral("trip/a.mp4"))).path();
    ImportAndQuit({folder});
    Run run(Data());
    EXPECT_EQ(Recent(run), QStringList(QStringLiteral("trip")));
}

TEST_F(TestRecentMenu, AVideoOfAFolderThatIsImportedKeepsItsPlaceInTheMenu)
{
    const QString first = Clip(QStringLiteral("trip/a.mp4"));
    ImportAndQuit({first, Clip(QStringLiteral("b.mp4"))});
    Run run(Data());
    const QStringList videos{QStringLiteral("b.mp4"), QStringLiteral("a.mp4")};
    EXPECT_EQ(Recent(run), videos);
    run.window.Open({QFileInfo(first).path()});
    ASSERT_TRUE(QTest::qWaitFor([&] { return run.Selected() == QStringList(QStringLiteral("a.mp4")); }, 30000));
    EXPECT_EQ(Recent(run), videos + QStringList(QStringLiteral("trip")));
}

TEST_F(TestRecentMenu, AFolderThatHasNoVideosAnyMoreLeavesTheMenu)
{
    const QString clip = Clip(QStringLiteral("trip/a.mp4"));
    ImportAndQuit({QFileInfo(clip).path()});
    ASSERT_TRUE(QFile::remove(clip));
    Run run(Data());
    EXPECT_EQ(Recent(run), QStringList(QStringLiteral("trip")));
    run.window.Open({QFileInfo(clip).path()});
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_boxes.size() == 1; }, 30000));
    EXPECT_EQ(Recent(run), QStringList());
}

TEST_F(TestRecentMenu, TheMenuDoesNotListWhatWasRefused)
{
    {
        Run run(Data());
        run.window.Open({Clip(QStringLiteral("bad.mp4")), Clip(QStringLiteral("a.mp4"))});
        ASSERT_TRUE(QTest::qWaitFor([&] { return m_boxes.size() == 1; }, 30000));
        run.window.Open({QFileInfo(Clip(QStringLiteral("notes/a.txt"))).path()});
        ASSERT_TRUE(QTest::qWaitFor([&] { return m_boxes.size() == 2; }, 30000));
        EXPECT_EQ(Recent(run), QStringList(QStringLiteral("a.mp4")));
    }
    Run run(Data());
    EXPECT_EQ(Recent(run), QStringList(QStringLiteral("a.mp4")));
}

TEST_F(TestRecentMenu, AVideoThatIsRefusedLaterLeavesTheMenu)
{
    ImportAndQuit({Clip(QStringLiteral("a.mp4"))});
    {
        Run run(Data());
        run.View().selectAll();
        QTest::keyClick(&run.View(), Qt::Key_Delete);
        run.backend->refused = QStringLiteral("a.mp4");
        run.window.Open({Clip(QStringLiteral("a.mp4"))});
        ASSERT_TRUE(QTest::qWaitFor([&] { return !m_boxes.isEmpty(); }, 30000));
        EXPECT_EQ(Recent(run), QStringList());
    }
    Run run(Data());
    EXPECT_EQ(Recent(run), QStringList());
}

TEST_F(TestRecentMenu, TheMenuListsTheVideosUsedLast)
{
    ImportAndQuit({Clip(QStringLiteral("a.mp4")), Clip(QStringLiteral("b & c.mp4"))});
    Run run(Data());
    run.View().selectAll();
    QTest::keyClick(&run.View(), Qt::Key_Delete);
    ASSERT_TRUE(run.Cards().isEmpty());
    EXPECT_EQ(Recent(run, [](const QMenu& recent) { recent.actions().last()->trigger(); }),
              (QStringList{QStringLiteral("b && c.mp4"), QStringLiteral("a.mp4")}));
    EXPECT_EQ(run.Cards(), QStringList(QStringLiteral("a.mp4")));
}
