#include <Tests/AutoReframe/Exports/ExportQueueTest.h>

#include <atomic>
#include <thread>

TEST_F(TestExportQueue, APlannedExportIsAnalyzedAndThenRendered)
{
    const int id = m_queue.AddPlanned(Plan(QStringLiteral("a.mp4"), QSize(4, 5)));
    EXPECT_EQ(StateOf(id), State::Analyzing);
    EXPECT_EQ(m_backend.finding->request.path, QStringLiteral("/clips/a.mp4"));
    EXPECT_EQ(m_backend.finding->request.plan.aspect, QSize(4, 5));
    EXPECT_EQ(m_backend.task, nullptr);
    m_backend.finding->EndWell({30, 90});
    ASSERT_TRUE(WaitFor(id, State::Running));
    EXPECT_EQ(m_backend.finding, nullptr);
    EXPECT_EQ(m_backend.task->request.source.path, QStringLiteral("/clips/a.mp4"));
    EXPECT_EQ(m_backend.task->request.settings.resolution, QSize(608, 1080));
    EXPECT_EQ(m_backend.task->request.settings.outputPath, QStringLiteral("/exports/a.mp4"));
    m_backend.task->EndWell();
    ASSERT_TRUE(WaitFor(id, State::Done));
    EXPECT_EQ(m_queue.Find(id)->shotsToLookAt, QList<uint>({30, 90}));
}

TEST_F(TestExportQueue, OneTaskRunsAtATimeWhateverItsKind)
{
    const int first = m_queue.AddPlanned(Plan(QStringLiteral("a.mp4")));
    const int second = m_queue.Add(Request(QStringLiteral("b.mp4")));
    EXPECT_EQ(StateOf(second), State::Waiting);
    m_backend.finding->EndWell();
    ASSERT_TRUE(WaitFor(first, State::Running));
    EXPECT_EQ(StateOf(second), State::Waiting);
    m_backend.task->EndWell();
    ASSERT_TRUE(WaitFor(second, State::Running));
}

TEST_F(TestExportQueue, AFailedAnalysisIsAFailedExportAndIsRetriedFromItsBeginning)
{
    const int id = m_queue.AddPlanned(Plan(QStringLiteral("a.mp4")));
    const int second = m_queue.AddPlanned(Plan(QStringLiteral("b.mp4")));
    FoundCrops failed;
    failed.message = QStringLiteral("Cannot reframe a.mp4: it is too short.");
    m_backend.finding->End(failed);
    ASSERT_TRUE(WaitFor(id, State::Failed));
    EXPECT_EQ(m_queue.Find(id)->message, failed.message);
    EXPECT_EQ(StateOf(second), State::Analyzing);
    m_queue.RetryFailed();
    EXPECT_EQ(StateOf(id), State::Waiting);
    m_queue.Cancel(second);
    ASSERT_TRUE(WaitFor(id, State::Analyzing));
    EXPECT_EQ(m_backend.findings, 3);
}

TEST_F(TestExportQueue, AnAnalysisCanBeCancelled)
{
    const int id = m_queue.AddPlanned(Plan(QStringLiteral("a.mp4")));
    m_queue.Cancel(id);
    EXPECT_EQ(StateOf(id), State::Cancelling);
    EXPECT_TRUE(m_backend.finding->isCancelled);
    ASSERT_TRUE(WaitFor(id, State::Cancelled));
    EXPECT_TRUE(m_queue.Find(id)->message.isEmpty());
}

TEST_F(TestExportQueue, AnAnalysisThatEndsWhileItIsCancelledIsNotRendered)
{
    const int id = m_queue.AddPlanned(Plan(QStringLiteral("a.mp4")));
    m_backend.finding->EndWell();
    m_queue.Cancel(id);
    ASSERT_TRUE(WaitFor(id, State::Cancelled));
    EXPECT_EQ(m_backend.task, nullptr);
}

TEST_F(TestExportQueue, WhilePausedTheTaskStandsStillAndNothingStarts)
{
    const int first = m_queue.Add(Request(QStringLiteral("a.mp4")));
    const int second = m_queue.Add(Request(QStringLiteral("b.mp4")));
    m_queue.SetPaused(true);
    EXPECT_TRUE(m_queue.Find(first)->isPaused);
    std::atomic_bool hasPassed{false};
    std::thread encoder([&] {
        m_backend.task->callbacks.progress(100);
        hasPassed = true;
    });
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_queue.Find(first)->progress == 100; }, 10000));
    EXPECT_FALSE(hasPassed);
    m_queue.SetPaused(false);
    encoder.join();
    EXPECT_TRUE(hasPassed);
    EXPECT_FALSE(m_queue.Find(first)->isPaused);

    m_queue.SetPaused(true);
    m_backend.task->EndWell();
    ASSERT_TRUE(WaitFor(first, State::Done));
    EXPECT_EQ(StateOf(second), State::Waiting);
    m_queue.SetPaused(false);
    EXPECT_EQ(StateOf(second), State::Running);
}

TEST_F(TestExportQueue, APausedExportCanBeCancelled)
{
    const int id = m_queue.Add(Request(QStringLiteral("a.mp4")));
    m_queue.SetPaused(true);
    std::thread encoder([this] { m_backend.task->callbacks.progress(100); });
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_queue.Find(id)->progress == 100; }, 10000));
    m_queue.Cancel(id);
    encoder.join();
    ASSERT_TRUE(WaitFor(id, State::Cancelled));
    EXPECT_FALSE(m_queue.IsPaused());
    EXPECT_EQ(StateOf(m_queue.Add(Request(QStringLiteral("b.mp4")))), State::Running);
}

