#include "HelperTest.h"

#include <QCoreApplication>
#include <QThreadPool>
#include <QtConcurrent>

#include <atomic>

using testing::ElementsAre;
using testing::IsEmpty;
using Peer = KrAutoReframeHelperPeer;

TEST_F(TestKrAutoReframeHelper, StartedTwiceItRunsOnce)
{
    Open(100);
    FakeHost::Gate reached;
    FakeHost::Gate release;
    AtFirstProgress([&reached, &release] {
        reached.Open();
        release.Wait();
    });
    EXPECT_TRUE(helper->ApplyResults(FakeHost::MakeResults(100)));
    reached.Wait();
    EXPECT_TRUE(helper->ApplyResults(FakeHost::MakeResults(100, 0.4)));
    EXPECT_TRUE(helper->ApplyResults({}));
    release.Open();
    EXPECT_TRUE(WaitForFinished());
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(WorkKeyFrames().PushCount(), 1);
    EXPECT_DOUBLE_EQ(PushedX(0), 0.0);
}

TEST_F(TestKrAutoReframeHelper, CancelledInTheMiddleItStopsAtTheNextFrameAndKeepsWhatItStored)
{
    Open(100);
    FakeHost::Gate reached;
    FakeHost::Gate release;
    AtFirstProgress([&reached, &release] {
        reached.Open();
        release.Wait();
    });
    QSignalSpy finished(helper.get(), &KrAutoReframeHelper::sigApplyFinished);
    EXPECT_TRUE(helper->ApplyResults(FakeHost::MakeResults(100)));
    reached.Wait();
    helper->Cancel();
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(finished.count(), 0);
    release.Open();
    ASSERT_TRUE(finished.wait(WaitMs));
    ASSERT_EQ(finished.count(), 1);
    EXPECT_FALSE(finished.at(0).at(0).toBool());
    EXPECT_EQ(PushedFrames(), QStringLiteral("0..1"));
    EXPECT_EQ(helper->GetResults().size(), 100);
    EXPECT_TRUE(helper->GetDisplayResults().isEmpty());
}

TEST_F(TestKrAutoReframeHelper, CancelledBeforeItsThreadIsFreeItMakesNothing)
{
    Open(100);
    QThreadPool* const pool = QThreadPool::globalInstance();
    FakeHost::Gate release;
    QList<QFuture<void>> blockers;
    for (int thread = 0; thread < pool->maxThreadCount(); ++thread) {
        blockers << QtConcurrent::run([&release] { release.Wait(); });
    }
    QSignalSpy finished(helper.get(), &KrAutoReframeHelper::sigApplyFinished);
    EXPECT_TRUE(helper->ApplyResults(FakeHost::MakeResults(100)));
    helper->Cancel();
    release.Open();
    ASSERT_TRUE(finished.wait(WaitMs));
    EXPECT_FALSE(finished.at(0).at(0).toBool());
    EXPECT_EQ(WorkKeyFrames().PushCount(), 0);
    EXPECT_TRUE(helper->GetResults().isEmpty());
    for (QFuture<void>& blocker : blockers) {
        blocker.waitForFinished();
    }
}

TEST_F(TestKrAutoReframeHelper, CancelledInItsLastStepItIsStillCancelled)
{
    OpenAndApply(100);
    helper->AddKeyFrame(10, Rect(0.5));
    FakeHost::Gate reached;
    FakeHost::Gate release;
    WorkKeyFrames().SetOnPush([&reached, &release] {
        reached.Open();
        release.Wait();
    });
    QSignalSpy finished(helper.get(), &KrAutoReframeHelper::sigApplyFinished);
    EXPECT_TRUE(helper->ApplyResults(FakeHost::MakeResults(100, 0.4)));
    reached.Wait();
    helper->Cancel();
    release.Open();
    ASSERT_TRUE(finished.wait(WaitMs));
    EXPECT_FALSE(finished.at(0).at(0).toBool());
    EXPECT_EQ(PushedFrames(), QStringLiteral("0..99"));
    EXPECT_DOUBLE_EQ(helper->GetResults().at(0).cropRect().x(), 0.4);
    EXPECT_EQ(EditFrames(), QList<uint>{10});
}

