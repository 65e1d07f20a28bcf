#include <Apps/AutoReframe/Exports/ExportWatch.h>
#include <Tests/AutoReframe/Backend/FakeMediaBackend.h>

#include <QTest>

#include <gtest/gtest.h>

namespace
{

using State = KrAutoReframeExport::State;

class TestExportWatch : public testing::Test
{
protected:
    TestExportWatch()
    {
        m_watch.Listen([this](const KrAutoReframeExport& state) { m_reports.append(state); });
    }
    static ExportRequest Request(const QString& name)
    {
        ExportRequest request;
        request.settings.outputPath = QStringLiteral("/exports/") + name;
        request.settings.resolution = QSize(608, 1080);
        return request;
    }
    bool WaitFor(State state) const
    {
        return QTest::qWaitFor([this, state] { return !m_reports.isEmpty() && m_reports.last().state == state; },
                               10000);
    }

    FakeMediaBackend m_backend;
    ExportQueue m_queue{{[this](const ExportRequest& request, const KxRenderJob::Callbacks& callbacks) {
                             return m_backend.Render(request, callbacks);
                         },
                         {}},
                        nullptr};
    ExportWatch m_watch{m_queue};
    QList<KrAutoReframeExport> m_reports;
};

} // namespace

TEST_F(TestExportWatch, TheLastExportIsReportedFromTheQueueToItsEnd)
{
    m_queue.Add(Request(QStringLiteral("earlier.mp4")));
    m_watch.Add(Request(QStringLiteral("wanted.mp4")));
    ASSERT_EQ(m_reports.size(), 1);
    EXPECT_EQ(m_reports.last().state, State::Queued);
    EXPECT_EQ(m_reports.last().filePath, QStringLiteral("/exports/wanted.mp4"));
    m_backend.task->EndWell();
    ASSERT_TRUE(WaitFor(State::Running));
    m_backend.task->callbacks.progress(2500);
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_reports.last().progress == 2500; }, 10000));
    m_backend.task->EndWell();
    ASSERT_TRUE(WaitFor(State::Done));
    for (const KrAutoReframeExport& report : qAsConst(m_reports)) {
        EXPECT_TRUE(report.filePath.contains(QStringLiteral("wanted"))) << report.filePath.toStdString();
    }
}

TEST_F(TestExportWatch, AnExportThatIsCancelledInTheQueueIsReported)
{
    m_queue.Add(Request(QStringLiteral("earlier.mp4")));
    m_watch.Add(Request(QStringLiteral("wanted.mp4")));
    m_queue.CancelAll();
    EXPECT_TRUE(WaitFor(State::Cancelled));
}

TEST_F(TestExportWatch, NothingIsReportedOnceTheDialogHasGone)
{
    m_watch.Add(Request(QStringLiteral("wanted.mp4")));
    const int before = m_reports.size();
    m_watch.Listen({});
    m_queue.CancelAll();
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_queue.UnfinishedCount() == 0; }, 10000));
    EXPECT_EQ(m_reports.size(), before);
}
