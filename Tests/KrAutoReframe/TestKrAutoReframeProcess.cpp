#include "KrAutoReframeProcess.h"

#include "FakeHost.h"

#include <QMetaMethod>
#include <QSignalSpy>
#include <QThread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <thread>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

constexpr int Running = 1;
constexpr int Ended = 2;
constexpr int WaitMs = 60000;

FakeHost::Facts Clip(qint64 frameCount, const QSize& resolution = QSize(1920, 1080))
{
    FakeHost::Facts facts;
    facts.path = QStringLiteral("clip.mp4");
    facts.frameCount = frameCount;
    facts.resolution = resolution;
    return facts;
}

/// What a process told, as words in order, with the thread that it told it on.
class Listener
{
public:
    explicit Listener(KrAutoReframeProcess* process)
    {
        QObject::connect(process, &KrAutoReframeProcess::sigProcessProgress, process, [this](int value) {
            Note(QStringLiteral("progress %1").arg(value));
            progress.push_back(value);
        });
        QObject::connect(process, &KrAutoReframeProcess::sigProcessFinished, process, [this](bool success) {
            Note(success ? QStringLiteral("finished true") : QStringLiteral("finished false"));
            ends << said.last();
        });
        QObject::connect(process, &KrAutoReframeProcess::sigProcessError, process, [this](const QString& text) {
            Note(QStringLiteral("error [%1]").arg(text));
            ends << said.last();
        });
    }

    QStringList said;
    QStringList ends;
    std::vector<int> progress;
    bool isAllOnOwnThread = true;

private:
    void Note(const QString& text)
    {
        said << text;
        isAllOnOwnThread = isAllOnOwnThread && QThread::currentThread() == m_thread;
    }

    QThread* m_thread = QThread::currentThread();
};

class TestKrAutoReframeProcess : public testing::Test
{
protected:
    TestKrAutoReframeProcess()
    {
        FakeHost::Reset();
        m_process = std::make_unique<KrAutoReframeProcess>(nullptr);
        m_listener = std::make_unique<Listener>(m_process.get());
    }
    ~TestKrAutoReframeProcess() override
    {
        m_process.reset();
        FakeHost::Reset();
    }

    void Open(qint64 frameCount, const QSize& resolution = QSize(1920, 1080))
    {
        m_process->OpenTimeline(FakeHost::MakeTimeline({Clip(frameCount, resolution)}));
    }

    FakeHost::KeyFrameHelper& WorkKeyFrames()
    {
        return dynamic_cast<FakeHost::Timeline*>(m_process->GetHelper()->GetWorkTimeline())
            ->FirstClip()
            .CropKeyFrames();
    }

    bool WaitForFinished()
    {
        QSignalSpy finished(m_process.get(), &KrAutoReframeProcess::sigProcessFinished);
        return finished.wait(WaitMs);
    }

    FakeHost::Service& m_service = FakeHost::TheService();
    std::unique_ptr<KrAutoReframeProcess> m_process;
    std::unique_ptr<Listener> m_listener;
};

} // namespace

TEST_F(TestKrAutoReframeProcess, MakesTheAnalyzerAndTheHelper)
{
    QObject parent;
    const auto* const process = new KrAutoReframeProcess(&parent);
    EXPECT_EQ(process->parent(), &parent);
    EXPECT_NE(process->GetAnalyzer(), nullptr);
    EXPECT_NE(process->GetHelper(), nullptr);
    EXPECT_EQ(&process->GetHelper(), &process->GetHelper());
}

TEST_F(TestKrAutoReframeProcess, SignalsStandInTheirOrder)
{
    const QMetaObject& meta = KrAutoReframeProcess::staticMetaObject;
    QStringList methods;
    for (int index = meta.methodOffset(); index < meta.methodCount(); ++index) {
        EXPECT_EQ(meta.method(index).methodType(), QMetaMethod::Signal);
        methods << QString::fromLatin1(meta.method(index).methodSignature());
    }
    EXPECT_EQ(methods.join(QLatin1Char(' ')),
              QStringLiteral("sigProcessProgress(int) sigProcessFinished(bool) sigProcessError(QString)"));
}

