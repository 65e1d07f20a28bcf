#include <KxRender/KxRenderJob.h>

#include <Tests/KxRender/RenderFixture.h>

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <new>
#include <stdexcept>

namespace
{

/// Records the callbacks of a job and lets a test wait for them.
class Listener
{
public:
    KxRenderJob::Callbacks Callbacks()
    {
        return {[this](int value) { Progress(value); }, [this](const KxRenderResult& result) { End(result); }};
    }

    void WaitForProgress(int value)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_changed.wait(lock, [&] { return m_progress >= value || m_ends > 0; });
    }

    KxRenderResult WaitForEnd()
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_changed.wait(lock, [&] { return m_ends > 0; });
        return m_result;
    }

    int Ends()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_ends;
    }

    bool CalledAfterEnd()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_calledAfterEnd;
    }

private:
    void Progress(int value)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_progress = value;
        m_calledAfterEnd = m_calledAfterEnd || m_ends > 0;
        m_changed.notify_all();
    }

    void End(const KxRenderResult& result)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_result = result;
        ++m_ends;
        m_changed.notify_all();
    }

    std::mutex m_mutex;
    std::condition_variable m_changed;
    int m_progress = 0;
    int m_ends = 0;
    bool m_calledAfterEnd = false;
    KxRenderResult m_result;
};

class KxRenderJobTest : public RenderFixture
{
protected:
    void ExpectOneEnd()
    {
        EXPECT_EQ(m_listener.Ends(), 1);
        EXPECT_FALSE(m_listener.CalledAfterEnd());
    }

    Listener m_listener;
};

} // namespace

TEST_F(KxRenderJobTest, Finishes)
{
    const KxRenderSource source = MakeClip(30);
    {
        KxRenderJob job(source, SettingsFor(QSize(90, 160)), m_listener.Callbacks());
        const KxRenderResult result = m_listener.WaitForEnd();
        EXPECT_EQ(result.outcome, KxOutcome::Done) << result.message.toStdString();
        EXPECT_EQ(result.outputPath, Path(QStringLiteral("out.mp4")));
    }
    ExpectOneEnd();
    EXPECT_EQ(Pictures(Path(QStringLiteral("out.mp4"))).size(), 30U);
}

TEST_F(KxRenderJobTest, Fails)
{
    KxRenderSource source;
    source.path = Path(QStringLiteral("none.mp4"));
    {
        KxRenderJob job(source, SettingsFor(QSize(90, 160)), m_listener.Callbacks());
        const KxRenderResult result = m_listener.WaitForEnd();
        EXPECT_EQ(result.outcome, KxOutcome::Failed);
        EXPECT_TRUE(result.message.contains(QStringLiteral("none.mp4"))) << result.message.toStdString();
    }
    ExpectOneEnd();
}

TEST_F(KxRenderJobTest, CancelledAtOnce)
{
    const KxRenderSource source = MakeClip(60);
    {
        KxRenderJob job(source, SettingsFor(QSize(360, 640)), m_listener.Callbacks());
        job.Cancel();
        EXPECT_EQ(m_listener.WaitForEnd().outcome, KxOutcome::Cancelled);
    }
    ExpectOneEnd();
    EXPECT_EQ(Written(), QStringList());
}

TEST_F(KxRenderJobTest, CancelledLate)
{
    const KxRenderSource source = MakeClip(150);
    {
        KxRenderJob job(source, SettingsFor(QSize(360, 640)), m_listener.Callbacks());
        m_listener.WaitForProgress(3000);
        job.Cancel();
        EXPECT_EQ(m_listener.WaitForEnd().outcome, KxOutcome::Cancelled);
    }
    ExpectOneEnd();
    EXPECT_EQ(Written(), QStringList());
}

TEST_F(KxRenderJobTest, DestroyedWhileRunning)
{
    const KxRenderSource source = MakeClip(150);
    auto job = std::make_unique<KxRenderJob>(source, SettingsFor(QSize(360, 640)), m_listener.Callbacks());
    m_listener.WaitForProgress(1000);
    job.reset();
    ExpectOneEnd();
    EXPECT_EQ(m_listener.WaitForEnd().outcome, KxOutcome::Cancelled);
    EXPECT_EQ(Written(), QStringList());
}

TEST_F(KxRenderJobTest, StaysDoneWhenCancelledAfterItsEnd)
{
    const KxRenderSource source = MakeClip(10);
    {
        KxRenderJob job(source, SettingsFor(QSize(90, 160)), m_listener.Callbacks());
        EXPECT_EQ(m_listener.WaitForEnd().outcome, KxOutcome::Done);
        job.Cancel();
    }
    ExpectOneEnd();
    EXPECT_EQ(Written(), QStringList{QStringLiteral("out.mp4")});
}

