#include "KrAutoReframeHelperPeer.h"

#include <QCoreApplication>
#include <QMetaMethod>
#include <QSignalSpy>
#include <QThreadPool>
#include <QtConcurrent>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

constexpr uint NoFrame = 0xFFFFFFFFu;
constexpr int WaitMs = 60000;

using Peer = KrAutoReframeHelperPeer;

class TestKrAutoReframeHelper : public testing::Test, protected HelperFixture
{
protected:
    bool WaitForFinished()
    {
        QSignalSpy finished(helper.get(), &KrAutoReframeHelper::sigApplyFinished);
        return finished.wait(WaitMs) && finished.count() == 1 && finished.at(0).at(0).toBool();
    }

    bool Apply(int count, double firstX = 0.0)
    {
        return helper->ApplyResults(FakeHost::MakeResults(count, firstX)) && WaitForFinished();
    }

    void OpenAndApply(int frameCount, const KxRational& frameRate = {25, 1})
    {
        Open(frameCount, frameRate);
        ASSERT_TRUE(Apply(frameCount));
    }

    /// Calls `atProgress` on the worker's thread at the first progress that it reports.
    void AtFirstProgress(const std::function<void()>& atProgress)
    {
        auto isDone = std::make_shared<bool>(false);
        QObject::connect(
            helper.get(), &KrAutoReframeHelper::sigApplyProgress, helper.get(),
            [isDone, atProgress] {
                if (!*isDone) {
                    *isDone = true;
                    atProgress();
                }
            },
            Qt::DirectConnection);
    }

    QList<uint> EditFrames() const { return helper->GetEditPointFrames(); }
};

} // namespace

TEST_F(TestKrAutoReframeHelper, IsEmptyAtFirst)
{
    EXPECT_EQ(helper->parent(), nullptr);
    EXPECT_EQ(helper->GetSourceTimeline(), nullptr);
    EXPECT_EQ(helper->GetWorkTimeline(), nullptr);
    EXPECT_EQ(helper->GetDuration(), 0);
    EXPECT_TRUE(helper->GetResults().isEmpty());
    EXPECT_TRUE(helper->GetDisplayResults().isEmpty());
    EXPECT_TRUE(EditFrames().isEmpty());
}

TEST_F(TestKrAutoReframeHelper, SignalsStandInTheirOrder)
{
    const QMetaObject& meta = KrAutoReframeHelper::staticMetaObject;
    QStringList methods;
    for (int index = meta.methodOffset(); index < meta.methodCount(); ++index) {
        EXPECT_EQ(meta.method(index).methodType(), QMetaMethod::Signal);
        methods << QString::fromLatin1(meta.method(index).methodSignature());
    }
    EXPECT_EQ(methods.join(QLatin1Char(' ')), QStringLiteral("sigApplyProgress(double) sigApplyFinished(bool) "
                                                             "sigOpenTimelineFinished() sigCanUndoRedo(bool,bool)"));
}

TEST_F(TestKrAutoReframeHelper, ANullTimelineChangesNothing)
{
    Open(100);
    QSignalSpy opened(helper.get(), &KrAutoReframeHelper::sigOpenTimelineFinished);
    IKxTimeline* const before = helper->GetSourceTimeline();
    helper->SetTimeline(nullptr);
    EXPECT_EQ(opened.count(), 0);
    EXPECT_EQ(helper->GetSourceTimeline(), before);
    EXPECT_EQ(helper->GetDuration(), 100);
}

TEST_F(TestKrAutoReframeHelper, ASourceIsClonedWithKeyFramesOfItsOwn)
{
    QSignalSpy opened(helper.get(), &KrAutoReframeHelper::sigOpenTimelineFinished);
    FakeHost::Timeline* const source = FakeHost::MakeTimeline({Clip(100)});
    helper->SetTimeline(source);
    EXPECT_EQ(FakeHost::TimelineCalls(), QStringList{QStringLiteral("clone")});
    EXPECT_EQ(helper->GetSourceTimeline(), source);
    EXPECT_NE(helper->GetWorkTimeline(), nullptr);
    EXPECT_NE(helper->GetWorkTimeline(), source);
    EXPECT_EQ(helper->GetDuration(), 100);
    EXPECT_EQ(opened.count(), 1);
}

TEST_F(TestKrAutoReframeHelper, EverythingIsInPlaceWhenTheOpeningIsTold)
{
    OpenAndApply(100);
    helper->AddKeyFrame(10, Rect(0.5));
    bool isTold = false;
    FakeHost::Timeline* const source = FakeHost::MakeTimeline({Clip(50)});
    QObject::connect(helper.get(), &KrAutoReframeHelper::sigOpenTimelineFinished, helper.get(),
                     [this, source, &isTold] {
                         isTold = true;
                         EXPECT_EQ(helper->GetSourceTimeline(), source);
                         EXPECT_EQ(helper->GetDuration(), 50);
                         EXPECT_TRUE(EditFrames().isEmpty());
                     });
    helper->SetTimeline(source);
    EXPECT_TRUE(isTold);
}

