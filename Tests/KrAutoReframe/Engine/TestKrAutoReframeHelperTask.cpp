#include <Tests/KrAutoReframe/Engine/HelperTest.h>

#include <QCoreApplication>
#include <QThreadPool>
#include <QtConcurrent>

#include <memory>

namespace Peer = KrAutoReframeHelperPeer;

namespace
{

/// A place at which the task stops until it is let go.
struct HeldTask {
    void Hold()
    {
        reached.Open();
        release.Wait();
    }

    FakeHost::Gate reached;
    FakeHost::Gate release;
};

class TestKrAutoReframeHelperTask : public TestKrAutoReframeHelper
{
protected:
    /// Applies 100 results and returns when the task has reported its first progress and is held there.
    void ApplyUntilHeld(HeldTask& held, double x = 0.0)
    {
        AtFirstProgress([&held] { held.Hold(); });
        EXPECT_TRUE(helper->ApplyResults(FakeHost::MakeResults(100, x)));
        held.reached.Wait();
    }

    /// Opens a source of 20,000 frames, applies results and returns while the task runs.
    void OpenAndApplyUntilItRuns()
    {
        Open(20000);
        // The task may still be inside Open() when this function returns.
        const auto reached = std::make_shared<FakeHost::Gate>();
        AtFirstProgress([reached] { reached->Open(); });
        EXPECT_TRUE(helper->ApplyResults(FakeHost::MakeResults(20000)));
        reached->Wait();
    }
};

/// All threads of the global pool are taken until they are freed.
class BusyPool
{
public:
    BusyPool()
    {
        for (int thread = 0; thread < QThreadPool::globalInstance()->maxThreadCount(); ++thread) {
            m_threads << QtConcurrent::run([this] { m_release.Wait(); });
        }
    }
    ~BusyPool()
    {
        Free();
        for (QFuture<void>& thread : m_threads) {
            thread.waitForFinished();
        }
    }
    Q_DISABLE_COPY_MOVE(BusyPool)

    void Free() { m_release.Open(); }

private:
    FakeHost::Gate m_release;
    QList<QFuture<void>> m_threads;
};

} // namespace

TEST_F(TestKrAutoReframeHelperTask, StartedTwiceItRunsOnce)
{
    Open(100);
    HeldTask held;
    ApplyUntilHeld(held);
    EXPECT_TRUE(helper->ApplyResults(FakeHost::MakeResults(100, 0.4)));
    EXPECT_TRUE(helper->ApplyResults({}));
    held.release.Open();
    EXPECT_TRUE(WaitForFinished());
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(WorkKeyFrames().PushCount(), 1);
    EXPECT_DOUBLE_EQ(PushedX(0), 0.0);
}

TEST_F(TestKrAutoReframeHelperTask, CancelledInTheMiddleItStopsAtTheNextFrameAndKeepsWhatItStored)
{
    Open(100);
    QSignalSpy finished(helper.get(), &KrAutoReframeHelper::sigApplyFinished);
    HeldTask held;
    ApplyUntilHeld(held);
    helper->Cancel();
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(finished.count(), 0);
    held.release.Open();
    ASSERT_TRUE(finished.wait(WaitMs));
    ASSERT_EQ(finished.count(), 1);
    EXPECT_FALSE(finished.at(0).at(0).toBool());
    EXPECT_EQ(PushedFrames(), QStringLiteral("0..1"));
    EXPECT_EQ(helper->GetResults().size(), 100);
    EXPECT_TRUE(helper->GetDisplayResults().isEmpty());
}

TEST_F(TestKrAutoReframeHelperTask, CancelledBeforeItsThreadIsFreeItStoresNothing)
{
    Open(100);
    BusyPool busy;
    QSignalSpy finished(helper.get(), &KrAutoReframeHelper::sigApplyFinished);
    EXPECT_TRUE(helper->ApplyResults(FakeHost::MakeResults(100)));
    helper->Cancel();
    busy.Free();
    ASSERT_TRUE(finished.wait(WaitMs));
    EXPECT_FALSE(finished.at(0).at(0).toBool());
    EXPECT_EQ(WorkKeyFrames().PushCount(), 0);
    EXPECT_TRUE(helper->GetResults().isEmpty());
}

TEST_F(TestKrAutoReframeHelperTask, CancelledBeforeItsEndIsDeliveredItIsCancelled)
{
    Open(100);
    QSignalSpy finished(helper.get(), &KrAutoReframeHelper::sigApplyFinished);
    EXPECT_TRUE(helper->ApplyResults(FakeHost::MakeResults(100)));
    QThreadPool::globalInstance()->waitForDone();
    helper->Cancel();
    ASSERT_TRUE(finished.wait(WaitMs));
    ASSERT_EQ(finished.count(), 1);
    EXPECT_FALSE(finished.at(0).at(0).toBool());
    EXPECT_EQ(helper->GetResults().size(), 100);
    EXPECT_TRUE(helper->GetDisplayResults().isEmpty());
    EXPECT_TRUE(Apply(100, 0.4));
    EXPECT_DOUBLE_EQ(ShownX(0), 0.4);
}

