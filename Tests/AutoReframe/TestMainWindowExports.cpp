#include <Tests/AutoReframe/MainWindowTest.h>

#include <QApplication>
#include <QProgressBar>

TEST_F(TestMainWindow, ACardShowsTheStatesOfItsExport)
{
    Open({QStringLiteral("a.mp4")});
    ASSERT_TRUE(WaitUntilUsable());
    ExportInDialog(QStringLiteral("out.mp4"));
    EXPECT_EQ(Text("ExportCard_name"), QStringLiteral("out.mp4"));
    EXPECT_EQ(Text("ExportCard_size"), QStringLiteral("608 × 1080"));
    m_backend->task->callbacks.progress(6250);
    ASSERT_TRUE(WaitForCard(QStringLiteral("62 %")));
    EXPECT_EQ(Child<QProgressBar>("ExportCard_progress")->value(), 6250);

    QFile written(m_folder.filePath(QStringLiteral("out.mp4")));
    ASSERT_TRUE(written.open(QIODevice::WriteOnly) && written.resize(34LL * 1024 * 1024));
    m_backend->task->EndWell();
    ASSERT_TRUE(WaitForCard(QStringLiteral("Done · 34 MB")));
    EXPECT_FALSE(Button("ExportCard_cancel")->isVisible());
    Button("ExportCard_show")->click();
    EXPECT_EQ(m_fileManager.shown, QStringList(m_folder.path()));
    Button("ExportPanel_clear")->click();
    EXPECT_TRUE(Child<QLabel>("ExportPanel_hint")->isVisible());
}

TEST_F(TestMainWindow, CardsDoNotMoveWhenTheFirstExportEnds)
{
    Open({QStringLiteral("a.mp4")});
    ASSERT_TRUE(WaitUntilUsable());
    ExportInDialog(QStringLiteral("out.mp4"));
    QApplication::sendPostedEvents();
    const QPoint before = Child<QWidget>("ExportCard")->mapTo(m_window.get(), QPoint());
    m_backend->task->EndWell();
    ASSERT_TRUE(QTest::qWaitFor([&] { return Button("ExportPanel_clear")->isVisible(); }, 10000));
    QApplication::sendPostedEvents();
    EXPECT_EQ(Child<QWidget>("ExportCard")->mapTo(m_window.get(), QPoint()), before);
}

TEST_F(TestMainWindow, AFailedExportShowsItsReasonAndCanBeRetried)
{
    Open({QStringLiteral("a.mp4")});
    ASSERT_TRUE(WaitUntilUsable());
    ExportInDialog(QStringLiteral("out.mp4"));
    m_backend->task->End({KxOutcome::Failed, QStringLiteral("The disk is full."), QString(), QString()});
    ASSERT_TRUE(WaitForCard(QStringLiteral("The disk is full.")));
    EXPECT_EQ(Child<QLabel>("ExportCard_status")->property("textRole").toString(), QStringLiteral("error"));
    Button("ExportCard_retry")->click();
    EXPECT_NE(m_backend->task, nullptr);
    EXPECT_TRUE(WaitForCard(QStringLiteral("0 %")));
}

TEST_F(TestMainWindow, TheCrossCancelsAnExport)
{
    Open({QStringLiteral("a.mp4")});
    ASSERT_TRUE(WaitUntilUsable());
    ExportInDialog(QStringLiteral("out.mp4"));
    Button("ExportCard_cancel")->click();
    EXPECT_TRUE(WaitForCard(QStringLiteral("Cancelled")));
    EXPECT_TRUE(Button("ExportCard_retry")->isVisible());
}

TEST_F(TestMainWindow, QuittingAsksWhileExportsRun)
{
    Open({QStringLiteral("a.mp4")});
    ASSERT_TRUE(WaitUntilUsable());
    ExportInDialog(QStringLiteral("out.mp4"));
    EXPECT_FALSE(m_window->close());
    EXPECT_TRUE(m_window->isVisible());
    EXPECT_EQ(m_boxes.size(), 1);
    m_answer = true;
    EXPECT_TRUE(m_window->close());
    EXPECT_TRUE(m_backend->task->isCancelled);
}

TEST_F(TestMainWindow, QuittingWithoutExportsAsksNothing)
{
    EXPECT_TRUE(m_window->close());
    EXPECT_TRUE(m_boxes.isEmpty());
}
