#include <Tests/KrAutoReframe/Engine/ProcessTest.h>

#include <QCoreApplication>
#include <QThreadPool>

#include <atomic>
#include <thread>

using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(TestKrAutoReframeProcess, AnalysisProgressCoversEightThousand)
{
    for (const int percent : {0, 1, 29, 50, 57, 99, 100}) {
        m_service.Fire(Running, percent);
    }
    // 0.57 * 10000 * 0.8 is slightly below 4560 and is truncated.
    EXPECT_THAT(m_listener->progress, ElementsAre(0, 80, 2320, 4000, 4559, 7920, 8000));
}

TEST_F(TestKrAutoReframeProcess, AnalysisProgressAboveOneIsHeldAtEightThousand)
{
    m_service.Fire(Running, 120);
    EXPECT_THAT(m_listener->progress, ElementsAre(8000));
}

TEST_F(TestKrAutoReframeProcess, KeyFrameProgressCoversTheRestAndIsNotHeld)
{
    KrAutoReframeHelper* const helper = m_process->GetHelper().get();
    for (const double progress : {0.0, 0.0001, 0.0007, 0.5, 0.9999, 1.0, 1.5}) {
        Q_EMIT helper->sigApplyProgress(progress);
    }
    EXPECT_THAT(m_listener->progress, ElementsAre(8000, 8000, 8001, 9000, 9999, 10000, 11000));
}

TEST_F(TestKrAutoReframeProcess, AWholeJobRunsFromTheEventsToTheKeyFrames)
{
    Open(40);
    m_service.Answer(0, FakeHost::MakeResults(40));
    EXPECT_EQ(m_process->StartAnalyze(9, 16, 16), 0);
    m_service.FireFromThread(Running, 50);
    m_service.FireFromThread(Ended, 100);
    EXPECT_TRUE(WaitForFinished());
    std::vector<int> expected{4000, 8000};
    for (int frame = 1; frame < 40; ++frame) {
        expected.push_back(static_cast<int>(frame * 10000 / 40 / 10000.0 * 10000 * 0.2 + 8000));
    }
    EXPECT_EQ(expected.back(), 9950);
    EXPECT_EQ(m_listener->progress, expected);
    EXPECT_EQ(m_listener->said.last(), QStringLiteral("finished true"));
    EXPECT_EQ(m_listener->ends, QStringList{QStringLiteral("finished true")});
    EXPECT_TRUE(m_listener->isAllOnOwnThread);
    EXPECT_EQ(WorkKeyFrames().KeyFrames().size(), 40);
}

TEST_F(TestKrAutoReframeProcess, AFailedAnalysisReportsItsEndAndThenTheError)
{
    Open(40);
    m_service.Answer(-1, {});
    EXPECT_EQ(m_process->StartAnalyze(9, 16, 16), 0);
    m_service.FireFromThread(Ended, 100);
    EXPECT_THAT(m_listener->said, IsEmpty());
    QCoreApplication::sendPostedEvents();
    const QStringList expected{QStringLiteral("finished false"), QStringLiteral("error []")};
    EXPECT_EQ(m_listener->ends, expected);
    EXPECT_TRUE(m_listener->isAllOnOwnThread);
}

TEST_F(TestKrAutoReframeProcess, AFailedAnalysisAppliesNothingEvenWhereResultsWereLeft)
{
    Open(40);
    m_service.Answer(-1, FakeHost::MakeResults(40));
    m_service.Fire(Ended, 100);
    const QStringList expected{QStringLiteral("finished false"), QStringLiteral("error []")};
    EXPECT_EQ(m_listener->ends, expected);
    EXPECT_EQ(WorkKeyFrames().PushCount(), 0);
}

TEST_F(TestKrAutoReframeProcess, AnAnalysisWithNothingToApplySucceedsAndReportsTheError)
{
    Open(40);
    m_service.Answer(0, {});
    m_service.Fire(Ended, 100);
    const QStringList expected{QStringLiteral("finished true"), QStringLiteral("error []")};
    EXPECT_EQ(m_listener->ends, expected);
}