TEST_F(TestKrAutoReframeHelper, ANewSourceReleasesTheWorkingCopyOfTheOneBeforeAndOnlyThat)
{
    FakeHost::Timeline* const first = FakeHost::MakeTimeline({Clip(100)});
    helper->SetTimeline(first);
    helper->SetTimeline(FakeHost::MakeTimeline({Clip(50)}));
    const QStringList expected{QStringLiteral("clone"), QStringLiteral("clone"), QStringLiteral("release")};
    EXPECT_EQ(FakeHost::TimelineCalls(), expected);
    EXPECT_EQ(FakeHost::LiveTimelines(), 3);
    EXPECT_EQ(first->clips().size(), 1);
}

TEST_F(TestKrAutoReframeHelper, DestructionReleasesTheWorkingCopyOnly)
{
    Open(100);
    EXPECT_EQ(FakeHost::LiveTimelines(), 2);
    helper.reset();
    EXPECT_EQ(FakeHost::LiveTimelines(), 1);
}

TEST_F(TestKrAutoReframeHelper, ACloneWithoutClipsIsDroppedAndThePreviousWorkingCopyStays)
{
    Open(100);
    IKxTimeline* const workBefore = helper->GetWorkTimeline();
    QSignalSpy opened(helper.get(), &KrAutoReframeHelper::sigOpenTimelineFinished);
    FakeHost::CloneWithoutClips(true);
    FakeHost::Timeline* const source = FakeHost::MakeTimeline({Clip(50)});
    helper->SetTimeline(source);
    EXPECT_EQ(helper->GetWorkTimeline(), workBefore);
    EXPECT_EQ(helper->GetSourceTimeline(), source);
    EXPECT_EQ(helper->GetDuration(), 50);
    EXPECT_EQ(opened.count(), 1);
    EXPECT_FALSE(FakeHost::TimelineCalls().contains(QStringLiteral("release")));
    EXPECT_EQ(FakeHost::LiveTimelines(), 4);
}

TEST_F(TestKrAutoReframeHelper, ASourceWithoutClipsHasNoFrames)
{
    Open(100);
    IKxTimeline* const workBefore = helper->GetWorkTimeline();
    helper->SetTimeline(FakeHost::MakeTimeline({}));
    EXPECT_EQ(helper->GetDuration(), 0);
    EXPECT_EQ(helper->GetWorkTimeline(), workBefore);
    EXPECT_FALSE(helper->AddKeyFrame(0, Rect(0.5)));
}

TEST_F(TestKrAutoReframeHelper, AClipWithoutAPictureHasNoFrames)
{
    FakeHost::Facts sound = Clip(100);
    sound.isVideo = false;
    helper->SetTimeline(FakeHost::MakeTimeline({sound}));
    EXPECT_EQ(helper->GetDuration(), 0);
}

TEST_F(TestKrAutoReframeHelper, TheFirstClipCounts)
{
    helper->SetTimeline(FakeHost::MakeTimeline({Clip(30), Clip(70)}));
    EXPECT_EQ(helper->GetDuration(), 30);
}

TEST_F(TestKrAutoReframeHelper, ANewSourceEmptiesResultsEditsAndTheUndoStack)
{
    OpenAndApply(100);
    helper->AddKeyFrame(10, Rect(0.5));
    Open(100);
    EXPECT_TRUE(helper->GetResults().isEmpty());
    EXPECT_TRUE(helper->GetDisplayResults().isEmpty());
    EXPECT_TRUE(EditFrames().isEmpty());
    EXPECT_EQ(Segments(), QString());
    helper->Undo();
    EXPECT_TRUE(EditFrames().isEmpty());
}

TEST_F(TestKrAutoReframeHelper, ResettingTheWorkingCopyLeavesEditsResultsAndTheUndoStack)
{
    OpenAndApply(100);
    helper->AddKeyFrame(10, Rect(0.5));
    IKxTimeline* const source = helper->GetSourceTimeline();
    IKxTimeline* const workBefore = helper->GetWorkTimeline();
    QSignalSpy opened(helper.get(), &KrAutoReframeHelper::sigOpenTimelineFinished);
    FakeHost::Timeline* const other = FakeHost::MakeTimeline({Clip(100)});
    EXPECT_TRUE(helper->ResetWorkTimeline(other));
    EXPECT_NE(helper->GetWorkTimeline(), workBefore);
    EXPECT_EQ(helper->GetSourceTimeline(), source);
    EXPECT_EQ(EditFrames(), QList<uint>{10});
    EXPECT_EQ(helper->GetResults().size(), 100);
    EXPECT_EQ(opened.count(), 0);
    EXPECT_EQ(FakeHost::LiveTimelines(), 3);
    helper->Undo();
    EXPECT_TRUE(EditFrames().isEmpty());
    EXPECT_EQ(PushedFrames(), QStringLiteral("0..99"));
}

