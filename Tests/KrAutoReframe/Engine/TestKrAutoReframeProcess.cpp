#include <Tests/KrAutoReframe/Engine/ProcessTest.h>

#include <QMetaMethod>

using testing::IsEmpty;

TEST_F(TestKrAutoReframeProcess, MakesTheAnalyzerAndTheHelper)
{
    QObject parent;
    const auto* const process = new KrAutoReframeProcess(&parent);
    EXPECT_EQ(process->parent(), &parent);
    EXPECT_NE(process->GetAnalyzer(), nullptr);
    EXPECT_NE(process->GetHelper(), nullptr);
    EXPECT_EQ(&process->GetHelper(), &process->GetHelper());
}

TEST_F(TestKrAutoReframeProcess, SignalsAreDeclaredInOrder)
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

TEST_F(TestKrAutoReframeProcess, ARefusedStartKeepsItsParametersAndEmitsNothing)
{
    Open(100);
    m_service.Accept(false);
    EXPECT_EQ(m_process->StartAnalyze(1, 1, 8), 4);
    EXPECT_EQ(m_process->GetParam().mode, 8);
    QCoreApplication::sendPostedEvents();
    EXPECT_THAT(m_listener->said, IsEmpty());
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
