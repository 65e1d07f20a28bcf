#include <Apps/AutoReframe/Exports/ExportQueue.h>
#include <Tests/AutoReframe/RestoredWindowTest.h>

#include <QLabel>

namespace
{

class TestRestoredExports : public RestoredWindowTest
{
protected:
    static ExportRequest Request(const QString& path)
    {
        ExportRequest request;
        request.source.path = QStringLiteral("/clips/a.mp4");
        request.settings.outputPath = path;
        request.settings.resolution = QSize(608, 1080);
        return request;
    }
    void ExportInDialog(Run& run, const QStringList& names) const
    {
        run.backend->inDialog = [this, names](const DialogCallbacks& callbacks) {
            for (const QString& name : names) {
                callbacks.exportRequested(Request(m_folder.filePath(name)));
            }
        };
        run.Button("TopBar_reframe")->click();
    }
};

} // namespace

TEST_F(TestRestoredExports, TheHintOfTheExportsDoesNotFlashBeforeTheyAreRestored)
{
    LibraryStore store(Data(), nullptr);
    MediaBackendLoader loader(
        [] { return KxResult<std::shared_ptr<MediaBackend>>(std::make_shared<FakeMediaBackend>()); }, nullptr);
    MainWindow window(loader, store);
    window.show();
    const auto* const hint = window.findChild<QLabel*>(QStringLiteral("ExportPanel_hint"));
    EXPECT_FALSE(hint->isVisible());
    store.Open();
    EXPECT_TRUE(QTest::qWaitFor([hint] { return hint->isVisible(); }, 30000));
}

TEST_F(TestRestoredExports, ExportsOfAKilledRunAreOfferedAndResumed)
{
    {
        Run killed(Data());
        killed.window.Open({Clip(QStringLiteral("a.mp4"))});
        ASSERT_TRUE(killed.WaitForState(0, State::Open));
        ExportInDialog(killed, {QStringLiteral("1.mp4"), QStringLiteral("2.mp4")});
        killed.window.Interrupt();
    }
    Run run(Data());
    const auto* const bar = run.window.findChild<QWidget*>(QStringLiteral("ExportPanel_resumeBar"));
    EXPECT_TRUE(bar->isVisible());
    EXPECT_EQ(run.window.Exports().InterruptedCount(), 2);
    EXPECT_EQ(run.window.Exports().UnfinishedCount(), 0);
    run.Button("ExportPanel_resume")->click();
    EXPECT_FALSE(bar->isVisible());
    ASSERT_NE(run.backend->task, nullptr);
    EXPECT_EQ(run.backend->task->request.settings.outputPath, m_folder.filePath(QStringLiteral("1.mp4")));
    EXPECT_EQ(run.backend->task->request.settings.resolution, QSize(608, 1080));
    EXPECT_EQ(run.window.Exports().UnfinishedCount(), 2);
}

TEST_F(TestRestoredExports, PlannedExportsOfAKilledRunAreAnalyzedAgainAndSummedUp)
{
    const QString clip = Clip(QStringLiteral("a.mp4"));
    PlannedExport planned;
    planned.path = clip;
    planned.plan = {QSize(4, 5), 24, 1080};
    planned.frames = 1260;
    {
        Run killed(Data());
        for (const char* const name : {"1.mp4", "2.mp4"}) {
            planned.outputPath = m_folder.filePath(QLatin1String(name));
            killed.window.Exports().AddPlanned(planned);
        }
        killed.backend->finding->EndWell({40});
        ASSERT_TRUE(QTest::qWaitFor([&] { return killed.backend->task != nullptr; }, 30000));
        killed.backend->task->EndWell();
        ASSERT_TRUE(QTest::qWaitFor([&] { return killed.window.Exports().Summary().done == 1; }, 30000));
        killed.window.Interrupt();
    }
    Run run(Data());
    const auto* const text = run.window.findChild<QLabel*>(QStringLiteral("QueueBar_text"));
    EXPECT_EQ(text->text(), QStringLiteral("1 done, 1 to look at"));
    EXPECT_EQ(run.window.Exports().InterruptedCount(), 1);
    run.Button("ExportPanel_resume")->click();
    ASSERT_NE(run.backend->finding, nullptr);
    EXPECT_EQ(run.backend->finding->request.path, clip);
    EXPECT_TRUE(run.backend->finding->request.plan == planned.plan);
    EXPECT_EQ(text->text(), QStringLiteral("1 of 2 done"));
}

TEST_F(TestRestoredExports, DiscardedExportsDoNotComeBack)
{
    {
        Run killed(Data());
        killed.window.Open({Clip(QStringLiteral("a.mp4"))});
        ASSERT_TRUE(killed.WaitForState(0, State::Open));
        ExportInDialog(killed, {QStringLiteral("1.mp4")});
        killed.window.Interrupt();
    }
    {
        Run run(Data());
        run.Button("ExportPanel_discard")->click();
        EXPECT_EQ(run.window.Exports().InterruptedCount(), 0);
    }
    Run run(Data());
    EXPECT_TRUE(run.window.findChild<QWidget*>(QStringLiteral("ExportPanel_hint"))->isVisible());
}

TEST_F(TestRestoredExports, FinishedAndCancelledExportsComeBackAsTheyWere)
{
    {
        Run run(Data());
        run.window.Open({Clip(QStringLiteral("a.mp4"))});
        ASSERT_TRUE(run.WaitForState(0, State::Open));
        ExportInDialog(run, {QStringLiteral("1.mp4"), QStringLiteral("2.mp4")});
        Clip(QStringLiteral("1.mp4"), QByteArray(2048, 'x'));
        run.backend->task->EndWell();
        ASSERT_TRUE(QTest::qWaitFor([&] { return run.window.Exports().FinishedCount() == 1; }, 30000));
        EXPECT_TRUE(run.window.close());
    }
    EXPECT_EQ(m_boxes.size(), 1);
    Run run(Data());
    QStringList statuses;
    for (const QLabel* const label : run.window.findChildren<QLabel*>(QStringLiteral("ExportCard_status"))) {
        statuses += label->text();
    }
    EXPECT_EQ(statuses, (QStringList{QStringLiteral("Done · 2 KB"), QStringLiteral("Cancelled")}));
    EXPECT_FALSE(run.window.findChild<QWidget*>(QStringLiteral("ExportPanel_resumeBar"))->isVisible());
}