TEST_F(TestKrAutoReframeHelper, CancelledAfterItsEndItHasFinishedWell)
{
    Open(100);
    EXPECT_TRUE(helper->ApplyResults(FakeHost::MakeResults(100)));
    QThreadPool::globalInstance()->waitForDone();
    helper->Cancel();
    EXPECT_TRUE(WaitForFinished());
    EXPECT_EQ(helper->GetDisplayResults().size(), 100);
}

TEST_F(TestKrAutoReframeHelper, CancellingWhileNothingRunsLeavesNoMark)
{
    Open(100);
    helper->Cancel();
    QCoreApplication::sendPostedEvents();
    EXPECT_TRUE(Apply(100));
    EXPECT_EQ(PushedFrames(), QStringLiteral("0..99"));
}

TEST_F(TestKrAutoReframeHelper, AfterACancellationItCanRunAgain)
{
    Open(100);
    FakeHost::Gate reached;
    FakeHost::Gate release;
    AtFirstProgress([&reached, &release] {
        reached.Open();
        release.Wait();
    });
    QSignalSpy finished(helper.get(), &KrAutoReframeHelper::sigApplyFinished);
    EXPECT_TRUE(helper->ApplyResults(FakeHost::MakeResults(100)));
    reached.Wait();
    helper->Cancel();
    release.Open();
    ASSERT_TRUE(finished.wait(WaitMs));
    EXPECT_TRUE(Apply(100, 0.4));
    EXPECT_EQ(PushedFrames(), QStringLiteral("0..99"));
    EXPECT_DOUBLE_EQ(PushedX(0), 0.4);
}

TEST_F(TestKrAutoReframeHelper, WhileTheMutexIsBusyNothingIsStoredAndTheOldKeyFramesArePushed)
{
    OpenAndApply(100);
    FakeHost::Gate reached;
    FakeHost::Gate release;
    FakeHost::Gate pushed;
    AtFirstProgress([&reached, &release] {
        reached.Open();
        release.Wait();
    });
    WorkKeyFrames().SetOnPush([&pushed] { pushed.Open(); });
    EXPECT_TRUE(helper->ApplyResults(FakeHost::MakeResults(100, 0.4)));
    reached.Wait();
    Peer::Mutex(*helper).lock();
    Peer::SetCanceled(*helper);
    release.Open();
    pushed.Wait();
    Peer::Mutex(*helper).unlock();
    EXPECT_TRUE(WaitForFinished());
    EXPECT_EQ(WorkKeyFrames().PushCount(), 2);
    EXPECT_EQ(PushedFrames(), QStringLiteral("0..99"));
    EXPECT_DOUBLE_EQ(PushedX(0), 0.0);
    EXPECT_DOUBLE_EQ(helper->GetResults().at(0).cropRect().x(), 0.0);
}

TEST_F(TestKrAutoReframeHelper, WhileTheMutexIsBusyTheCancelMarkIsNotSeen)
{
    Open(100);
    int progressCount = 0;
    FakeHost::Gate reached;
    FakeHost::Gate release;
    FakeHost::Gate pushed;
    AtFirstProgress([&reached, &release] {
        reached.Open();
        release.Wait();
    });
    QObject::connect(helper.get(), &KrAutoReframeHelper::sigApplyProgress, helper.get(),
                     [&progressCount] { ++progressCount; });
    WorkKeyFrames().SetOnPush([&pushed] { pushed.Open(); });
    EXPECT_TRUE(helper->ApplyResults(FakeHost::MakeResults(100)));
    reached.Wait();
    Peer::Mutex(*helper).lock();
    Peer::SetCanceled(*helper);
    release.Open();
    pushed.Wait();
    Peer::Mutex(*helper).unlock();
    EXPECT_TRUE(WaitForFinished());
    EXPECT_EQ(progressCount, 99);
}