TEST_F(TestKrAutoReframeProcess, FewerResultsThanFramesAreNothingToApply)
{
    Open(40);
    m_service.Answer(0, FakeHost::MakeResults(39));
    m_service.Fire(Ended, 100);
    const QStringList expected{QStringLiteral("finished true"), QStringLiteral("error []")};
    EXPECT_EQ(m_listener->ends, expected);
}

TEST_F(TestKrAutoReframeProcess, ACancelledAnalysisFinishesWithoutAnError)
{
    Open(40);
    m_process->GetAnalyzer()->StopWork();
    m_service.Fire(Ended, 100);
    EXPECT_EQ(m_listener->ends, QStringList{QStringLiteral("finished false")});
}

TEST_F(TestKrAutoReframeProcess, StoppingStopsTheTaskWithoutMarkingTheAnalyzer)
{
    Open(40);
    EXPECT_EQ(m_process->StartAnalyze(9, 16, 16), 0);
    m_service.ForgetCalls();
    m_process->StopProcess();
    EXPECT_EQ(m_service.Calls(), QStringList{QStringLiteral("StopTask(0)")});
    EXPECT_THAT(m_listener->said, IsEmpty());

    m_service.Answer(0, FakeHost::MakeResults(40));
    EXPECT_EQ(m_process->StartAnalyze(9, 16, 16), 0);
    m_service.FireFromThread(Ended, 100);
    EXPECT_TRUE(WaitForFinished());
    EXPECT_EQ(m_listener->ends, QStringList{QStringLiteral("finished true")});
}

TEST_F(TestKrAutoReframeProcess, StoppingCancelsTheKeyFrameTask)
{
    Open(40);
    FakeHost::Gate reached;
    FakeHost::Gate release;
    WorkKeyFrames().SetOnPush([&reached, &release] {
        reached.Open();
        release.Wait();
    });
    m_service.Answer(0, FakeHost::MakeResults(40));
    m_service.Fire(Ended, 100);
    reached.Wait();
    m_process->StopProcess();
    release.Open();
    EXPECT_TRUE(WaitForFinished());
    EXPECT_EQ(m_listener->ends, QStringList{QStringLiteral("finished false")});
}

TEST_F(TestKrAutoReframeProcess, ACompletionThatIsQueuedWhenTheJobIsStoppedIsDropped)
{
    Open(40);
    m_service.Answer(0, FakeHost::MakeResults(40));
    EXPECT_EQ(m_process->StartAnalyze(9, 16, 16), 0);
    m_service.FireFromThread(Running, 50);
    m_service.FireFromThread(Ended, 100);
    m_process->StopProcess();
    QCoreApplication::sendPostedEvents();
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::sendPostedEvents();
    EXPECT_THAT(m_listener->said, IsEmpty());
    EXPECT_EQ(WorkKeyFrames().PushCount(), 0);
}

TEST_F(TestKrAutoReframeProcess, ACompletionOfAnOlderJobDoesNotReachANewerOne)
{
    Open(40);
    m_service.Answer(0, FakeHost::MakeResults(40, 0.1));
    EXPECT_EQ(m_process->StartAnalyze(9, 16, 16), 0);
    m_service.FireFromThread(Running, 50);
    m_service.FireFromThread(Ended, 100);
    EXPECT_EQ(m_process->StartAnalyze(1, 1, 16), 0);
    QCoreApplication::sendPostedEvents();
    EXPECT_THAT(m_listener->said, IsEmpty());
    EXPECT_EQ(WorkKeyFrames().PushCount(), 0);

    m_service.Answer(0, FakeHost::MakeResults(40, 0.2));
    m_service.FireFromThread(Ended, 100);
    EXPECT_TRUE(WaitForFinished());
    EXPECT_EQ(m_listener->ends, QStringList{QStringLiteral("finished true")});
    EXPECT_DOUBLE_EQ(WorkKeyFrames().KeyFrames().first().cropRect.x(), 0.2);
}