TEST_F(TestKrAutoReframeHelper, ResettingToACopyWithoutClipsFails)
{
    Open(100);
    IKxTimeline* const workBefore = helper->GetWorkTimeline();
    EXPECT_FALSE(helper->ResetWorkTimeline(FakeHost::MakeTimeline({})));
    EXPECT_FALSE(helper->ResetWorkTimeline(nullptr));
    EXPECT_EQ(helper->GetWorkTimeline(), workBefore);
}

TEST_F(TestKrAutoReframeHelper, FewerResultsThanFramesAreRefusedAndChangeNothing)
{
    OpenAndApply(100);
    helper->AddKeyFrame(10, Rect(0.5));
    EXPECT_FALSE(helper->ApplyResults(FakeHost::MakeResults(99)));
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(WorkKeyFrames().PushCount(), 2);
    EXPECT_EQ(EditFrames(), QList<uint>{10});
}

TEST_F(TestKrAutoReframeHelper, AKeyFrameIsMadeOfEachResult)
{
    OpenAndApply(100);
    EXPECT_EQ(PushedFrames(), QStringLiteral("0..99"));
    EXPECT_EQ(WorkKeyFrames().PushCount(), 1);
    for (const KxCropPanZoomKeyFrameParam& keyFrame : WorkKeyFrames().KeyFrames()) {
        EXPECT_EQ(keyFrame.kind, 2);
        EXPECT_EQ(keyFrame.cropRect, QRectF(static_cast<double>(keyFrame.frame) / 1000.0, 0.0, 0.25, 1.0));
    }
    EXPECT_EQ(helper->GetResults().size(), 100);
    EXPECT_EQ(helper->GetDisplayResults().size(), 100);
    EXPECT_DOUBLE_EQ(ShownX(42), 0.042);
}

TEST_F(TestKrAutoReframeHelper, MoreResultsThanFramesAreCut)
{
    Open(100);
    EXPECT_TRUE(Apply(130));
    EXPECT_EQ(PushedFrames(), QStringLiteral("0..99"));
    EXPECT_EQ(helper->GetResults().size(), 100);
    EXPECT_EQ(helper->GetDisplayResults().size(), 100);
}

TEST_F(TestKrAutoReframeHelper, FramesAreNumberedByPlaceNotByTheResultsOwnNumber)
{
    Open(2);
    const QList<IKxAutoReframeResult> results{IKxAutoReframeResult(70, Rect(0.1)), IKxAutoReframeResult(80, Rect(0.2))};
    EXPECT_TRUE(helper->ApplyResults(results));
    EXPECT_TRUE(WaitForFinished());
    EXPECT_EQ(PushedFrames(), QStringLiteral("0..1"));
}

TEST_F(TestKrAutoReframeHelper, ProgressIsToldWhenItGrowsInTenThousandths)
{
    Open(8);
    std::vector<double> progress;
    QObject::connect(helper.get(), &KrAutoReframeHelper::sigApplyProgress, helper.get(),
                     [&progress](double value) { progress.push_back(value); });
    EXPECT_TRUE(Apply(8));
    EXPECT_THAT(progress, ElementsAre(0.125, 0.25, 0.375, 0.5, 0.625, 0.75, 0.875));
}

TEST_F(TestKrAutoReframeHelper, ProgressIsCutToTenThousandths)
{
    Open(7);
    std::vector<double> progress;
    QObject::connect(helper.get(), &KrAutoReframeHelper::sigApplyProgress, helper.get(),
                     [&progress](double value) { progress.push_back(value); });
    EXPECT_TRUE(Apply(7));
    EXPECT_THAT(progress, ElementsAre(0.1428, 0.2857, 0.4285, 0.5714, 0.7142, 0.8571));
}

TEST_F(TestKrAutoReframeHelper, ASingleFrameReportsNoProgress)
{
    Open(1);
    int progressCount = 0;
    QObject::connect(helper.get(), &KrAutoReframeHelper::sigApplyProgress, helper.get(),
                     [&progressCount] { ++progressCount; });
    EXPECT_TRUE(Apply(1));
    EXPECT_EQ(progressCount, 0);
    EXPECT_EQ(PushedFrames(), QStringLiteral("0"));
}

