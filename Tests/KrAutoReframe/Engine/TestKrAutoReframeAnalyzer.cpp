#include <KrAutoReframe/Engine/KrAutoReframeAnalyzer.h>

#include <Tests/KrAutoReframe/FakeHost/FakeHost.h>

#include <QMetaMethod>
#include <QSignalSpy>
#include <QThread>

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace
{

constexpr int Running = 1;
constexpr int Ended = 2;

class TestKrAutoReframeAnalyzer : public testing::Test
{
protected:
    TestKrAutoReframeAnalyzer() { FakeHost::Reset(); }
    ~TestKrAutoReframeAnalyzer() override { FakeHost::Reset(); }

    FakeHost::Service& m_service = FakeHost::TheService();
};

} // namespace

TEST_F(TestKrAutoReframeAnalyzer, RegistersWithTheServiceWhenMade)
{
    const KrAutoReframeAnalyzer analyzer;
    EXPECT_EQ(m_service.Calls(), QStringList{QStringLiteral("AddObserver")});
    EXPECT_EQ(analyzer.parent(), nullptr);
}

TEST_F(TestKrAutoReframeAnalyzer, ParametersAreEmptyAtFirst)
{
    const KrAutoReframeAnalyzer analyzer;
    const KrAutoReframeAnalyzeParam param = analyzer.GetParam();
    EXPECT_TRUE(param.path.isEmpty());
    EXPECT_EQ(param.width, 0);
    EXPECT_EQ(param.height, 0);
    EXPECT_EQ(param.mode, 0);
    EXPECT_TRUE(analyzer.GetResults().isEmpty());
}

TEST_F(TestKrAutoReframeAnalyzer, ParametersAreCopied)
{
    KrAutoReframeAnalyzer analyzer;
    KrAutoReframeAnalyzeParam param{QStringLiteral("a.mp4"), 9, 16, 24};
    analyzer.SetParam(param);
    param.width = 1;
    const KrAutoReframeAnalyzeParam kept = analyzer.GetParam();
    EXPECT_EQ(kept.path, QStringLiteral("a.mp4"));
    EXPECT_EQ(kept.width, 9);
    EXPECT_EQ(kept.height, 16);
    EXPECT_EQ(kept.mode, 24);
}

TEST_F(TestKrAutoReframeAnalyzer, StartStopsWhatRunsAndThenAsksForTheNewTask)
{
    KrAutoReframeAnalyzer analyzer;
    analyzer.SetParam({QStringLiteral("a.mp4"), 9, 16, 24});
    m_service.ForgetCalls();
    EXPECT_TRUE(analyzer.Start());
    const QStringList expected{QStringLiteral("StopTask(0)"), QStringLiteral("StartTask(a.mp4, 24, 9x16)")};
    EXPECT_EQ(m_service.Calls(), expected);
}

TEST_F(TestKrAutoReframeAnalyzer, StartedTwiceStopsTheFirstTask)
{
    KrAutoReframeAnalyzer analyzer;
    analyzer.SetParam({QStringLiteral("a.mp4"), 9, 16, 24});
    EXPECT_TRUE(analyzer.Start());
    analyzer.SetParam({QStringLiteral("b.mp4"), 1, 1, 8});
    m_service.ForgetCalls();
    EXPECT_TRUE(analyzer.Start());
    const QStringList expected{QStringLiteral("StopTask(0)"), QStringLiteral("StartTask(b.mp4, 8, 1x1)")};
    EXPECT_EQ(m_service.Calls(), expected);
}

TEST_F(TestKrAutoReframeAnalyzer, ARefusedStartEmitsNoSignal)
{
    KrAutoReframeAnalyzer analyzer;
    QSignalSpy progress(&analyzer, &KrAutoReframeAnalyzer::sigAnalyzeProgress);
    QSignalSpy finished(&analyzer, &KrAutoReframeAnalyzer::sigAnalyzeFinished);
    QSignalSpy canceled(&analyzer, &KrAutoReframeAnalyzer::sigAnalyzeCanceled);
    m_service.Accept(false);
    EXPECT_FALSE(analyzer.Start());
    EXPECT_EQ(progress.count() + finished.count() + canceled.count(), 0);
}

TEST_F(TestKrAutoReframeAnalyzer, EveryEventIsProgressWhateverItsState)
{
    KrAutoReframeAnalyzer analyzer;
    QSignalSpy progress(&analyzer, &KrAutoReframeAnalyzer::sigAnalyzeProgress);
    QSignalSpy finished(&analyzer, &KrAutoReframeAnalyzer::sigAnalyzeFinished);
    m_service.Fire(0, 0);
    m_service.Fire(Running, 37);
    m_service.Fire(7, 100);
    m_service.Fire(Running, 100);
    ASSERT_EQ(progress.count(), 4);
    EXPECT_DOUBLE_EQ(progress.at(0).at(0).toDouble(), 0.0);
    EXPECT_DOUBLE_EQ(progress.at(1).at(0).toDouble(), 0.37);
    EXPECT_DOUBLE_EQ(progress.at(2).at(0).toDouble(), 1.0);
    EXPECT_DOUBLE_EQ(progress.at(3).at(0).toDouble(), 1.0);
    EXPECT_EQ(finished.count(), 0);
}

