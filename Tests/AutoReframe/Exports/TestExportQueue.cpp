#include <Tests/AutoReframe/Exports/ExportQueueTest.h>

TEST_F(TestExportQueue, OneIsRenderedAndTheOthersWaitInTheirOrder)
{
    const int first = m_queue.Add(Request(QStringLiteral("a.mp4")));
    const int second = m_queue.Add(Request(QStringLiteral("b.mp4")));
    const int third = m_queue.Add(Request(QStringLiteral("c.mp4")));
    EXPECT_EQ(StateOf(first), State::Running);
    EXPECT_EQ(StateOf(second), State::Waiting);
    EXPECT_EQ(m_queue.UnfinishedCount(), 3);
    EXPECT_GT(m_queue.Find(first)->begunAtMs, 0);
    EXPECT_EQ(m_queue.Find(second)->begunAtMs, 0);
    m_backend.task->EndWell();
    ASSERT_TRUE(WaitFor(second, State::Running));
    EXPECT_EQ(StateOf(first), State::Done);
    EXPECT_EQ(StateOf(third), State::Waiting);
    EXPECT_EQ(m_backend.task->request.settings.outputPath, QStringLiteral("/exports/b.mp4"));
}

TEST_F(TestExportQueue, TheTimeLeftIsEstimatedAfterASecond)
{
    const int id = m_queue.Add(Request(QStringLiteral("a.mp4")));
    m_nowMs += 999;
    Progress(id, 2500);
    EXPECT_FALSE(m_queue.Find(id)->secondsLeft.has_value());
    // A quarter took 4 s, so the rest takes 12 s; the second that has begun is counted.
    m_nowMs += 3001;
    Progress(id, 2501);
    EXPECT_EQ(m_queue.Find(id)->secondsLeft, 12);
    m_nowMs += 4000;
    Progress(id, 5000);
    EXPECT_EQ(m_queue.Find(id)->secondsLeft, 9);
}

TEST_F(TestExportQueue, WithoutProgressThereIsNoEstimate)
{
    const int id = m_queue.Add(Request(QStringLiteral("a.mp4")));
    m_nowMs += 5000;
    Progress(id, 0);
    EXPECT_FALSE(m_queue.Find(id)->secondsLeft.has_value());
}

TEST_F(TestExportQueue, TheTimeLeftCountsFromTheStartOfTheRendering)
{
    m_queue.Add(Request(QStringLiteral("a.mp4")));
    const int second = m_queue.Add(Request(QStringLiteral("b.mp4")));
    m_nowMs += 60000;
    m_backend.task->EndWell();
    ASSERT_TRUE(WaitFor(second, State::Running));
    m_nowMs += 2000;
    Progress(second, 5000);
    EXPECT_EQ(m_queue.Find(second)->secondsLeft, 3);
}

TEST_F(TestExportQueue, StepsThatCameTogetherAreOneChange)
{
    const int id = m_queue.Add(Request(QStringLiteral("a.mp4")));
    QSignalSpy changes(&m_queue, &ExportQueue::sigChanged);
    for (int progress = 1; progress <= 9000; ++progress) {
        m_backend.task->callbacks.progress(progress);
    }
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_queue.Find(id)->progress == 9000; }));
    EXPECT_EQ(changes.size(), 1);
}

TEST_F(TestExportQueue, AWaitingExportThatIsCancelledNeverStarts)
{
    m_queue.Add(Request(QStringLiteral("a.mp4")));
    const int second = m_queue.Add(Request(QStringLiteral("b.mp4")));
    m_queue.Cancel(second);
    EXPECT_EQ(StateOf(second), State::Cancelled);
    m_backend.task->EndWell();
    ASSERT_TRUE(QTest::qWaitFor([this] { return m_queue.UnfinishedCount() == 0; }));
    EXPECT_EQ(m_backend.task, nullptr);
}

TEST_F(TestExportQueue, TheNextExportStartsWhenTheRunningOneIsCancelled)
{
    const int first = m_queue.Add(Request(QStringLiteral("a.mp4")));
    const int second = m_queue.Add(Request(QStringLiteral("b.mp4")));
    m_queue.Cancel(first);
    EXPECT_EQ(StateOf(first), State::Cancelling);
    EXPECT_TRUE(m_backend.task->isCancelled);
    m_queue.Cancel(first);
    ASSERT_TRUE(WaitFor(second, State::Running));
    EXPECT_EQ(StateOf(first), State::Cancelled);
}

TEST_F(TestExportQueue, AFailureKeepsItsReasonAndCanBeRetried)
{
    const int first = m_queue.Add(Request(QStringLiteral("a.mp4")));
    const int second = m_queue.Add(Request(QStringLiteral("b.mp4")));
    m_backend.task->End({KxOutcome::Failed, QStringLiteral("The disk is full."), QString(), QString()});
    ASSERT_TRUE(WaitFor(first, State::Failed));
    EXPECT_EQ(m_queue.Find(first)->message, QStringLiteral("The disk is full."));
    m_queue.Retry(first);
    EXPECT_EQ(StateOf(first), State::Waiting);
    EXPECT_TRUE(m_queue.Find(first)->message.isEmpty());
    m_backend.task->EndWell();
    ASSERT_TRUE(WaitFor(first, State::Running));
    EXPECT_EQ(StateOf(second), State::Done);
}

TEST_F(TestExportQueue, OnlyFinishedExportsCanBeRemoved)
{
    const int first = m_queue.Add(Request(QStringLiteral("a.mp4")));
    const int second = m_queue.Add(Request(QStringLiteral("b.mp4")));
    m_backend.task->EndWell();
    ASSERT_TRUE(WaitFor(first, State::Done));
    m_queue.Remove(second);
    EXPECT_NE(m_queue.Find(second), nullptr);
    m_queue.RemoveFinished();
    EXPECT_EQ(m_queue.Find(first), nullptr);
    EXPECT_NE(m_queue.Find(second), nullptr);
}

TEST_F(TestExportQueue, CancelAllLeavesNothingRunning)
{
    for (const char* const name : {"a.mp4", "b.mp4", "c.mp4"}) {
        m_queue.Add(Request(QLatin1String(name)));
    }
    m_queue.CancelAll();
    ASSERT_TRUE(QTest::qWaitFor([this] { return m_queue.UnfinishedCount() == 0; }));
    EXPECT_EQ(m_backend.task, nullptr);
}

TEST_F(TestExportQueue, TheDestructorWaitsForTheRunningExport)
{
    auto queue = std::make_unique<ExportQueue>(Workers(), nullptr);
    queue->Add(Request(QStringLiteral("a.mp4")));
    m_backend.task->EndWell();
    queue.reset();
    EXPECT_EQ(m_backend.task, nullptr);
    QCoreApplication::sendPostedEvents();
}