TEST_F(TestKrAutoReframeProcess, AnalysisProgressCoversEightThousand)
{
    for (const int percent : {0, 1, 29, 50, 57, 99, 100}) {
        m_service.Fire(Running, percent);
    }
    // 0.57 * 10000 * 0.8 lies a hair below 4560, and whole numbers are cut off.
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

TEST_F(TestKrAutoReframeProcess, WithoutASourceNothingStarts)
{
    m_service.ForgetCalls();
    EXPECT_EQ(m_process->StartAnalyze(9, 16, 16), 2);
    EXPECT_THAT(m_service.Calls(), IsEmpty());
}

TEST_F(TestKrAutoReframeProcess, TheSourcesOwnAspectRatioDoesNotStart)
{
    Open(100);
    m_service.ForgetCalls();
    EXPECT_EQ(m_process->StartAnalyze(1280, 720, 16), 3);
    EXPECT_EQ(m_process->StartAnalyze(16, 9, 16), 3);
    EXPECT_THAT(m_service.Calls(), IsEmpty());
    EXPECT_EQ(m_process->GetParam().width, 0);
    EXPECT_EQ(m_process->StartAnalyze(1080, 1920, 16), 0);
}

TEST_F(TestKrAutoReframeProcess, AspectRatiosAreComparedExactly)
{
    Open(100, QSize(1366, 768));
    EXPECT_EQ(m_process->StartAnalyze(16, 9, 16), 0);
}

TEST_F(TestKrAutoReframeProcess, TheFormatOfTheTimelineCountsNotThatOfItsClip)
{
    FakeHost::Timeline* const timeline = FakeHost::MakeTimeline({Clip(100)});
    KxProjectSettings settings = timeline->projectSettings();
    settings.resolution = QSize(1080, 1920);
    timeline->setProjectSettings(settings);
    m_process->OpenTimeline(timeline);
    EXPECT_EQ(m_process->StartAnalyze(9, 16, 16), 3);
    EXPECT_EQ(m_process->StartAnalyze(16, 9, 16), 0);
}

TEST_F(TestKrAutoReframeProcess, ThirtyOneFramesAreTooShortAndThirtyTwoAreNot)
{
    Open(31);
    m_service.ForgetCalls();
    EXPECT_EQ(m_process->StartAnalyze(9, 16, 16), 1);
    EXPECT_THAT(m_service.Calls(), IsEmpty());
    Open(32);
    EXPECT_EQ(m_process->StartAnalyze(9, 16, 16), 0);
}

TEST_F(TestKrAutoReframeProcess, TheAspectRatioIsLookedAtBeforeTheLength)
{
    Open(10);
    EXPECT_EQ(m_process->StartAnalyze(16, 9, 16), 3);
}

TEST_F(TestKrAutoReframeProcess, TheWholeTimelineCountsForTheLength)
{
    m_process->OpenTimeline(FakeHost::MakeTimeline({Clip(20), Clip(12)}));
    EXPECT_EQ(m_process->StartAnalyze(9, 16, 16), 0);
}

TEST_F(TestKrAutoReframeProcess, AStartStopsWhatRunsAndAsksForTheFile)
{
    Open(100);
    m_service.ForgetCalls();
    EXPECT_EQ(m_process->StartAnalyze(9, 16, 24), 0);
    const QStringList expected{QStringLiteral("StopTask(0)"), QStringLiteral("StartTask(clip.mp4, 24, 9x16)")};
    EXPECT_EQ(m_service.Calls(), expected);
    const KrAutoReframeAnalyzeParam param = m_process->GetParam();
    EXPECT_EQ(param.path, QStringLiteral("clip.mp4"));
    EXPECT_EQ(param.width, 9);
    EXPECT_EQ(param.height, 16);
    EXPECT_EQ(param.mode, 24);
}

TEST_F(TestKrAutoReframeProcess, ARefusedStartKeepsItsParametersAndTellsNothing)
{
    Open(100);
    m_service.Accept(false);
    EXPECT_EQ(m_process->StartAnalyze(1, 1, 8), 4);
    EXPECT_EQ(m_process->GetParam().mode, 8);
    QCoreApplication::sendPostedEvents();
    EXPECT_THAT(m_listener->said, IsEmpty());
}

TEST_F(TestKrAutoReframeProcess, AWholeJobRunsFromTheEventsToTheKeyFrames)
{
    Open(40);
    m_service.Answer(0, FakeHost::MakeResults(40));
    EXPECT_EQ(m_process->StartAnalyze(9, 16, 16), 0);
    std::thread serviceThread([this] {
        m_service.Fire(Running, 50);
        m_service.Fire(Ended, 100);
    });
    EXPECT_TRUE(WaitForFinished());
    serviceThread.join();
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

TEST_F(TestKrAutoReframeProcess, AFailedAnalysisFinishesFirstAndThenTellsTheError)
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

TEST_F(TestKrAutoReframeProcess, AnAnalysisWithNothingToApplyFinishesWellAndTellsTheError)
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

TEST_F(TestKrAutoReframeProcess, ApplyResultsTellsWhereTheHelperRefuses)
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
    std::thread serviceThread([this] {
        m_service.Fire(Ended, 100);
        m_service.Fire(Ended, 100);
    });
    serviceThread.join();
    EXPECT_TRUE(WaitForFinished());
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(m_listener->ends, QStringList{QStringLiteral("finished true")});
}

TEST_F(TestKrAutoReframeProcess, AMediaItemBecomesASimpleTimelineInItsFormat)
{
    FakeHost::Facts facts = Clip(100, QSize(1280, 720));
    facts.path = QStringLiteral("item.mp4");
    FakeHost::MediaItem item(facts);
    m_process->OpenMedia(&item);
    IKxTimeline* const source = m_process->GetHelper()->GetSourceTimeline();
    ASSERT_NE(source, nullptr);
    const KxProjectSettings settings = source->projectSettings();
    EXPECT_EQ(settings.resolution, QSize(1280, 720));
    EXPECT_EQ(settings.frameRateType, KxProjectFrameRateType::Fps25);
    EXPECT_EQ(settings.aspectRatioType, KxProjectAspectRatio21x9);
    EXPECT_EQ(m_process->GetHelper()->GetDuration(), 100);
    const KxProjectSettings workSettings = m_process->GetHelper()->GetWorkTimeline()->projectSettings();
    EXPECT_EQ(workSettings.resolution, QSize(1280, 720));
    EXPECT_EQ(m_process->StartAnalyze(9, 16, 16), 0);
    EXPECT_EQ(m_process->GetParam().path, QStringLiteral("item.mp4"));
}

TEST_F(TestKrAutoReframeProcess, AnItemWithoutAClipOnlyHasItsPathRecorded)
{
    Open(100);
    IKxTimeline* const before = m_process->GetHelper()->GetSourceTimeline();
    FakeHost::Facts facts = Clip(50);
    facts.path = QStringLiteral("empty.mp4");
    FakeHost::MediaItem item(facts, FakeHost::MediaItem::Content::Nothing);
    m_process->OpenMedia(&item);
    EXPECT_EQ(m_process->GetHelper()->GetSourceTimeline(), before);
    EXPECT_EQ(m_process->GetHelper()->GetDuration(), 100);
    EXPECT_EQ(m_process->StartAnalyze(9, 16, 16), 0);
    EXPECT_EQ(m_process->GetParam().path, QStringLiteral("empty.mp4"));
}

TEST_F(TestKrAutoReframeProcess, AnItemWithoutATimelineOnlyHasItsPathRecorded)
{
    Open(100);
    IKxTimeline* const before = m_process->GetHelper()->GetSourceTimeline();
    FakeHost::RefuseSimpleTimelines(true);
    FakeHost::Facts facts = Clip(50);
    facts.path = QStringLiteral("refused.mp4");
    FakeHost::MediaItem item(facts);
    m_process->OpenMedia(&item);
    EXPECT_EQ(m_process->GetHelper()->GetSourceTimeline(), before);
    EXPECT_EQ(m_process->StartAnalyze(9, 16, 16), 0);
    EXPECT_EQ(m_process->GetParam().path, QStringLiteral("refused.mp4"));
}

TEST_F(TestKrAutoReframeProcess, NothingToOpenChangesNothing)
{
    Open(100);
    IKxTimeline* const before = m_process->GetHelper()->GetSourceTimeline();
    m_process->OpenMedia(nullptr);
    m_process->OpenTimeline(nullptr);
    EXPECT_EQ(m_process->GetHelper()->GetSourceTimeline(), before);
    EXPECT_EQ(m_process->StartAnalyze(9, 16, 16), 0);
    EXPECT_EQ(m_process->GetParam().path, QStringLiteral("clip.mp4"));
}

TEST_F(TestKrAutoReframeProcess, ATimelineIsTakenUnchangedWithThePathOfItsFirstClip)
{
    FakeHost::Facts second = Clip(30);
    second.path = QStringLiteral("second.mp4");
    FakeHost::Timeline* const timeline = FakeHost::MakeTimeline({Clip(20), second});
    KxProjectSettings settings = timeline->projectSettings();
    settings.resolution = QSize(640, 480);
    settings.aspectRatioType = KxProjectAspectRatio4x3;
    timeline->setProjectSettings(settings);
    m_process->OpenTimeline(timeline);
    EXPECT_EQ(m_process->GetHelper()->GetSourceTimeline(), timeline);
    EXPECT_EQ(timeline->projectSettings().resolution, QSize(640, 480));
    EXPECT_EQ(timeline->projectSettings().aspectRatioType, KxProjectAspectRatio4x3);
    EXPECT_EQ(m_process->StartAnalyze(9, 16, 16), 0);
    EXPECT_EQ(m_process->GetParam().path, QStringLiteral("clip.mp4"));
}

TEST_F(TestKrAutoReframeProcess, TheFileOfAnEarlierSourceIsNotAnalysedForAClipWithoutAFile)
{
    Open(100);
    FakeHost::Facts title = Clip(50);
    title.path.clear();
    m_process->OpenTimeline(FakeHost::MakeTimeline({title}));
    EXPECT_EQ(m_process->StartAnalyze(9, 16, 16), 0);
    EXPECT_TRUE(m_process->GetParam().path.isEmpty());
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