TEST_F(TestKrAutoReframeHelper, CanBeDestroyedWhileTheTaskRuns)
{
    for (int round = 0; round < 10; ++round) {
        helper = std::make_unique<KrAutoReframeHelper>();
        Open(20000);
        FakeHost::Gate reached;
        AtFirstProgress([&reached] { reached.Open(); });
        EXPECT_TRUE(helper->ApplyResults(FakeHost::MakeResults(20000)));
        reached.Wait();
        helper.reset();
        FakeHost::Reset();
        QCoreApplication::sendPostedEvents();
    }
}

TEST_F(TestKrAutoReframeHelper, CanBeDestroyedBeforeTheTaskHasStarted)
{
    Open(100);
    QThreadPool* const pool = QThreadPool::globalInstance();
    FakeHost::Gate release;
    QList<QFuture<void>> blockers;
    for (int thread = 0; thread < pool->maxThreadCount(); ++thread) {
        blockers << QtConcurrent::run([&release] { release.Wait(); });
    }
    EXPECT_TRUE(helper->ApplyResults(FakeHost::MakeResults(100)));
    helper.reset();
    EXPECT_EQ(FakeHost::LiveTimelines(), 1);
    release.Open();
    for (QFuture<void>& blocker : blockers) {
        blocker.waitForFinished();
    }
}

TEST_F(TestKrAutoReframeHelper, CanBeDestroyedRightAfterACancel)
{
    Open(20000);
    EXPECT_TRUE(helper->ApplyResults(FakeHost::MakeResults(20000)));
    helper->Cancel();
    helper.reset();
    EXPECT_EQ(FakeHost::LiveTimelines(), 1);
    QCoreApplication::sendPostedEvents();
}

TEST_F(TestKrAutoReframeHelper, ANewSourceWhileTheTaskRunsCancelsIt)
{
    Open(20000);
    FakeHost::Gate reached;
    AtFirstProgress([&reached] { reached.Open(); });
    QSignalSpy finished(helper.get(), &KrAutoReframeHelper::sigApplyFinished);
    EXPECT_TRUE(helper->ApplyResults(FakeHost::MakeResults(20000)));
    reached.Wait();
    Open(50);
    EXPECT_TRUE(helper->GetResults().isEmpty());
    EXPECT_EQ(FakeHost::LiveTimelines(), 3);
    ASSERT_TRUE(finished.count() == 1 || finished.wait(WaitMs));
    EXPECT_EQ(WorkKeyFrames().PushCount(), 0);
    EXPECT_TRUE(Apply(50));
    EXPECT_EQ(PushedFrames(), QStringLiteral("0..49"));
}

TEST_F(TestKrAutoReframeHelper, ResettingTheWorkingCopyWhileTheTaskRunsCancelsIt)
{
    Open(20000);
    FakeHost::Gate reached;
    AtFirstProgress([&reached] { reached.Open(); });
    EXPECT_TRUE(helper->ApplyResults(FakeHost::MakeResults(20000)));
    reached.Wait();
    EXPECT_TRUE(helper->ResetWorkTimeline(helper->GetSourceTimeline()));
    EXPECT_EQ(WorkKeyFrames().PushCount(), 0);
    EXPECT_EQ(FakeHost::LiveTimelines(), 2);
}

TEST_F(TestKrAutoReframeHelper, AnEditWhileTheTaskRunsWaitsForItsResults)
{
    Open(20000);
    FakeHost::Gate reached;
    AtFirstProgress([&reached] { reached.Open(); });
    EXPECT_TRUE(helper->ApplyResults(FakeHost::MakeResults(20000)));
    reached.Wait();
    EXPECT_LE(helper->GetResults().size(), 20000);
    EXPECT_TRUE(helper->AddKeyFrame(100, Rect(0.5)));
    EXPECT_EQ(PushedFrames(), QStringLiteral("0..75 100 125..19999"));
    EXPECT_TRUE(WaitForFinished());
    EXPECT_TRUE(EditFrames().isEmpty());
    EXPECT_DOUBLE_EQ(ShownX(100), 0.1);
}