TEST_F(TestKrAutoReframeAnalyzer, AnEndBelowAHundredPercentDoesNotFinish)
{
    KrAutoReframeAnalyzer analyzer;
    QSignalSpy progress(&analyzer, &KrAutoReframeAnalyzer::sigAnalyzeProgress);
    QSignalSpy finished(&analyzer, &KrAutoReframeAnalyzer::sigAnalyzeFinished);
    m_service.Fire(Ended, 99);
    ASSERT_EQ(progress.count(), 1);
    EXPECT_DOUBLE_EQ(progress.at(0).at(0).toDouble(), 0.99);
    EXPECT_EQ(finished.count(), 0);
}

TEST_F(TestKrAutoReframeAnalyzer, AnEndAboveAHundredPercentIsReportedAsItIsAndFinishes)
{
    KrAutoReframeAnalyzer analyzer;
    QSignalSpy progress(&analyzer, &KrAutoReframeAnalyzer::sigAnalyzeProgress);
    QSignalSpy finished(&analyzer, &KrAutoReframeAnalyzer::sigAnalyzeFinished);
    m_service.Fire(Running, 150);
    EXPECT_EQ(finished.count(), 0);
    m_service.Fire(Ended, 150);
    ASSERT_EQ(progress.count(), 2);
    EXPECT_DOUBLE_EQ(progress.at(0).at(0).toDouble(), 1.5);
    EXPECT_DOUBLE_EQ(progress.at(1).at(0).toDouble(), 1.5);
    EXPECT_EQ(finished.count(), 1);
}

TEST_F(TestKrAutoReframeAnalyzer, ACompletionFetchesTheResultsOfTheAskedFile)
{
    KrAutoReframeAnalyzer analyzer;
    analyzer.SetParam({QStringLiteral("a.mp4"), 9, 16, 16});
    QSignalSpy finished(&analyzer, &KrAutoReframeAnalyzer::sigAnalyzeFinished);
    m_service.Answer(0, FakeHost::MakeResults(3));
    m_service.ForgetCalls();
    m_service.Fire(Ended, 100);
    EXPECT_EQ(m_service.Calls(), QStringList{QStringLiteral("GetResults(a.mp4, 0 entries)")});
    ASSERT_EQ(finished.count(), 1);
    EXPECT_TRUE(finished.at(0).at(0).toBool());
    ASSERT_EQ(analyzer.GetResults().size(), 3);
    EXPECT_DOUBLE_EQ(analyzer.GetResults().at(2).cropRect().x(), 0.002);
}

TEST_F(TestKrAutoReframeAnalyzer, TheSecondOfTwoCompletionsReplacesTheList)
{
    KrAutoReframeAnalyzer analyzer;
    QSignalSpy finished(&analyzer, &KrAutoReframeAnalyzer::sigAnalyzeFinished);
    m_service.Answer(0, FakeHost::MakeResults(3));
    m_service.Fire(Ended, 100);
    m_service.Answer(0, FakeHost::MakeResults(2, 0.5));
    m_service.ForgetCalls();
    m_service.Fire(Ended, 100);
    EXPECT_EQ(m_service.Calls(), QStringList{QStringLiteral("GetResults(, 0 entries)")});
    EXPECT_EQ(finished.count(), 2);
    ASSERT_EQ(analyzer.GetResults().size(), 2);
    EXPECT_DOUBLE_EQ(analyzer.GetResults().at(0).cropRect().x(), 0.5);
}

TEST_F(TestKrAutoReframeAnalyzer, AFailedFetchFinishesWithFalseAndKeepsWhatTheServiceLeft)
{
    KrAutoReframeAnalyzer analyzer;
    QSignalSpy finished(&analyzer, &KrAutoReframeAnalyzer::sigAnalyzeFinished);
    m_service.Answer(0, FakeHost::MakeResults(5));
    m_service.Fire(Ended, 100);
    m_service.Answer(-1, FakeHost::MakeResults(1, 0.5));
    m_service.Fire(Ended, 100);
    ASSERT_EQ(finished.count(), 2);
    EXPECT_FALSE(finished.at(1).at(0).toBool());
    EXPECT_EQ(analyzer.GetResults().size(), 1);
}

