#include <KxModel/KxAutoReframeService.h>

#include <KxSubject/KxSubjectRecord.h>
#include <Tests/KxModel/EventRecorder.h>

#include <gtest/gtest.h>

#include <functional>
#include <future>
#include <mutex>
#include <new>
#include <stdexcept>

// The service with scripted analyses: the interaction of tasks, threads and observers.

namespace
{

using Progress = std::function<void(int percent)>;
using Work = std::function<KxAnalysis::Result(const Progress& progress)>;

class MadeAnalysis final : public KxAnalysis
{
public:
    explicit MadeAnalysis(Work work)
        : m_work(std::move(work))
    {
    }
    Result Run(const Progress& onProgress) override { return m_work(onProgress); }

private:
    Work m_work;
};

KxAnalysis::Result Done()
{
    KxAnalysis::Result result;
    result.outcome = KxOutcome::Done;
    result.crops.append(IKxAutoReframeResult(0, QRectF(0.0, 0.0, 0.5, 1.0)));
    return result;
}

/// Opens analyses by name; an unknown name is a file that is not a video.
class Files
{
public:
    using Opening = std::function<KxResult<std::unique_ptr<KxAnalysis>>(const KxCancelToken& cancel)>;

    void Add(const QString& name, Work work)
    {
        AddOpening(name, [work](const KxCancelToken&) { return Opened(work); });
    }
    void AddOpening(const QString& name, Opening opening) { m_openings[name] = std::move(opening); }

    static KxResult<std::unique_ptr<KxAnalysis>> Opened(Work work)
    {
        return std::unique_ptr<KxAnalysis>(new MadeAnalysis(std::move(work)));
    }
    KxAutoReframeService::Open Opener()
    {
        return [this](const QString& path, const IKxAutoReframeParam&, const KxAnalysisSettings&,
                      const KxCancelToken& cancel, const std::shared_ptr<KxVideoScanner>&) {
            return m_openings.contains(path)
                       ? m_openings[path](cancel)
                       : KxResult<std::unique_ptr<KxAnalysis>>::Failure(QStringLiteral("%1 is no video.").arg(path));
        };
    }

private:
    QMap<QString, Opening> m_openings;
};

class KxAutoReframeServiceTasks : public testing::Test
{
protected:
    int ResultsOf(const QString& path)
    {
        QList<IKxAutoReframeResult> results;
        return m_service.GetResults(path, &results);
    }
    bool Start(const QString& path) { return m_service.StartTask(path, m_param); }

    const QString m_slow = QStringLiteral("slow.mp4");
    const QString m_quick = QStringLiteral("quick.mp4");
    const QString m_bad = QStringLiteral("bad.mp4");
    const IKxAutoReframeParam m_param{16, QSize(9, 16)};
    Files m_files;
    KxAutoReframeService m_service{m_files.Opener()};
};

/// Long enough for a thread that does not wait to return; a thread that waits never returns.
constexpr std::chrono::milliseconds aWhile(200);

} // namespace

TEST_F(KxAutoReframeServiceTasks, AnExceptionInTheAnalysisIsAFailedTaskWithAMessage)
{
    const std::vector<std::pair<std::function<void()>, QString>> exceptions{
        {[] { throw std::runtime_error("the library gave up"); }, QStringLiteral("the library gave up")},
        {[] { throw std::bad_alloc(); }, QStringLiteral("memory ran out")},
        {[] { throw 7; }, QStringLiteral("an unknown error occurred")}};
    int ends = 0;
    EventRecorder recorder(m_service);
    for (const auto& [raise, reason] : exceptions) {
        m_files.Add(m_bad, [&raise = raise](const Progress&) {
            raise();
            return Done();
        });
        ASSERT_TRUE(Start(m_bad));
        ASSERT_TRUE(recorder.WaitForEnds(++ends));
        EXPECT_LT(ResultsOf(m_bad), 0);
        EXPECT_EQ(m_service.LastErrorMessage(), QStringLiteral("Cannot analyse bad.mp4: %1.").arg(reason));
    }
    m_files.Add(m_quick, [](const Progress&) { return Done(); });
    ASSERT_TRUE(Start(m_quick)) << "the service still works";
    ASSERT_TRUE(recorder.WaitForEnds(++ends));
    EXPECT_EQ(ResultsOf(m_quick), 0);
}