TEST_F(TestKrAutoReframeHelper, ProgressOfAClipOfHoursDoesNotWrap)
{
    constexpr int FrameCount = 440000;
    Open(FrameCount);
    std::atomic<double> last{0.0};
    std::atomic_int progressCount{0};
    std::atomic_bool isAscending{true};
    QObject::connect(
        helper.get(), &KrAutoReframeHelper::sigApplyProgress, helper.get(),
        [&last, &progressCount, &isAscending](double value) {
            isAscending = isAscending && value > last;
            last = value;
            ++progressCount;
        },
        Qt::DirectConnection);
    EXPECT_TRUE(Apply(FrameCount));
    EXPECT_TRUE(isAscending);
    EXPECT_DOUBLE_EQ(last, 0.9999);
    EXPECT_EQ(progressCount, 9999);
}

TEST_F(TestKrAutoReframeHelper, AppliedAgainTheResultsAreReplacedAndEditsDropped)
{
    OpenAndApply(100);
    helper->AddKeyFrame(10, Rect(0.5));
    EXPECT_TRUE(Apply(100, 0.4));
    EXPECT_TRUE(EditFrames().isEmpty());
    EXPECT_EQ(Segments(), QString());
    EXPECT_EQ(PushedFrames(), QStringLiteral("0..99"));
    EXPECT_DOUBLE_EQ(PushedX(10), 0.41);
    EXPECT_DOUBLE_EQ(ShownX(10), 0.41);
    helper->Undo();
    EXPECT_TRUE(EditFrames().isEmpty());
}

TEST_F(TestKrAutoReframeHelper, EditsAreGoneAndTheDisplayIsThereWhenTheEndIsTold)
{
    OpenAndApply(100);
    helper->AddKeyFrame(10, Rect(0.5));
    bool isTold = false;
    QObject::connect(helper.get(), &KrAutoReframeHelper::sigApplyFinished, helper.get(), [this, &isTold](bool success) {
        isTold = true;
        EXPECT_TRUE(success);
        EXPECT_TRUE(EditFrames().isEmpty());
        EXPECT_DOUBLE_EQ(ShownX(10), 0.41);
    });
    EXPECT_TRUE(Apply(100, 0.4));
    EXPECT_TRUE(isTold);
}

TEST_F(TestKrAutoReframeHelper, WithoutKeyFramesInTheClipTheTaskEndsWellAndStoresNothing)
{
    FakeHost::Facts facts = Clip(100);
    facts.hasCropKeyFrames = false;
    helper->SetTimeline(FakeHost::MakeTimeline({facts}));
    int progressCount = 0;
    QObject::connect(helper.get(), &KrAutoReframeHelper::sigApplyProgress, helper.get(),
                     [&progressCount] { ++progressCount; });
    EXPECT_TRUE(Apply(100));
    EXPECT_TRUE(helper->GetResults().isEmpty());
    EXPECT_EQ(progressCount, 0);
    EXPECT_TRUE(helper->AddKeyFrame(10, Rect(0.5)));
    EXPECT_TRUE(helper->GetDisplayResults().isEmpty());
}

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

TEST_F(TestKrAutoReframeHelper, AnEditTakesOverASecondOnBothSides)
{
    OpenAndApply(100);
    EXPECT_TRUE(helper->AddKeyFrame(50, Rect(0.9)));
    EXPECT_EQ(Segments(), QStringLiteral("25..75: 50"));
    EXPECT_EQ(PushedFrames(), QStringLiteral("0..25 50 75..99"));
    EXPECT_DOUBLE_EQ(PushedX(25), 0.025);
    EXPECT_DOUBLE_EQ(PushedX(50), 0.9);
    EXPECT_DOUBLE_EQ(PushedX(75), 0.075);
    EXPECT_EQ(WorkKeyFrames().PushCount(), 2);
}

TEST_F(TestKrAutoReframeHelper, AnEditNearTheStartIsCutAtFrameZero)
{
    OpenAndApply(100);
    helper->AddKeyFrame(10, Rect(0.9));
    EXPECT_EQ(Segments(), QStringLiteral("0..35: 10"));
    EXPECT_EQ(PushedFrames(), QStringLiteral("0 10 35..99"));
}

TEST_F(TestKrAutoReframeHelper, AnEditNearTheEndIsCutAtTheLastFrame)
{
    OpenAndApply(100);
    helper->AddKeyFrame(90, Rect(0.9));
    EXPECT_EQ(Segments(), QStringLiteral("65..99: 90"));
    EXPECT_EQ(PushedFrames(), QStringLiteral("0..65 90 99"));
}

TEST_F(TestKrAutoReframeHelper, AnEditAtAnEndOfItsRangeReplacesTheKeyFrameThere)
{
    OpenAndApply(100);
    helper->AddKeyFrame(0, Rect(0.8));
    helper->AddKeyFrame(99, Rect(0.9));
    EXPECT_EQ(Segments(), QStringLiteral("0..25: 0; 74..99: 99"));
    EXPECT_EQ(PushedFrames(), QStringLiteral("0 25..74 99"));
    EXPECT_DOUBLE_EQ(PushedX(0), 0.8);
    EXPECT_DOUBLE_EQ(PushedX(99), 0.9);
}