TEST_F(TestKrAutoReframeAnalyzer, AnEmptyFetchIsASuccess)
{
    KrAutoReframeAnalyzer analyzer;
    QSignalSpy finished(&analyzer, &KrAutoReframeAnalyzer::sigAnalyzeFinished);
    m_service.Answer(3, {});
    m_service.Fire(Ended, 100);
    ASSERT_EQ(finished.count(), 1);
    EXPECT_TRUE(finished.at(0).at(0).toBool());
}

TEST_F(TestKrAutoReframeAnalyzer, ProgressComesBeforeTheEnd)
{
    KrAutoReframeAnalyzer analyzer;
    QStringList order;
    QObject::connect(&analyzer, &KrAutoReframeAnalyzer::sigAnalyzeProgress, &analyzer,
                     [&order] { order << QStringLiteral("progress"); });
    QObject::connect(&analyzer, &KrAutoReframeAnalyzer::sigAnalyzeFinished, &analyzer,
                     [&order] { order << QStringLiteral("finished"); });
    m_service.Fire(Ended, 100);
    EXPECT_EQ(order.join(QLatin1Char(' ')), QStringLiteral("progress finished"));
}

TEST_F(TestKrAutoReframeAnalyzer, StopWorkStopsTheTaskAndTheNextCompletionIsACancellation)
{
    KrAutoReframeAnalyzer analyzer;
    QSignalSpy finished(&analyzer, &KrAutoReframeAnalyzer::sigAnalyzeFinished);
    QSignalSpy canceled(&analyzer, &KrAutoReframeAnalyzer::sigAnalyzeCanceled);
    m_service.Answer(0, FakeHost::MakeResults(3));
    m_service.Fire(Ended, 100);
    m_service.ForgetCalls();
    analyzer.StopWork();
    EXPECT_EQ(m_service.Calls(), QStringList{QStringLiteral("StopTask(0)")});
    EXPECT_EQ(canceled.count(), 0);

    m_service.ForgetCalls();
    m_service.Fire(Ended, 100);
    EXPECT_TRUE(m_service.Calls().isEmpty());
    EXPECT_EQ(canceled.count(), 1);
    EXPECT_EQ(finished.count(), 1);
    EXPECT_TRUE(analyzer.GetResults().isEmpty());

    m_service.Fire(Ended, 100);
    EXPECT_EQ(canceled.count(), 1);
    EXPECT_EQ(finished.count(), 2);
    EXPECT_EQ(analyzer.GetResults().size(), 3);
}

TEST_F(TestKrAutoReframeAnalyzer, ProgressDoesNotConsumeTheCancelMark)
{
    KrAutoReframeAnalyzer analyzer;
    QSignalSpy canceled(&analyzer, &KrAutoReframeAnalyzer::sigAnalyzeCanceled);
    analyzer.StopWork();
    m_service.Fire(Running, 50);
    m_service.Fire(Ended, 99);
    EXPECT_EQ(canceled.count(), 0);
    m_service.Fire(Ended, 100);
    EXPECT_EQ(canceled.count(), 1);
}

TEST_F(TestKrAutoReframeAnalyzer, AStartKeepsTheMarkOfAStopMadeWhileNothingRan)
{
    KrAutoReframeAnalyzer analyzer;
    QSignalSpy finished(&analyzer, &KrAutoReframeAnalyzer::sigAnalyzeFinished);
    QSignalSpy canceled(&analyzer, &KrAutoReframeAnalyzer::sigAnalyzeCanceled);
    analyzer.StopWork();
    EXPECT_TRUE(analyzer.Start());
    m_service.Fire(Ended, 100);
    EXPECT_EQ(canceled.count(), 1);
    EXPECT_EQ(finished.count(), 0);
}

TEST_F(TestKrAutoReframeAnalyzer, TwoStopsLeaveOneMark)
{
    KrAutoReframeAnalyzer analyzer;
    QSignalSpy finished(&analyzer, &KrAutoReframeAnalyzer::sigAnalyzeFinished);
    QSignalSpy canceled(&analyzer, &KrAutoReframeAnalyzer::sigAnalyzeCanceled);
    analyzer.StopWork();
    analyzer.StopWork();
    analyzer.ProcessResult();
    analyzer.ProcessResult();
    EXPECT_EQ(canceled.count(), 1);
    EXPECT_EQ(finished.count(), 1);
}

TEST_F(TestKrAutoReframeAnalyzer, TheMarkIsKeptUntilTheCancellationWasReported)
{
    KrAutoReframeAnalyzer analyzer;
    QSignalSpy canceled(&analyzer, &KrAutoReframeAnalyzer::sigAnalyzeCanceled);
    bool isNested = false;
    QObject::connect(&analyzer, &KrAutoReframeAnalyzer::sigAnalyzeCanceled, &analyzer, [&analyzer, &isNested] {
        if (!isNested) {
            isNested = true;
            analyzer.ProcessResult();
        }
    });
    analyzer.StopWork();
    analyzer.ProcessResult();
    EXPECT_EQ(canceled.count(), 2);
}