TEST_F(KxAutoReframeServiceTasks, AnExceptionWhileOpeningRefusesTheStartWithAMessage)
{
    m_files.AddOpening(m_bad,
                       [](const KxCancelToken&) -> KxResult<std::unique_ptr<KxAnalysis>> { throw std::bad_alloc(); });
    EXPECT_FALSE(Start(m_bad));
    EXPECT_EQ(m_service.LastErrorMessage(), QStringLiteral("Cannot analyse bad.mp4: memory ran out."));
}

TEST_F(KxAutoReframeServiceTasks, AnObserverThatThrowsHarmsNeitherTheTaskNorOtherObservers)
{
    m_files.Add(m_quick, [](const Progress& progress) {
        progress(1);
        return Done();
    });
    auto throwing =
        std::make_unique<EventRecorder>(m_service, [](const ServiceEvent&) { throw std::runtime_error("no"); });
    EventRecorder recorder(m_service);
    ASSERT_TRUE(Start(m_quick));
    ASSERT_TRUE(recorder.WaitForEnds(1));
    EXPECT_EQ(ResultsOf(m_quick), 0);
    EXPECT_EQ(recorder.Events().size(), 2U);
    throwing.reset(); // returns, because no call to it counts as running
}

TEST_F(KxAutoReframeServiceTasks, DestroyingTheServiceCancelsTheRunningTask)
{
    auto service = std::make_unique<KxAutoReframeService>(m_files.Opener());
    KxCancelToken token;
    std::promise<void> runs;
    std::promise<void> mayEnd;
    m_files.AddOpening(m_slow, [&](const KxCancelToken& cancel) {
        token = cancel;
        return Files::Opened([&](const Progress&) {
            runs.set_value();
            mayEnd.get_future().wait();
            return Done();
        });
    });
    ASSERT_TRUE(service->StartTask(m_slow, m_param));
    runs.get_future().wait();
    std::thread ending([&] { mayEnd.set_value(); });
    service.reset();
    EXPECT_TRUE(token.IsCancelled());
    ending.join();
}

TEST_F(KxAutoReframeServiceTasks, AServiceWhoseThreadHasEndedStartsAnother)
{
    EventRecorder recorder(m_service);
    m_service.EndThread();
    for (int ends = 1; ends <= 2; ++ends) {
        m_files.Add(m_quick, [](const Progress&) { return Done(); });
        ASSERT_TRUE(Start(m_quick));
        ASSERT_TRUE(recorder.WaitForEnds(ends));
        m_service.EndThread();
        EXPECT_EQ(ResultsOf(m_quick), 0);
    }
}

TEST_F(KxAutoReframeServiceTasks, TheNewestStartWinsOverAnOlderOneThatOpensSlowly)
{
    std::promise<KxCancelToken> opening;
    std::promise<void> mayOpen;
    std::atomic_bool slowRan{false};
    m_files.AddOpening(m_slow, [&](const KxCancelToken& cancel) {
        opening.set_value(cancel);
        mayOpen.get_future().wait();
        return Files::Opened([&](const Progress&) {
            slowRan = true;
            return Done();
        });
    });
    m_files.Add(m_quick, [](const Progress&) { return Done(); });
    EventRecorder recorder(m_service);
    std::future<bool> older = std::async(std::launch::async, [&] { return Start(m_slow); });
    const KxCancelToken olderCancel = opening.get_future().get();
    ASSERT_TRUE(Start(m_quick));
    EXPECT_TRUE(olderCancel.IsCancelled()) << "the older opening may end early";
    ASSERT_TRUE(recorder.WaitForEnds(1));
    mayOpen.set_value();
    EXPECT_TRUE(older.get()) << "it was started, and stopped by the newer one";
    m_service.StopTask(0);
    EXPECT_EQ(ResultsOf(m_quick), 0);
    EXPECT_FALSE(slowRan);
    EXPECT_EQ(recorder.Events().size(), 1U);
}