TEST_F(TestKrAutoReframeProcess, AFailureOfAnOlderJobDoesNotReachANewerOne)
{
    Open(40);
    m_service.Answer(-1, {});
    EXPECT_EQ(m_process->StartAnalyze(9, 16, 16), 0);
    m_service.FireFromThread(Ended, 100);
    EXPECT_EQ(m_process->StartAnalyze(1, 1, 16), 0);
    QCoreApplication::sendPostedEvents();
    EXPECT_THAT(m_listener->said, IsEmpty());
}

TEST_F(TestKrAutoReframeProcess, TheKeyFrameTaskOfAnOlderJobDoesNotEndANewerOne)
{
    Open(40);
    m_service.Answer(0, FakeHost::MakeResults(40, 0.1));
    m_service.Fire(Ended, 100);
    m_process->StopProcess();
    QThreadPool::globalInstance()->waitForDone();
    EXPECT_EQ(m_process->StartAnalyze(1, 1, 16), 0);
    QCoreApplication::sendPostedEvents();
    EXPECT_THAT(m_listener->ends, IsEmpty());

    m_service.Answer(0, FakeHost::MakeResults(40, 0.2));
    m_service.FireFromThread(Ended, 100);
    EXPECT_TRUE(WaitForFinished());
    EXPECT_EQ(m_listener->ends, QStringList{QStringLiteral("finished true")});
    EXPECT_DOUBLE_EQ(WorkKeyFrames().KeyFrames().first().cropRect.x(), 0.2);
}

TEST_F(TestKrAutoReframeProcess, AKeyFrameTaskThatStillRunsIsStoppedByANewerJob)
{
    Open(20000);
    FakeHost::Gate reached;
    QObject::connect(
        m_process->GetHelper().get(), &KrAutoReframeHelper::sigApplyProgress, m_process->GetHelper().get(),
        [&reached] { reached.Open(); }, Qt::DirectConnection);
    m_service.Answer(0, FakeHost::MakeResults(20000, 0.1));
    m_service.Fire(Ended, 100);
    reached.Wait();
    m_listener->said.clear();
    EXPECT_EQ(m_process->StartAnalyze(1, 1, 16), 0);
    QCoreApplication::sendPostedEvents();
    EXPECT_THAT(m_listener->said, IsEmpty());

    m_service.Answer(0, FakeHost::MakeResults(20000, 0.2));
    m_service.FireFromThread(Ended, 100);
    EXPECT_TRUE(WaitForFinished());
    EXPECT_EQ(m_listener->ends, QStringList{QStringLiteral("finished true")});
    EXPECT_DOUBLE_EQ(WorkKeyFrames().KeyFrames().first().cropRect.x(), 0.2);
}

TEST_F(TestKrAutoReframeProcess, StoppedBeforeTheEndOfTheKeyFramesIsDeliveredTheJobIsCancelled)
{
    Open(40);
    m_service.Answer(0, FakeHost::MakeResults(40));
    m_service.Fire(Ended, 100);
    QThreadPool::globalInstance()->waitForDone();
    m_process->StopProcess();
    EXPECT_TRUE(WaitForFinished());
    EXPECT_EQ(m_listener->ends, QStringList{QStringLiteral("finished false")});
}

TEST_F(TestKrAutoReframeProcess, ApplyResultsNeedsResults)
{
    Open(40);
    EXPECT_FALSE(m_process->ApplyResults());
    m_service.Answer(0, FakeHost::MakeResults(40));
    m_service.Fire(Ended, 100);
    EXPECT_TRUE(WaitForFinished());
    EXPECT_TRUE(m_process->ApplyResults());
    EXPECT_TRUE(WaitForFinished());
    EXPECT_EQ(WorkKeyFrames().PushCount(), 2);
}