TEST_F(TestKrAutoReframeHelper, TheSecondIsTruncatedToWholeFrames)
{
    OpenAndApply(200, KxRational{30000, 1001});
    helper->AddKeyFrame(100, Rect(0.9));
    EXPECT_EQ(Segments(), QStringLiteral("71..129: 100"));
}

TEST_F(TestKrAutoReframeHelper, TheRateIsDividedAsAFraction)
{
    OpenAndApply(200, KxRational{5, 2});
    helper->AddKeyFrame(100, Rect(0.9));
    EXPECT_EQ(Segments(), QStringLiteral("98..102: 100"));
}

TEST_F(TestKrAutoReframeHelper, WithoutARateAnEditTakesOverItsOwnFrameOnly)
{
    for (const KxRational& rate : {KxRational{25, -1}, KxRational{25, 0}, KxRational{0, 1}}) {
        OpenAndApply(100, rate);
        helper->AddKeyFrame(50, Rect(0.9));
        EXPECT_EQ(Segments(), QStringLiteral("50..50: 50"));
        EXPECT_EQ(PushedFrames(), QStringLiteral("0..99"));
        EXPECT_DOUBLE_EQ(PushedX(50), 0.9);
        EXPECT_DOUBLE_EQ(ShownX(50), 0.9);
        EXPECT_DOUBLE_EQ(ShownX(51), 0.051);
    }
}

TEST_F(TestKrAutoReframeHelper, TheDisplayIsInterpolatedBetweenTheKeyFramesOfAnEdit)
{
    OpenAndApply(100);
    helper->AddKeyFrame(10, QRectF(0.9, 0.2, 0.5, 0.5));
    EXPECT_DOUBLE_EQ(ShownX(0), 0.0);
    EXPECT_NEAR(ShownX(5), 0.45, 1e-12);
    EXPECT_DOUBLE_EQ(ShownX(10), 0.9);
    EXPECT_NEAR(ShownX(20), 0.9 + (0.035 - 0.9) * 10 / 25, 1e-12);
    EXPECT_DOUBLE_EQ(ShownX(35), 0.035);
    EXPECT_DOUBLE_EQ(ShownX(36), 0.036);
    EXPECT_NEAR(helper->GetDisplayResults().at(5).cropRect().y(), 0.1, 1e-12);
    EXPECT_NEAR(helper->GetDisplayResults().at(5).cropRect().width(), 0.375, 1e-12);
    EXPECT_DOUBLE_EQ(helper->GetResults().at(10).cropRect().x(), 0.010);
}

TEST_F(TestKrAutoReframeHelper, AListOfTheDisplayThatWasTakenStaysAsItWas)
{
    OpenAndApply(100);
    helper->AddKeyFrame(10, Rect(0.9));
    const QList<IKxAutoReframeResult> taken = helper->GetDisplayResults();
    helper->AddKeyFrame(10, Rect(0.5));
    EXPECT_DOUBLE_EQ(taken.at(10).cropRect().x(), 0.9);
    EXPECT_DOUBLE_EQ(ShownX(10), 0.5);
}

TEST_F(TestKrAutoReframeHelper, EditsThatMeetMergeIntoOneSegment)
{
    OpenAndApply(100);
    helper->AddKeyFrame(10, Rect(0.9));
    helper->AddKeyFrame(40, Rect(0.8));
    EXPECT_EQ(Segments(), QStringLiteral("0..65: 10 40"));
    EXPECT_EQ(PushedFrames(), QStringLiteral("0 10 40 65..99"));
    EXPECT_EQ(EditFrames(), (QList<uint>{10, 40}));
    EXPECT_NEAR(ShownX(25), 0.85, 1e-12);
    EXPECT_DOUBLE_EQ(ShownX(65), 0.065);
}

TEST_F(TestKrAutoReframeHelper, AnEditThatTouchesOneFrameMerges)
{
    OpenAndApply(200);
    helper->AddKeyFrame(10, Rect(0.9));
    helper->AddKeyFrame(60, Rect(0.8));
    EXPECT_EQ(Segments(), QStringLiteral("0..85: 10 60"));
}

TEST_F(TestKrAutoReframeHelper, AnEditOneFrameFartherStaysApart)
{
    OpenAndApply(200);
    helper->AddKeyFrame(61, Rect(0.8));
    helper->AddKeyFrame(10, Rect(0.9));
    EXPECT_EQ(Segments(), QStringLiteral("0..35: 10; 36..86: 61"));
    EXPECT_EQ(PushedFrames(), QStringLiteral("0 10 35..36 61 86..199"));
}