TEST_F(KxRenderJobTest, RunsWithoutCallbacks)
{
    const KxRenderSource source = MakeClip(10);
    KxRenderJob(source, SettingsFor(QSize(90, 160)), {});
    EXPECT_EQ(Written(), QStringList());
}

TEST_F(KxRenderJobTest, TwoConcurrentJobsWriteTwoFiles)
{
    const KxRenderSource source = MakeClip(30);
    Listener other;
    {
        KxRenderJob first(source, SettingsFor(QSize(90, 160)), m_listener.Callbacks());
        KxRenderJob second(source, SettingsFor(QSize(90, 160)), other.Callbacks());
        EXPECT_EQ(m_listener.WaitForEnd().outcome, KxOutcome::Done);
        EXPECT_EQ(other.WaitForEnd().outcome, KxOutcome::Done);
    }
    EXPECT_EQ(Written(), (QStringList{QStringLiteral("out (2).mp4"), QStringLiteral("out.mp4")}));
}

TEST_F(KxRenderJobTest, ReportsTheExceptionOfAnOverlay)
{
    KxRenderSource source = MakeClip(30);
    source.overlay = [](QImage&, qint64 frame) {
        if (frame == 12) {
            throw std::runtime_error("the drawing went wrong");
        }
    };
    {
        KxRenderJob job(source, SettingsFor(QSize(160, 90)), m_listener.Callbacks());
        const KxRenderResult result = m_listener.WaitForEnd();
        EXPECT_EQ(result.outcome, KxOutcome::Failed);
        EXPECT_EQ(result.message, QStringLiteral("Cannot render clip.mp4: the drawing went wrong."));
    }
    ExpectOneEnd();
    EXPECT_EQ(Written(), QStringList());
}

TEST_F(KxRenderJobTest, ReportsThatMemoryRanOut)
{
    KxRenderSource source = MakeClip(30);
    source.overlay = [](QImage&, qint64) { throw std::bad_alloc(); };
    KxRenderJob job(source, SettingsFor(QSize(160, 90)), m_listener.Callbacks());
    EXPECT_EQ(m_listener.WaitForEnd().message, QStringLiteral("Cannot render clip.mp4: memory ran out."));
}

TEST_F(KxRenderJobTest, FailsWhenAnOverlayThrowsAnyType)
{
    KxRenderSource source = MakeClip(30);
    source.overlay = [](QImage&, qint64) { throw 7; };
    {
        KxRenderJob job(source, SettingsFor(QSize(160, 90)), m_listener.Callbacks());
        const KxRenderResult result = m_listener.WaitForEnd();
        EXPECT_EQ(result.outcome, KxOutcome::Failed);
        EXPECT_EQ(result.message, QStringLiteral("Cannot render clip.mp4: an unknown error occurred."));
    }
    ExpectOneEnd();
    EXPECT_EQ(Written(), QStringList());
}

TEST_F(KxRenderJobTest, FailsWhenTheProgressCallbackThrows)
{
    const KxRenderSource source = MakeClip(30);
    KxRenderJob::Callbacks callbacks = m_listener.Callbacks();
    callbacks.progress = [](int value) {
        if (value > 5000) {
            throw std::runtime_error("the receiver has gone");
        }
    };
    {
        KxRenderJob job(source, SettingsFor(QSize(160, 90)), callbacks);
        const KxRenderResult result = m_listener.WaitForEnd();
        EXPECT_EQ(result.outcome, KxOutcome::Failed);
        EXPECT_EQ(result.message, QStringLiteral("Cannot render clip.mp4: the receiver has gone."));
    }
    ExpectOneEnd();
    EXPECT_EQ(Written(), QStringList());
}

TEST_F(KxRenderJobTest, SurvivesAnExceptionOfTheFinishedCallback)
{
    const KxRenderSource source = MakeClip(10);
    KxRenderJob::Callbacks callbacks = m_listener.Callbacks();
    callbacks.finished = [report = callbacks.finished](const KxRenderResult& result) {
        report(result);
        throw std::runtime_error("too late");
    };
    {
        KxRenderJob job(source, SettingsFor(QSize(90, 160)), callbacks);
        EXPECT_EQ(m_listener.WaitForEnd().outcome, KxOutcome::Done);
    }
    ExpectOneEnd();
    EXPECT_EQ(Written(), QStringList{QStringLiteral("out.mp4")});
}