TEST_F(TestKrAutoReframeHelperTask, ASecondApplicationCancelledInTheMiddleChangesNothing)
{
    OpenAndEdit();
    HeldTask held;
    ApplyUntilHeld(held, 0.4);
    helper->Cancel();
    QCoreApplication::sendPostedEvents();
    held.release.Open();
    ExpectCancelledAndUnchanged();
}

TEST_F(TestKrAutoReframeHelperTask, ASecondApplicationCancelledInItsLastStepChangesNothing)
{
    OpenAndEdit();
    HeldTask held;
    WorkKeyFrames().SetOnPush([&held] { held.Hold(); });
    EXPECT_TRUE(helper->ApplyResults(FakeHost::MakeResults(100, 0.4)));
    held.reached.Wait();
    helper->Cancel();
    held.release.Open();
    ExpectCancelledAndUnchanged();
}

TEST_F(TestKrAutoReframeHelperTask, ASecondApplicationCancelledBeforeItsEndIsDeliveredChangesNothing)
{
    OpenAndEdit();
    EXPECT_TRUE(helper->ApplyResults(FakeHost::MakeResults(100, 0.4)));
    QThreadPool::globalInstance()->waitForDone();
    helper->Cancel();
    ExpectCancelledAndUnchanged();
}

TEST_F(TestKrAutoReframeHelperTask, AnAbandonedTaskReportsNoEndAndChangesNothing)
{
    OpenAndEdit();
    QSignalSpy finished(helper.get(), &KrAutoReframeHelper::sigApplyFinished);
    EXPECT_TRUE(helper->ApplyResults(FakeHost::MakeResults(100, 0.4)));
    helper->AbandonTask();
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(finished.count(), 0);
    ExpectUnchanged();
    helper->AbandonTask();
    EXPECT_TRUE(Apply(100, 0.4));
    EXPECT_DOUBLE_EQ(ShownX(0), 0.4);
}

TEST_F(TestKrAutoReframeHelperTask, AnEditOfResultsWhoseApplicationIsCancelledAfterwardsStays)
{
    OpenAndEdit();
    QSignalSpy finished(helper.get(), &KrAutoReframeHelper::sigApplyFinished);
    EXPECT_TRUE(helper->ApplyResults(FakeHost::MakeResults(100, 0.4)));
    QThreadPool::globalInstance()->waitForDone();
    helper->AddKeyFrame(90, Rect(0.7));
    helper->Cancel();
    ASSERT_TRUE(finished.wait(WaitMs));
    EXPECT_FALSE(finished.at(0).at(0).toBool());
    EXPECT_EQ(EditFrames(), (QList<uint>{10, 90}));
    EXPECT_DOUBLE_EQ(ShownX(90), 0.7);
    EXPECT_DOUBLE_EQ(ShownX(50), 0.45);
    EXPECT_DOUBLE_EQ(PushedX(50), 0.45);
}

TEST_F(TestKrAutoReframeHelperTask, CancellingWhileNothingRunsLeavesNoMark)
{
    Open(100);
    helper->Cancel();
    QCoreApplication::sendPostedEvents();
    EXPECT_TRUE(Apply(100));
    EXPECT_EQ(PushedFrames(), QStringLiteral("0..99"));
}

TEST_F(TestKrAutoReframeHelperTask, AfterACancellationItCanRunAgain)
{
    Open(100);
    QSignalSpy finished(helper.get(), &KrAutoReframeHelper::sigApplyFinished);
    HeldTask held;
    ApplyUntilHeld(held);
    helper->Cancel();
    held.release.Open();
    ASSERT_TRUE(finished.wait(WaitMs));
    EXPECT_TRUE(Apply(100, 0.4));
    EXPECT_EQ(PushedFrames(), QStringLiteral("0..99"));
    EXPECT_DOUBLE_EQ(PushedX(0), 0.4);
}

TEST_F(TestKrAutoReframeHelperTask, WhileTheMutexIsBusyNothingIsStoredAndTheOldKeyFramesArePushed)
{
    OpenAndApply(100);
    HeldTask held;
    FakeHost::Gate pushed;
    WorkKeyFrames().SetOnPush([&pushed] { pushed.Open(); });
    ApplyUntilHeld(held, 0.4);
    Peer::Mutex(*helper).lock();
    Peer::SetCanceled(*helper);
    held.release.Open();
    pushed.Wait();
    Peer::Mutex(*helper).unlock();
    EXPECT_TRUE(WaitForFinished());
    EXPECT_EQ(WorkKeyFrames().PushCount(), 2);
    EXPECT_EQ(PushedFrames(), QStringLiteral("0..99"));
    EXPECT_DOUBLE_EQ(PushedX(0), 0.0);
    EXPECT_DOUBLE_EQ(helper->GetResults().at(0).cropRect().x(), 0.0);
}