TEST_F(KxAutoReframeServiceTasks, AStopDuringTheOpeningIsAStopOfThatStart)
{
    std::promise<void> opening;
    std::promise<void> mayOpen;
    std::atomic_bool ran{false};
    m_files.AddOpening(m_slow, [&](const KxCancelToken&) {
        opening.set_value();
        mayOpen.get_future().wait();
        return Files::Opened([&](const Progress&) {
            ran = true;
            return Done();
        });
    });
    EventRecorder recorder(m_service);
    std::future<bool> start = std::async(std::launch::async, [&] { return Start(m_slow); });
    opening.get_future().wait();
    m_service.StopTask(0);
    mayOpen.set_value();
    start.wait();
    m_service.StopTask(0);
    EXPECT_FALSE(ran);
    EXPECT_TRUE(recorder.Events().empty());
}

TEST_F(KxAutoReframeServiceTasks, EveryStopWaitsUntilTheRunningCallHasEnded)
{
    m_files.Add(m_quick, [](const Progress& progress) {
        progress(1);
        return Done();
    });
    std::promise<void> entered;
    std::promise<void> mayLeave;
    std::shared_future<void> leave = mayLeave.get_future().share();
    EventRecorder recorder(m_service, [&](const ServiceEvent&) {
        entered.set_value();
        leave.wait();
    });
    ASSERT_TRUE(Start(m_quick));
    entered.get_future().wait();
    std::vector<std::future<void>> stops;
    for (int i = 0; i < 3; ++i) {
        stops.push_back(std::async(std::launch::async, [&] { m_service.StopTask(0); }));
    }
    for (std::future<void>& stop : stops) {
        EXPECT_EQ(stop.wait_for(aWhile), std::future_status::timeout) << "an event is still being delivered";
    }
    mayLeave.set_value();
    for (std::future<void>& stop : stops) {
        stop.wait();
    }
    EXPECT_EQ(recorder.Events().size(), 1U);
}

TEST_F(KxAutoReframeServiceTasks, AStopDoesNotWaitForATaskThatWasStartedAfterIt)
{
    std::promise<void> mayEnd;
    m_files.Add(m_slow, [&](const Progress& progress) {
        progress(1);
        mayEnd.get_future().wait();
        return Done();
    });
    m_files.Add(m_quick, [](const Progress& progress) {
        progress(1);
        return Done();
    });
    std::promise<void> inFirst;
    std::promise<void> inSecond;
    std::promise<void> mayStartSecond;
    EventRecorder recorder(m_service, [&](const ServiceEvent& event) {
        if (event.key == 1) {
            inFirst.set_value();
            mayStartSecond.get_future().wait();
            Start(m_slow);
        } else if (event.state == 1) {
            inSecond.set_value();
        }
    });
    ASSERT_TRUE(Start(m_quick));
    inFirst.get_future().wait();
    std::future<void> stop = std::async(std::launch::async, [&] { m_service.StopTask(0); });
    EXPECT_EQ(stop.wait_for(aWhile), std::future_status::timeout) << "an event is still being delivered";
    mayStartSecond.set_value();
    inSecond.get_future().wait();
    stop.wait();
    mayEnd.set_value();
    ASSERT_TRUE(recorder.WaitForEnds(1));
    EXPECT_EQ(ResultsOf(m_slow), 0);
}

