#pragma once

#include <Apps/AutoReframe/Exports/ExportQueue.h>
#include <Tests/AutoReframe/Backend/FakeMediaBackend.h>

#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

/// A queue over a backend whose tasks run until the test ends them.
class TestExportQueue : public testing::Test
{
protected:
    using State = ExportItem::State;

    static ExportRequest Request(const QString& name)
    {
        ExportRequest request;
        request.settings.outputPath = QStringLiteral("/exports/") + name;
        request.settings.resolution = QSize(608, 1080);
        return request;
    }
    static PlannedExport Plan(const QString& name, const QSize& aspect = QSize(9, 16))
    {
        PlannedExport planned;
        planned.path = QStringLiteral("/clips/") + name;
        planned.plan.aspect = aspect;
        planned.outputPath = QStringLiteral("/exports/") + name;
        planned.frames = 1000;
        return planned;
    }
    State StateOf(int id) const { return m_queue.Find(id)->state; }
    bool WaitFor(int id, State state) const
    {
        return QTest::qWaitFor([this, id, state] { return StateOf(id) == state; }, 10000);
    }

    /// The running rendering reports `progress`.
    void Progress(int id, int progress)
    {
        QSignalSpy changes(&m_queue, &ExportQueue::sigChanged);
        m_backend.task->callbacks.progress(progress);
        ASSERT_TRUE(changes.wait(10000));
        ASSERT_EQ(m_queue.Find(id)->progress, progress);
    }

    FakeMediaBackend m_backend;
    qint64 m_nowMs = 1000;
    ExportQueue::Workers Workers()
    {
        return {[this](const ExportRequest& request, const KxRenderJob::Callbacks& callbacks) {
                    return m_backend.Render(request, callbacks);
                },
                [this](const QString& path, const ReframePlan& plan, const CropCallbacks& callbacks) {
                    return m_backend.FindCrops({path, plan, {}, {}}, callbacks);
                }};
    }
    ExportQueue m_queue{Workers(), [this] { return m_nowMs; }, nullptr};
};