TEST_F(TestKrAutoReframeHelper, ASecondEditOfAFrameReplacesItsRectangle)
{
    OpenAndApply(100);
    helper->AddKeyFrame(10, Rect(0.9));
    helper->AddKeyFrame(10, Rect(0.7));
    EXPECT_EQ(Segments(), QStringLiteral("0..35: 10"));
    EXPECT_EQ(EditFrames(), QList<uint>{10});
    EXPECT_DOUBLE_EQ(PushedX(10), 0.7);
}

TEST_F(TestKrAutoReframeHelper, TheSegmentAfterOneThatWasMergedIsNotLookedAtInThatPass)
{
    OpenAndApply(300);
    helper->AddKeyFrame(50, Rect(0.1));
    helper->AddKeyFrame(110, Rect(0.2));
    helper->AddKeyFrame(200, Rect(0.3));
    EXPECT_EQ(Segments(), QStringLiteral("25..75: 50; 85..135: 110; 175..225: 200"));

    EXPECT_EQ(helper->DoAddKeyFrame(80, Rect(0.4)), (KrAutoReframeHelper::FrameRange{25, 105}));
    EXPECT_EQ(Segments(), QStringLiteral("25..105: 50 80; 85..135: 110; 175..225: 200"));
}

TEST_F(TestKrAutoReframeHelper, TheSegmentAfterTheSkippedOneIsLookedAt)
{
    OpenAndApply(300);
    Peer::SetSegments(*helper, {KrEditSegment{10, 20, {20}}, KrEditSegment{35, 10, {40}}, KrEditSegment{50, 20, {60}}});
    helper->DoAddKeyFrame(38, Rect(0.4));
    EXPECT_EQ(Segments(), QStringLiteral("10..70: 20 38 60; 35..45: 40"));
}

TEST_F(TestKrAutoReframeHelper, AFrameAfterTheLastOneCountsAsTheLastOne)
{
    OpenAndApply(100);
    EXPECT_TRUE(helper->AddKeyFrame(NoFrame, Rect(0.9)));
    EXPECT_EQ(EditFrames(), QList<uint>{99});
    EXPECT_TRUE(helper->RemoveKeyFrame(100));
    EXPECT_TRUE(EditFrames().isEmpty());
}

TEST_F(TestKrAutoReframeHelper, WithoutFramesNothingCanBeEdited)
{
    EXPECT_FALSE(helper->AddKeyFrame(0, Rect(0.9)));
    EXPECT_FALSE(helper->RemoveKeyFrame(0));
    EXPECT_EQ(helper->DoAddKeyFrame(0, Rect(0.9)), (KrAutoReframeHelper::FrameRange{NoFrame, NoFrame}));
    EXPECT_EQ(helper->DoRemoveKeyFrame(0), (KrAutoReframeHelper::FrameRange{NoFrame, NoFrame}));
    EXPECT_TRUE(EditFrames().isEmpty());
}

TEST_F(TestKrAutoReframeHelper, AnEditFarBehindTheEndHasNoRange)
{
    OpenAndApply(100);
    EXPECT_EQ(helper->DoAddKeyFrame(200, Rect(0.9)), (KrAutoReframeHelper::FrameRange{NoFrame, NoFrame}));
    EXPECT_EQ(Segments(), QString());
    EXPECT_EQ(WorkKeyFrames().PushCount(), 1);
}

TEST_F(TestKrAutoReframeHelper, WithoutResultsAnEditIsKeptButNothingIsPushed)
{
    Open(100);
    EXPECT_TRUE(helper->AddKeyFrame(50, Rect(0.9)));
    EXPECT_EQ(EditFrames(), QList<uint>{50});
    EXPECT_EQ(Segments(), QStringLiteral("25..75: 50"));
    EXPECT_EQ(WorkKeyFrames().PushCount(), 0);
    EXPECT_TRUE(helper->GetDisplayResults().isEmpty());
}

TEST_F(TestKrAutoReframeHelper, RemovingTheOnlyPointRestoresAKeyFrameAFrame)
{
    OpenAndApply(100);
    helper->AddKeyFrame(50, Rect(0.9));
    EXPECT_TRUE(helper->RemoveKeyFrame(50));
    EXPECT_EQ(Segments(), QString());
    EXPECT_TRUE(EditFrames().isEmpty());
    EXPECT_EQ(PushedFrames(), QStringLiteral("0..99"));
    EXPECT_DOUBLE_EQ(PushedX(50), 0.05);
    EXPECT_DOUBLE_EQ(ShownX(50), 0.05);
    EXPECT_DOUBLE_EQ(ShownX(40), 0.04);
}