TEST_F(KxAutoReframeServiceTasks, AnOlderTaskReportsNothingAfterANewerOneHasStarted)
{
    m_files.Add(m_slow, [&](const Progress& progress) {
        progress(1);
        progress(2);
        return Done(); // although it was stopped
    });
    m_files.Add(m_quick, [](const Progress&) { return Done(); });
    EventRecorder recorder(m_service, [&](const ServiceEvent& event) {
        if (event.key == 1) {
            EXPECT_TRUE(Start(m_quick));
        }
    });
    ASSERT_TRUE(Start(m_slow));
    ASSERT_TRUE(recorder.WaitForEnds(1));
    m_service.StopTask(0);
    const std::vector<ServiceEvent> events = recorder.Events();
    ASSERT_EQ(events.size(), 2U);
    EXPECT_EQ(events[0].key, 1);
    EXPECT_EQ(events[1].key, 2);
    EXPECT_LT(ResultsOf(m_slow), 0);
    EXPECT_EQ(ResultsOf(m_quick), 0);
}

TEST_F(KxAutoReframeServiceTasks, ARefusedStartStopsTheTaskBeforeIt)
{
    std::promise<KxCancelToken> token;
    m_files.AddOpening(m_slow, [&](const KxCancelToken& cancel) {
        token.set_value(cancel);
        return Files::Opened([](const Progress&) { return Done(); });
    });
    ASSERT_TRUE(Start(m_slow));
    EXPECT_FALSE(Start(QStringLiteral("text.txt")));
    EXPECT_TRUE(token.get_future().get().IsCancelled());
    EXPECT_EQ(m_service.LastErrorMessage(), QStringLiteral("text.txt is no video."));
}

TEST_F(KxAutoReframeServiceTasks, AVideoCanBeDescribedWhileItsNextTaskRuns)
{
    const auto isDescribed = [this](const QString& path) {
        return !m_service.DescribeFrames(path, {1}).first().isEmpty();
    };
    auto record = std::make_shared<KxSubjectRecord>();
    record->source = {640, 360, 25.0, 2};
    record->prints = {{0, 1, 1}, {1, 2, 2}};
    m_files.Add(m_quick, [&](const Progress&) {
        KxAnalysis::Result result = Done();
        result.record = record;
        return result;
    });
    EventRecorder recorder(m_service);
    ASSERT_TRUE(Start(m_quick));
    ASSERT_TRUE(recorder.WaitForEnds(1));
    EXPECT_TRUE(isDescribed(m_quick));
    m_files.Add(m_quick, [&](const Progress&) {
        EXPECT_TRUE(isDescribed(m_quick));
        EXPECT_LT(ResultsOf(m_quick), 0);
        return Done();
    });
    ASSERT_TRUE(Start(m_quick));
    ASSERT_TRUE(recorder.WaitForEnds(2));
    m_files.Add(m_slow, [&](const Progress&) {
        EXPECT_FALSE(isDescribed(m_quick));
        EXPECT_FALSE(isDescribed(m_slow));
        return Done();
    });
    ASSERT_TRUE(Start(m_slow));
    ASSERT_TRUE(recorder.WaitForEnds(3));
}

TEST_F(KxAutoReframeServiceTasks, ForgottenResultsAreGoneButNotWhatElseTheTaskFound)
{
    m_files.Add(m_quick, [](const Progress&) {
        KxAnalysis::Result result = Done();
        result.warnings = QStringList{QStringLiteral("It is cut off.")};
        return result;
    });
    EventRecorder recorder(m_service);
    ASSERT_TRUE(Start(m_quick));
    ASSERT_TRUE(recorder.WaitForEnds(1));
    EXPECT_EQ(ResultsOf(m_quick), 0);
    m_service.ForgetResults();
    EXPECT_LT(ResultsOf(m_quick), 0);
    EXPECT_EQ(m_service.LastWarnings(), QStringList{QStringLiteral("It is cut off.")});
    ASSERT_TRUE(Start(m_quick));
    ASSERT_TRUE(recorder.WaitForEnds(2));
    EXPECT_EQ(ResultsOf(m_quick), 0);
}