TEST_F(TestKrAutoReframeHelperTask, WhileTheMutexIsBusyTheCancelMarkIsNotSeen)
{
    Open(100);
    int progressCount = 0;
    HeldTask held;
    FakeHost::Gate pushed;
    QObject::connect(helper.get(), &KrAutoReframeHelper::sigApplyProgress, helper.get(),
                     [&progressCount] { ++progressCount; });
    WorkKeyFrames().SetOnPush([&pushed] { pushed.Open(); });
    ApplyUntilHeld(held);
    Peer::Mutex(*helper).lock();
    Peer::SetCanceled(*helper);
    held.release.Open();
    pushed.Wait();
    Peer::Mutex(*helper).unlock();
    EXPECT_TRUE(WaitForFinished());
    EXPECT_EQ(progressCount, 99);
}

TEST_F(TestKrAutoReframeHelperTask, CanBeDestroyedWhileTheTaskRuns)
{
    for (int round = 0; round < 10; ++round) {
        helper = std::make_unique<KrAutoReframeHelper>();
        OpenAndApplyUntilItRuns();
        helper.reset();
        FakeHost::Reset();
        QCoreApplication::sendPostedEvents();
    }
}

TEST_F(TestKrAutoReframeHelperTask, CanBeDestroyedBeforeTheTaskHasStarted)
{
    Open(100);
    BusyPool busy;
    EXPECT_TRUE(helper->ApplyResults(FakeHost::MakeResults(100)));
    helper.reset();
    EXPECT_EQ(FakeHost::LiveTimelines(), 1);
    busy.Free();
}

TEST_F(TestKrAutoReframeHelperTask, CanBeDestroyedRightAfterACancel)
{
    Open(20000);
    EXPECT_TRUE(helper->ApplyResults(FakeHost::MakeResults(20000)));
    helper->Cancel();
    helper.reset();
    EXPECT_EQ(FakeHost::LiveTimelines(), 1);
    QCoreApplication::sendPostedEvents();
}

TEST_F(TestKrAutoReframeHelperTask, ANewSourceStopsTheRunningTaskWithoutAnEnd)
{
    QSignalSpy finished(helper.get(), &KrAutoReframeHelper::sigApplyFinished);
    OpenAndApplyUntilItRuns();
    Open(50);
    EXPECT_TRUE(helper->GetResults().isEmpty());
    EXPECT_EQ(FakeHost::LiveTimelines(), 3);
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(finished.count(), 0);
    EXPECT_EQ(WorkKeyFrames().PushCount(), 0);
    EXPECT_TRUE(Apply(50));
    EXPECT_EQ(PushedFrames(), QStringLiteral("0..49"));
}

TEST_F(TestKrAutoReframeHelperTask, ANewSourceDropsAnEndThatWasNotDelivered)
{
    Open(100);
    QSignalSpy finished(helper.get(), &KrAutoReframeHelper::sigApplyFinished);
    EXPECT_TRUE(helper->ApplyResults(FakeHost::MakeResults(100)));
    QThreadPool::globalInstance()->waitForDone();
    Open(50);
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(finished.count(), 0);
    EXPECT_TRUE(helper->GetDisplayResults().isEmpty());
    EXPECT_TRUE(Apply(50));
}

TEST_F(TestKrAutoReframeHelperTask, ResettingTheWorkingCopyWhileTheTaskRunsCancelsIt)
{
    OpenAndApplyUntilItRuns();
    EXPECT_TRUE(helper->ResetWorkTimeline(helper->GetSourceTimeline()));
    EXPECT_EQ(WorkKeyFrames().PushCount(), 0);
    EXPECT_EQ(FakeHost::LiveTimelines(), 2);
}

TEST_F(TestKrAutoReframeHelperTask, AnEditWhileTheTaskRunsWaitsForItsResults)
{
    OpenAndApplyUntilItRuns();
    EXPECT_LE(helper->GetResults().size(), 20000);
    EXPECT_TRUE(helper->AddKeyFrame(100, Rect(0.5)));
    EXPECT_EQ(PushedFrames(), QStringLiteral("0..75 100 125..19999"));
    EXPECT_TRUE(WaitForFinished());
    EXPECT_TRUE(EditFrames().isEmpty());
    EXPECT_DOUBLE_EQ(ShownX(100), 0.1);
}
