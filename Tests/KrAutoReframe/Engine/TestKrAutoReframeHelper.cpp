#include <Tests/KrAutoReframe/Engine/HelperTest.h>

#include <QMetaMethod>
#include <QThreadPool>

using testing::ElementsAre;
using testing::IsEmpty;
namespace Peer = KrAutoReframeHelperPeer;

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

TEST_F(TestKrAutoReframeHelper, SignalsAreDeclaredInOrder)
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

TEST_F(TestKrAutoReframeHelper, EverythingIsReadyWhenTheOpeningIsReported)
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

TEST_F(TestKrAutoReframeHelper, ProgressIsReportedWhenItGrowsInTenThousandths)
{
    Open(8);
    std::vector<double> progress;
    QObject::connect(helper.get(), &KrAutoReframeHelper::sigApplyProgress, helper.get(),
                     [&progress](double value) { progress.push_back(value); });
    EXPECT_TRUE(Apply(8));
    EXPECT_THAT(progress, ElementsAre(0.125, 0.25, 0.375, 0.5, 0.625, 0.75, 0.875));
}

TEST_F(TestKrAutoReframeHelper, ProgressIsTruncatedToTenThousandths)
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
    constexpr int frameCount = 440000;
    Open(frameCount);
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
    EXPECT_TRUE(Apply(frameCount));
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

TEST_F(TestKrAutoReframeHelper, EditsAreGoneAndTheDisplayIsReadyWhenTheEndIsReported)
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

TEST_F(TestKrAutoReframeHelper, WithoutKeyFramesInTheClipTheTaskSucceedsAndStoresNothing)
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