TEST_F(TestKrAutoReframeHelper, RemovingTheFirstPointMovesTheStart)
{
    OpenAndApply(100);
    helper->AddKeyFrame(10, Rect(0.9));
    helper->AddKeyFrame(40, Rect(0.8));
    EXPECT_EQ(helper->DoRemoveKeyFrame(10), (KrAutoReframeHelper::FrameRange{0, 65}));
    EXPECT_EQ(Segments(), QStringLiteral("25..65: 40"));
    EXPECT_EQ(PushedFrames(), QStringLiteral("0..25 40 65..99"));
    EXPECT_DOUBLE_EQ(PushedX(10), 0.01);
    EXPECT_DOUBLE_EQ(ShownX(24), 0.024);
}

TEST_F(TestKrAutoReframeHelper, RemovingTheLastPointMovesTheEnd)
{
    OpenAndApply(100);
    helper->AddKeyFrame(10, Rect(0.9));
    helper->AddKeyFrame(40, Rect(0.8));
    EXPECT_EQ(helper->DoRemoveKeyFrame(40), (KrAutoReframeHelper::FrameRange{0, 65}));
    EXPECT_EQ(Segments(), QStringLiteral("0..25: 10"));
    EXPECT_EQ(PushedFrames(), QStringLiteral("0 10 25..99"));
    EXPECT_DOUBLE_EQ(ShownX(25), 0.025);
    EXPECT_DOUBLE_EQ(ShownX(40), 0.04);
}

TEST_F(TestKrAutoReframeHelper, RemovingAMiddlePointKeepsTheRange)
{
    OpenAndApply(200);
    helper->AddKeyFrame(40, Rect(0.9));
    helper->AddKeyFrame(60, Rect(0.8));
    helper->AddKeyFrame(80, Rect(0.7));
    helper->RemoveKeyFrame(60);
    EXPECT_EQ(Segments(), QStringLiteral("15..105: 40 80"));
    EXPECT_EQ(PushedFrames(), QStringLiteral("0..15 40 80 105..199"));
    EXPECT_NEAR(ShownX(60), 0.8, 1e-12);
}

TEST_F(TestKrAutoReframeHelper, RemovingWhereNoPointIsFails)
{
    OpenAndApply(100);
    helper->AddKeyFrame(50, Rect(0.9));
    EXPECT_FALSE(helper->RemoveKeyFrame(51));
    EXPECT_EQ(helper->DoRemoveKeyFrame(51), (KrAutoReframeHelper::FrameRange{NoFrame, NoFrame}));
    EXPECT_EQ(EditFrames(), QList<uint>{50});
}

TEST_F(TestKrAutoReframeHelper, TheFirstSegmentThatHasThePointGivesItUp)
{
    OpenAndApply(200);
    helper->AddKeyFrame(50, Rect(0.9));
    Peer::SetSegments(*helper, {KrEditSegment{20, 40, {30}}, KrEditSegment{25, 50, {50}}, KrEditSegment{45, 20, {50}}});
    EXPECT_EQ(helper->DoRemoveKeyFrame(50), (KrAutoReframeHelper::FrameRange{25, 75}));
    EXPECT_EQ(Segments(), QStringLiteral("20..60: 30; 45..65: 50"));
}

TEST_F(TestKrAutoReframeHelper, APointWithoutARectangleBecomesAnEmptyKeyFrameAndNoEditPoint)
{
    OpenAndApply(100);
    Peer::SetSegments(*helper, {KrEditSegment{30, 20, {40}}});
    helper->DoAddKeyFrame(50, Rect(0.9));
    EXPECT_EQ(Segments(), QStringLiteral("25..75: 40 50"));
    EXPECT_EQ(EditFrames(), QList<uint>{50});
    for (const KxCropPanZoomKeyFrameParam& keyFrame : WorkKeyFrames().KeyFrames()) {
        EXPECT_EQ(keyFrame.cropRect.isEmpty(), keyFrame.frame == 40);
    }
}

TEST_F(TestKrAutoReframeHelper, RestoringARangeWithoutSegmentsBringsTheResultsBack)
{
    OpenAndApply(100);
    helper->AddKeyFrame(50, Rect(0.9));
    Peer::SetSegments(*helper, {});
    helper->RestoreRange(25, 75);
    EXPECT_EQ(PushedFrames(), QStringLiteral("0..99"));
    EXPECT_DOUBLE_EQ(ShownX(50), 0.05);
    EXPECT_EQ(WorkKeyFrames().PushCount(), 3);
}

TEST_F(TestKrAutoReframeHelper, RestoringPushesOnceAndRebuildsTheSegmentsInside)
{
    OpenAndApply(200);
    helper->AddKeyFrame(60, Rect(0.9));
    const int pushCount = WorkKeyFrames().PushCount();
    helper->RestoreRange(20, 120);
    EXPECT_EQ(WorkKeyFrames().PushCount(), pushCount + 1);
    EXPECT_FALSE(Peer::IsFlushSuspended(*helper));
    EXPECT_EQ(PushedFrames(), QStringLiteral("0..35 60 85..199"));
    EXPECT_NEAR(ShownX(50), 0.035 + (0.9 - 0.035) * 15 / 25, 1e-12);
}