TEST_F(TestKrAutoReframeProcess, ApplyResultsReportsARefusalOfTheHelper)
{
    Open(40);
    m_service.Answer(0, FakeHost::MakeResults(20));
    m_service.Fire(Ended, 100);
    EXPECT_FALSE(m_process->ApplyResults());
}

TEST_F(TestKrAutoReframeProcess, TwoCompletionsEndTheJobOnce)
{
    Open(40);
    m_service.Answer(0, FakeHost::MakeResults(40));
    EXPECT_EQ(m_process->StartAnalyze(9, 16, 16), 0);
    m_service.FireFromThread(Ended, 100);
    m_service.FireFromThread(Ended, 100);
    EXPECT_TRUE(WaitForFinished());
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(m_listener->ends, QStringList{QStringLiteral("finished true")});
}

TEST_F(TestKrAutoReframeProcess, DestructionStopsTheAnalysis)
{
    Open(40);
    EXPECT_EQ(m_process->StartAnalyze(9, 16, 16), 0);
    m_service.ForgetCalls();
    m_process.reset();
    const QStringList expected{QStringLiteral("StopTask(0)"), QStringLiteral("RemoveObserver")};
    EXPECT_EQ(m_service.Calls(), expected);
}

TEST_F(TestKrAutoReframeProcess, TheHelperLivesOnWithItsLastOwner)
{
    Open(40);
    const std::shared_ptr<KrAutoReframeHelper> helper = m_process->GetHelper();
    m_process.reset();
    EXPECT_EQ(helper.use_count(), 1);
    EXPECT_EQ(helper->GetDuration(), 40);
}

TEST_F(TestKrAutoReframeProcess, CanBeDestroyedWhileEventsCome)
{
    for (int round = 0; round < 20; ++round) {
        m_process = std::make_unique<KrAutoReframeProcess>(nullptr);
        Open(40);
        m_service.Answer(0, FakeHost::MakeResults(40));
        std::atomic_bool isOver{false};
        FakeHost::Gate running;
        std::thread serviceThread([this, &isOver, &running] {
            while (!isOver) {
                m_service.Fire(Running, 50);
                m_service.Fire(Ended, 100);
                running.Open();
            }
        });
        running.Wait();
        m_process.reset();
        isOver = true;
        serviceThread.join();
        QCoreApplication::sendPostedEvents();
    }
    EXPECT_THAT(m_listener->said, IsEmpty());
}

TEST_F(TestKrAutoReframeProcess, CanBeDestroyedWhileTheKeyFrameTaskRuns)
{
    Open(20000);
    FakeHost::Gate reached;
    QObject::connect(
        m_process->GetHelper().get(), &KrAutoReframeHelper::sigApplyProgress, m_process->GetHelper().get(),
        [&reached] { reached.Open(); }, Qt::DirectConnection);
    m_service.Answer(0, FakeHost::MakeResults(20000));
    m_service.Fire(Ended, 100);
    reached.Wait();
    m_process.reset();
    EXPECT_EQ(FakeHost::LiveTimelines(), 1);
    QCoreApplication::sendPostedEvents();
    EXPECT_THAT(m_listener->ends, IsEmpty());
}

TEST_F(TestKrAutoReframeProcess, AnalysedAgainItFinishesAgain)
{
    Open(40);
    for (int round = 1; round <= 2; ++round) {
        m_service.Answer(0, FakeHost::MakeResults(40, round * 0.1));
        EXPECT_EQ(m_process->StartAnalyze(9, 16, 16), 0);
        m_service.FireFromThread(Ended, 100);
        EXPECT_TRUE(WaitForFinished());
        EXPECT_EQ(m_listener->ends.size(), round);
        EXPECT_DOUBLE_EQ(WorkKeyFrames().KeyFrames().first().cropRect.x(), round * 0.1);
    }
}