TEST_F(TestKrAutoReframeAnalyzer, DestructionStopsTheTaskAndThenUnregisters)
{
    {
        const KrAutoReframeAnalyzer analyzer;
        m_service.ForgetCalls();
    }
    const QStringList expected{QStringLiteral("StopTask(0)"), QStringLiteral("RemoveObserver")};
    EXPECT_EQ(m_service.Calls(), expected);
}

TEST_F(TestKrAutoReframeAnalyzer, SignalsAreEmittedFromInsideTheServicesCall)
{
    KrAutoReframeAnalyzer analyzer;
    const std::thread::id ownThread = std::this_thread::get_id();
    std::thread::id signalThread;
    QObject::connect(
        &analyzer, &KrAutoReframeAnalyzer::sigAnalyzeFinished, &analyzer,
        [&signalThread] { signalThread = std::this_thread::get_id(); }, Qt::DirectConnection);
    m_service.FireFromThread(Ended, 100);
    EXPECT_NE(signalThread, std::thread::id());
    EXPECT_NE(signalThread, ownThread);
}

TEST_F(TestKrAutoReframeAnalyzer, AnAutomaticConnectionBringsTheEndToTheListenersThread)
{
    KrAutoReframeAnalyzer analyzer;
    QObject listener;
    QThread* deliveredOn = nullptr;
    int resultCount = -1;
    QObject::connect(&analyzer, &KrAutoReframeAnalyzer::sigAnalyzeFinished, &listener, [&] {
        deliveredOn = QThread::currentThread();
        resultCount = analyzer.GetResults().size();
    });
    m_service.Answer(0, FakeHost::MakeResults(40));
    std::thread serviceThread([this] {
        m_service.Fire(Running, 50);
        m_service.Fire(Ended, 100);
    });
    serviceThread.join();
    EXPECT_EQ(deliveredOn, nullptr);
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(deliveredOn, QThread::currentThread());
    EXPECT_EQ(resultCount, 40);
}

TEST_F(TestKrAutoReframeAnalyzer, CanBeDestroyedWhileEventsCome)
{
    for (int round = 0; round < 20; ++round) {
        m_service.Answer(0, FakeHost::MakeResults(50));
        auto analyzer = std::make_unique<KrAutoReframeAnalyzer>();
        std::atomic_bool isOver{false};
        FakeHost::Gate running;
        std::thread serviceThread([this, &isOver, &running] {
            while (!isOver) {
                m_service.Fire(Ended, 100);
                running.Open();
            }
        });
        running.Wait();
        analyzer.reset();
        const int callCount = m_service.Calls().size();
        isOver = true;
        serviceThread.join();
        EXPECT_EQ(m_service.Calls().size(), callCount);
    }
}

TEST_F(TestKrAutoReframeAnalyzer, ParametersCanBeSetWhileACompletionReadsThem)
{
    KrAutoReframeAnalyzer analyzer;
    std::thread serviceThread([this] {
        for (int event = 0; event < 200; ++event) {
            m_service.Fire(Ended, 100);
        }
    });
    for (int start = 0; start < 200; ++start) {
        analyzer.SetParam({QStringLiteral("clip %1.mp4").arg(start), 9, 16, 16});
        analyzer.Start();
    }
    serviceThread.join();
    EXPECT_EQ(analyzer.GetParam().path, QStringLiteral("clip 199.mp4"));
}

TEST_F(TestKrAutoReframeAnalyzer, SignalsComeFirstAndThenTheSlotsInTheirOrder)
{
    const QMetaObject& meta = KrAutoReframeAnalyzer::staticMetaObject;
    QStringList methods;
    for (int index = meta.methodOffset(); index < meta.methodCount(); ++index) {
        const QMetaMethod method = meta.method(index);
        const QString kind =
            method.methodType() == QMetaMethod::Signal ? QStringLiteral("signal ") : QStringLiteral("slot ");
        methods << kind + QString::fromLatin1(method.methodSignature());
    }
    const QStringList expected{QStringLiteral("signal sigAnalyzeProgress(double)"),
                               QStringLiteral("signal sigAnalyzeFinished(bool)"),
                               QStringLiteral("signal sigAnalyzeCanceled()"), QStringLiteral("slot StopWork()"),
                               QStringLiteral("slot ProcessResult()")};
    EXPECT_EQ(methods.join(QLatin1Char('\n')), expected.join(QLatin1Char('\n')));
}