TEST_F(TestKrAutoReframeHelper, ASegmentThatIsNotWhollyInsideIsLaidOverWithResults)
{
    OpenAndApply(200);
    helper->AddKeyFrame(60, Rect(0.9));
    helper->RestoreRange(50, 120);
    EXPECT_EQ(PushedFrames(), QStringLiteral("0..35 50..199"));
}

TEST_F(TestKrAutoReframeHelper, ASecondSegmentInsideLaysResultsOverTheFirst)
{
    OpenAndApply(200);
    helper->AddKeyFrame(40, Rect(0.9));
    helper->AddKeyFrame(120, Rect(0.8));
    EXPECT_EQ(PushedFrames(), QStringLiteral("0..15 40 65..95 120 145..199"));
    helper->RestoreRange(10, 160);
    EXPECT_EQ(PushedFrames(), QStringLiteral("0..95 120 145..199"));
    EXPECT_DOUBLE_EQ(PushedX(40), 0.04);
    EXPECT_DOUBLE_EQ(ShownX(40), 0.04);
    EXPECT_EQ(EditFrames(), (QList<uint>{40, 120}));
}

TEST_F(TestKrAutoReframeHelper, TheRestIsFilledFromTheLastSegmentsEndOn)
{
    OpenAndApply(100);
    helper->AddKeyFrame(99, Rect(0.9));
    EXPECT_DOUBLE_EQ(PushedX(99), 0.9);
    helper->RestoreRange(60, 99);
    EXPECT_DOUBLE_EQ(PushedX(99), 0.099);
}

TEST_F(TestKrAutoReframeHelper, RestoringAnImpossibleRangeDoesNothing)
{
    OpenAndApply(100);
    helper->AddKeyFrame(50, Rect(0.9));
    helper->RestoreRange(NoFrame, NoFrame);
    helper->RestoreRange(60, 40);
    helper->RestoreRange(60, 100);
    EXPECT_EQ(WorkKeyFrames().PushCount(), 2);
    EXPECT_EQ(PushedFrames(), QStringLiteral("0..25 50 75..99"));
}

TEST_F(TestKrAutoReframeHelper, WithoutEditsThereAreNoNeighbours)
{
    EXPECT_EQ(helper->GetNextKeyFrame(0), NoFrame);
    EXPECT_EQ(helper->GetPrevKeyFrame(0), NoFrame);
    Open(100);
    EXPECT_EQ(helper->GetNextKeyFrame(0), NoFrame);
    EXPECT_EQ(helper->GetPrevKeyFrame(99), NoFrame);
}

TEST_F(TestKrAutoReframeHelper, NeighboursAreTheNearestEditPointsBesideAFrame)
{
    OpenAndApply(100);
    helper->AddKeyFrame(70, Rect(0.9));
    helper->AddKeyFrame(10, Rect(0.8));
    helper->AddKeyFrame(40, Rect(0.7));
    EXPECT_EQ(helper->GetNextKeyFrame(0), 10u);
    EXPECT_EQ(helper->GetNextKeyFrame(10), 40u);
    EXPECT_EQ(helper->GetNextKeyFrame(69), 70u);
    EXPECT_EQ(helper->GetNextKeyFrame(70), NoFrame);
    EXPECT_EQ(helper->GetNextKeyFrame(99), NoFrame);
    EXPECT_EQ(helper->GetPrevKeyFrame(99), 70u);
    EXPECT_EQ(helper->GetPrevKeyFrame(70), 40u);
    EXPECT_EQ(helper->GetPrevKeyFrame(11), 10u);
    EXPECT_EQ(helper->GetPrevKeyFrame(10), NoFrame);
    EXPECT_EQ(helper->GetPrevKeyFrame(0), NoFrame);
}

TEST_F(TestKrAutoReframeHelper, NeighboursOfAFrameAfterTheLastOneAreThoseOfTheLastOne)
{
    OpenAndApply(100);
    helper->AddKeyFrame(99, Rect(0.9));
    helper->AddKeyFrame(20, Rect(0.8));
    EXPECT_EQ(helper->GetPrevKeyFrame(5000), 20u);
    EXPECT_EQ(helper->GetNextKeyFrame(NoFrame), NoFrame);
}

TEST_F(TestKrAutoReframeHelper, EditedFramesAreListedAscendingAndAreMembers)
{
    OpenAndApply(100);
    helper->AddKeyFrame(70, Rect(0.9));
    helper->AddKeyFrame(10, Rect(0.8));
    EXPECT_EQ(EditFrames(), (QList<uint>{10, 70}));
    EXPECT_TRUE(helper->IsEditFrame(10));
    EXPECT_FALSE(helper->IsEditFrame(11));
    EXPECT_FALSE(helper->IsEditFrame(NoFrame));
}