TEST_F(TestExportQueue, AnIdleQueueIsNotPaused)
{
    m_queue.SetPaused(true);
    EXPECT_FALSE(m_queue.IsPaused());
    m_queue.Add(Request(QStringLiteral("a.mp4")));
    m_queue.SetPaused(true);
    m_queue.CancelAll();
    ASSERT_TRUE(QTest::qWaitFor([this] { return m_queue.UnfinishedCount() == 0; }, 10000));
    EXPECT_FALSE(m_queue.IsPaused());
}

TEST_F(TestExportQueue, PausesDoNotCountInTheTimeLeft)
{
    const int id = m_queue.Add(Request(QStringLiteral("a.mp4")));
    m_nowMs += 4000;
    m_queue.SetPaused(true);
    m_nowMs += 100000;
    m_queue.SetPaused(false);
    Progress(id, 5000);
    EXPECT_EQ(m_queue.Find(id)->secondsLeft, 5);
}

TEST_F(TestExportQueue, AnAnalysisShowsNoTimeLeftBesideThatOfAll)
{
    const int id = m_queue.AddPlanned(Plan(QStringLiteral("a.mp4")));
    m_nowMs += 4000;
    m_backend.finding->callbacks.progress(5000);
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_queue.Find(id)->progress == 5000; }, 10000));
    EXPECT_FALSE(m_queue.Find(id)->secondsLeft.has_value());
    EXPECT_TRUE(m_queue.Summary().secondsLeft.has_value());
}

TEST_F(TestExportQueue, TheTimeLeftOfAllCountsFrames)
{
    const int first = m_queue.AddPlanned(Plan(QStringLiteral("a.mp4")));
    PlannedExport longer = Plan(QStringLiteral("b.mp4"));
    longer.frames = 3000;
    m_queue.AddPlanned(longer);
    EXPECT_FALSE(m_queue.Summary().secondsLeft.has_value());
    m_backend.finding->EndWell();
    ASSERT_TRUE(WaitFor(first, State::Running));
    m_nowMs += 10000;
    m_backend.task->EndWell();
    ASSERT_TRUE(WaitFor(first, State::Done));
    EXPECT_EQ(m_queue.Summary().progress, 2500);
    EXPECT_EQ(m_queue.Summary().secondsLeft, 31);
}

TEST_F(TestExportQueue, TheSummaryCountsPlannedExportsAlone)
{
    const int done = m_queue.AddPlanned(Plan(QStringLiteral("a.mp4")));
    const int failed = m_queue.AddPlanned(Plan(QStringLiteral("b.mp4")));
    const int other = m_queue.Add(Request(QStringLiteral("c.mp4")));
    m_queue.Cancel(m_queue.AddPlanned(Plan(QStringLiteral("d.mp4"))));
    m_backend.finding->EndWell({40});
    ASSERT_TRUE(WaitFor(done, State::Running));
    EXPECT_EQ(m_queue.Summary().toLookAt, 0);
    m_backend.task->EndWell();
    ASSERT_TRUE(WaitFor(failed, State::Analyzing));
    m_backend.finding->End({});
    ASSERT_TRUE(WaitFor(other, State::Running));
    const QueueSummary summary = m_queue.Summary();
    EXPECT_EQ(summary.planned, 3);
    EXPECT_EQ(summary.active, 0);
    EXPECT_EQ(summary.done, 1);
    EXPECT_EQ(summary.failed, 1);
    EXPECT_EQ(summary.cancelled, 1);
    EXPECT_EQ(summary.toLookAt, 1);
    EXPECT_EQ(m_queue.FirstToLookAt()->id, done);
}

TEST_F(TestExportQueue, AnExportThatLacksEditsSaysSoUntilItIsMadeWithThem)
{
    const int id = m_queue.AddPlanned(Plan(QStringLiteral("a.mp4")));
    m_backend.finding->EndWell({}, 3);
    ASSERT_TRUE(WaitFor(id, State::Running));
    EXPECT_EQ(m_queue.Summary().withoutEdits, 0);
    m_queue.Cancel(id);
    ASSERT_TRUE(WaitFor(id, State::Cancelled));
    m_queue.Retry(id);
    m_backend.finding->EndWell({}, 2);
    ASSERT_TRUE(WaitFor(id, State::Running));
    m_backend.task->EndWell();
    ASSERT_TRUE(WaitFor(id, State::Done));
    EXPECT_EQ(m_queue.Find(id)->missingEdits, 2);
    EXPECT_EQ(m_queue.Summary().withoutEdits, 1);
}

TEST_F(TestExportQueue, SeenShotsAreNotToLookAt)
{
    const int id = m_queue.AddPlanned(Plan(QStringLiteral("a.mp4")));
    m_backend.finding->EndWell({40, 90});
    ASSERT_TRUE(WaitFor(id, State::Running));
    m_backend.task->EndWell();
    ASSERT_TRUE(WaitFor(id, State::Done));
    m_queue.MarkSeen(QStringLiteral("/clips/b.mp4"), {40});
    m_queue.MarkSeen(QStringLiteral("/clips/a.mp4"), {40, 41});
    EXPECT_EQ(m_queue.Find(id)->shotsToLookAt, QList<uint>({90}));
    m_queue.MarkSeen(QStringLiteral("/clips/a.mp4"), {90});
    EXPECT_EQ(m_queue.Summary().toLookAt, 0);
    EXPECT_EQ(m_queue.FirstToLookAt(), nullptr);
}
