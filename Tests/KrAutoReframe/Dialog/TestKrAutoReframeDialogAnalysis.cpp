#include <Tests/KrAutoReframe/Dialog/DialogFixture.h>
#include <Tests/Support/Eventually.h>

#include <KxWidgets/KxComboBox.h>

#include <QProgressBar>
#include <QSignalSpy>
#include <QTranslator>
#include <QtTest>

namespace
{

constexpr int Running = 1;
constexpr int Ended = 2;
const QString TooShort = QStringLiteral("This video is too short. Please try a different video.");
const QString SameRatio = QStringLiteral(
    "You've chosen the same aspect ratio as the original video. Please select a different aspect ratio.");
const QString Failed = QStringLiteral("Analysis error. Please try again.");

class DialogAnalysisTest : public DialogTest
{
protected:
    FakeHost::Service& service = FakeHost::TheService();

    void ChooseRatio(const QString& ratio)
    {
        auto* const ratios = panel->findChild<KxComboBox*>(QStringLiteral("KrAutoReframePropertyPanel_aspectRatio"));
        ratios->setCurrentText(ratio);
    }
    void ChooseSpeed(const QString& speed)
    {
        panel->findChild<KxComboBox*>(QStringLiteral("KrAutoReframePropertyPanel_motionSpeed"))->setCurrentText(speed);
    }

    /// Presses Analyze where that is refused; a dialog that opens all the same fails the test.
    void ExpectRefused(const QStringList& boxes)
    {
        recorders.boxes.clear();
        bool hasLooked = false;
        WhileModal([&] {
            EXPECT_FALSE(progress->isVisible());
            progress->hide();
            hasLooked = true;
        });
        AnalyzeButton().click();
        ASSERT_EVENTUALLY(hasLooked);
        EXPECT_EQ(recorders.BoxTexts(), boxes);
        EXPECT_FALSE(Export().isEnabled());
    }

    /// Presses Analyze and does `act` while the progress is shown.
    void StartAnd(const std::function<void()>& act)
    {
        WhileModal([&] {
            EXPECT_TRUE(progress->isVisible());
            EXPECT_TRUE(progress->isModal());
            act();
        });
        AnalyzeButton().click();
    }
};

} // namespace

TEST_F(DialogAnalysisTest, AsksForTheSettingsOfThePanel)
{
    Load(Video(QStringLiteral("/v/clip.mp4")));
    ChooseRatio(QStringLiteral("4:5"));
    ChooseSpeed(QStringLiteral("Slow"));
    service.ForgetCalls();
    Player().calls.clear();
    StartAnd([this] { progress->hide(); });
    EXPECT_EQ(service.Calls(),
              (QStringList{QStringLiteral("StopTask(0)"), QStringLiteral("StartTask(/v/clip.mp4, 24, 4x5)")}));
    EXPECT_EQ(recorders.events, QStringList{QStringLiteral("anlyze_btn")});
    EXPECT_EQ(Player().calls, QStringList{QStringLiteral("pause")});
    EXPECT_TRUE(recorders.boxes.empty());
}

TEST_F(DialogAnalysisTest, AShortVideoIsRefused)
{
    FakeHost::Facts facts = Video(QStringLiteral("/v/clip.mp4"));
    facts.frameCount = 31;
    Load(facts);
    ExpectRefused({TooShort});
    EXPECT_EQ(recorders.boxes.front().parent, dialog.get());
    EXPECT_EQ(recorders.events, QStringList{QStringLiteral("anlyze_btn")});
}

TEST_F(DialogAnalysisTest, AVideoOf32FramesIsLongEnough)
{
    FakeHost::Facts facts = Video(QStringLiteral("/v/clip.mp4"));
    facts.frameCount = 32;
    Load(facts);
    StartAnd([this] { progress->hide(); });
    EXPECT_TRUE(recorders.boxes.empty());
}

TEST_F(DialogAnalysisTest, TheSourcesOwnAspectRatioIsRefusedFirst)
{
    FakeHost::Facts facts = Video(QStringLiteral("/v/clip.mp4"));
    facts.frameCount = 5;
    Load(facts);
    ChooseRatio(QStringLiteral("16:9"));
    ExpectRefused({SameRatio});
}

TEST_F(DialogAnalysisTest, ANearlyEqualAspectRatioIsAnother)
{
    FakeHost::Facts facts = Video(QStringLiteral("/v/clip.mp4"));
    facts.resolution = QSize(1366, 768);
    Load(facts);
    ChooseRatio(QStringLiteral("16:9"));
    StartAnd([this] { progress->hide(); });
    EXPECT_TRUE(recorders.boxes.empty());
}

TEST_F(DialogAnalysisTest, ARefusalOfTheServiceIsReported)
{
    Load(Video(QStringLiteral("/v/clip.mp4")));
    service.Accept(false);
    ExpectRefused({Failed});
}

TEST_F(DialogAnalysisTest, WithoutASourceNoMessageIsShown)
{
    dialog->slotStartAnalysis();
    EXPECT_TRUE(recorders.boxes.empty());
    EXPECT_FALSE(progress->isVisible());
    EXPECT_EQ(recorders.events, QStringList{QStringLiteral("anlyze_btn")});
}

TEST_F(DialogAnalysisTest, TheProgressStartsAtZero)
{
    Load(Video(QStringLiteral("/v/clip.mp4")));
    dialog->slotUpdateProgress(5000);
    StartAnd([this] {
        EXPECT_EQ(progress->InfoText(), QStringLiteral("0%"));
        EXPECT_EQ(progress->findChild<QProgressBar*>()->value(), 0);
        const auto* const title = progress->findChild<KxLabel*>(QStringLiteral("KxProgressDialog_title"));
        EXPECT_EQ(title->text(), QStringLiteral("Converting video. Please wait..."));
        progress->hide();
    });
}

TEST_F(DialogAnalysisTest, ProgressIsShownAsWholePercent)
{
    const struct {
        int progress;
        const char* text;
    } steps[] = {{0, "0%"}, {150, "1%"}, {9999, "99%"}, {-1, "99%"}, {10000, "100%"}};
    const auto* const bar = progress->findChild<QProgressBar*>();
    for (const auto& step : steps) {
        dialog->slotUpdateProgress(step.progress);
        EXPECT_EQ(progress->InfoText(), QLatin1String(step.text)) << step.progress;
        EXPECT_EQ(bar->value(), step.progress < 0 ? 9999 : step.progress);
    }
    const auto* const info = progress->findChild<KxLabel*>(QStringLiteral("KxProgressDialog_info"));
    EXPECT_EQ(info->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    EXPECT_TRUE(info->toolTip().isEmpty());
}

TEST_F(DialogAnalysisTest, TheServicesProgressReachesTheBar)
{
    Load(Video(QStringLiteral("/v/clip.mp4")));
    StartAnd([this] {
        service.FireFromThread(Running, 50);
        ASSERT_EVENTUALLY_EQ(progress->InfoText(), QStringLiteral("40%"));
        progress->hide();
    });
}

TEST_F(DialogAnalysisTest, ASuccessShowsTheCropOverTheSource)
{
    Load(Video(QStringLiteral("/v/clip.mp4")));
    Player().calls.clear();
    Player().opened.clear();
    Analyse();
    EXPECT_EQ(Player().calls,
              (QStringList{QStringLiteral("pause"), QStringLiteral("open true false"), QStringLiteral("play")}));
    EXPECT_EQ(Player().opened, QList<IKxTimeline*>{Helper().GetSourceTimeline()});
    EXPECT_TRUE(overlay->isVisible());
    EXPECT_TRUE(Preview().isEnabled());
    EXPECT_TRUE(Preview().isChecked());
    EXPECT_TRUE(Export().isEnabled());
    EXPECT_TRUE(AnalyzeButton().isHidden());
    EXPECT_FALSE(RestartButton().isHidden());
    EXPECT_TRUE(recorders.boxes.empty());
    EXPECT_EQ(Helper().GetResults().size(), FrameCount);
}

TEST_F(DialogAnalysisTest, ASecondAnalysisStartsFromTheRestartButton)
{
    Load(Video(QStringLiteral("/v/clip.mp4")));
    Analyse();
    service.Answer(0, FakeHost::MakeResults(FrameCount, 0.3));
    WhileModal([this] { service.FireFromThread(Ended, 100); });
    RestartButton().click();
    EXPECT_EQ(Helper().GetResults().first().cropRect().x(), 0.3);
    EXPECT_FALSE(RestartButton().isHidden());
}

TEST_F(DialogAnalysisTest, AFailureIsReportedAndChangesNothing)
{
    Load(Video(QStringLiteral("/v/clip.mp4")));
    service.Answer(-1, {});
    Player().calls.clear();
    StartAnd([this] { service.FireFromThread(Ended, 100); });
    EXPECT_FALSE(progress->isVisible());
    EXPECT_EQ(recorders.BoxTexts(), QStringList{Failed});
    EXPECT_EQ(Player().calls, QStringList{QStringLiteral("pause")});
    EXPECT_FALSE(Preview().isEnabled());
    EXPECT_FALSE(Export().isEnabled());
    EXPECT_FALSE(AnalyzeButton().isHidden());
}

TEST_F(DialogAnalysisTest, ASuccessWithoutResultsIsAnError)
{
    Load(Video(QStringLiteral("/v/clip.mp4")));
    service.Answer(0, {});
    StartAnd([this] { service.FireFromThread(Ended, 100); });
    EXPECT_EQ(recorders.BoxTexts(), QStringList{Failed});
    EXPECT_FALSE(Export().isEnabled());
    EXPECT_FALSE(overlay->isVisible());
}

TEST_F(DialogAnalysisTest, ALaterFailureLeavesTheEarlierResults)
{
    Load(Video(QStringLiteral("/v/clip.mp4")));
    Analyse();
    Preview().click();
    Player().calls.clear();
    service.Answer(-1, {});
    WhileModal([this] { service.FireFromThread(Ended, 100); });
    RestartButton().click();
    EXPECT_EQ(Helper().GetResults().size(), FrameCount);
    EXPECT_EQ(Player().calls, QStringList{QStringLiteral("pause")}) << "the result is still shown";
    EXPECT_FALSE(Preview().isChecked());
    EXPECT_FALSE(overlay->isVisible());
    EXPECT_TRUE(Export().isEnabled());
}

TEST_F(DialogAnalysisTest, FinishingHidesTheProgressAlways)
{
    for (const bool success : {false, true}) {
        progress->show();
        dialog->slotAnalysisFinished(success);
        EXPECT_FALSE(progress->isVisible());
        EXPECT_FALSE(Export().isEnabled()) << "there are no results";
        EXPECT_TRUE(Player().calls.isEmpty());
    }
}

TEST_F(DialogAnalysisTest, TheCancelButtonStopsTheWork)
{
    Load(Video(QStringLiteral("/v/clip.mp4")));
    StartAnd([this] {
        service.ForgetCalls();
        recorders.events.clear();
        progress->findChild<QAbstractButton*>(QStringLiteral("KxProgressDialog_cancel"))->click();
    });
    EXPECT_EQ(service.Calls(), QStringList{QStringLiteral("StopTask(0)")});
    EXPECT_EQ(recorders.events, QStringList{QStringLiteral("convert_cancel_btn")});
    EXPECT_TRUE(recorders.boxes.empty());
    EXPECT_FALSE(Export().isEnabled());
}

TEST_F(DialogAnalysisTest, TheProgressesCloseButtonAndEscapeStopTheWork)
{
    Load(Video(QStringLiteral("/v/clip.mp4")));
    const std::function<void()> ways[] = {
        [this] { progress->GetTitleBar()->GetButton(32)->click(); },
        [this] { QTest::keyClick(progress, Qt::Key_Escape); },
    };
    for (const auto& way : ways) {
        StartAnd([&] {
            service.ForgetCalls();
            recorders.events.clear();
            way();
        });
        EXPECT_EQ(service.Calls(), QStringList{QStringLiteral("StopTask(0)")});
        EXPECT_EQ(recorders.events, QStringList{QStringLiteral("convert_close_window")});
        EXPECT_TRUE(dialog->isVisible());
    }
}

TEST_F(DialogAnalysisTest, AfterACancelTheNextAnalysisSucceeds)
{
    Load(Video(QStringLiteral("/v/clip.mp4")));
    StartAnd([this] { progress->reject(); });
    Analyse();
    EXPECT_TRUE(Export().isEnabled());
}

TEST_F(DialogAnalysisTest, CancelledDuringTheKeyframesItChangesNothing)
{
    Load(Video(QStringLiteral("/v/clip.mp4")));
    service.Answer(0, FakeHost::MakeResults(FrameCount));
    FakeHost::Gate cancelled;
    auto* const work = dynamic_cast<FakeHost::Timeline*>(Helper().GetWorkTimeline());
    work->FirstClip().CropKeyFrames().SetOnPush([&cancelled] { cancelled.Wait(); });
    QObject::connect(process, &KrAutoReframeProcess::sigProcessProgress, progress, [&](int value) {
        if (value > 8000 && progress->isVisible()) {
            progress->reject();
            cancelled.Open();
        }
    });
    QSignalSpy finished(process, &KrAutoReframeProcess::sigProcessFinished);
    StartAnd([this] { service.FireFromThread(Ended, 100); });
    ASSERT_EVENTUALLY_EQ(finished.count(), 1);
    EXPECT_FALSE(finished.at(0).at(0).toBool());
    EXPECT_FALSE(Export().isEnabled());
    EXPECT_FALSE(overlay->isVisible());
    EXPECT_TRUE(recorders.events.contains(QStringLiteral("convert_close_window")));
    EXPECT_TRUE(recorders.boxes.empty());
}

TEST_F(DialogAnalysisTest, ThePreviewSwitchChangesBetweenSourceAndResult)
{
    Load(Video(QStringLiteral("/v/clip.mp4")));
    Analyse();
    FakePlayer::ShowFrame(*presenter, 40);
    Player().calls.clear();
    Player().opened.clear();
    Preview().click();
    EXPECT_EQ(Player().opened, QList<IKxTimeline*>{Helper().GetWorkTimeline()});
    EXPECT_EQ(Player().calls, (QStringList{QStringLiteral("open true false"), QStringLiteral("seek 40 0 0")}));
    EXPECT_FALSE(overlay->isVisible());
    Player().opened.clear();
    Preview().click();
    EXPECT_EQ(Player().opened, QList<IKxTimeline*>{Helper().GetSourceTimeline()});
    EXPECT_TRUE(overlay->isVisible());
}

TEST_F(DialogAnalysisTest, AnotherAnalysisStartsInTheSourceAgain)
{
    Load(Video(QStringLiteral("/v/clip.mp4")));
    Analyse();
    Preview().click();
    Analyse();
    EXPECT_TRUE(Preview().isChecked());
    EXPECT_TRUE(overlay->isVisible());
    EXPECT_EQ(Player().opened.last(), Helper().GetSourceTimeline());
}

TEST_F(DialogAnalysisTest, CanBeDestroyedWhileItAnalyses)
{
    Load(Video(QStringLiteral("/v/clip.mp4")));
    service.ForgetCalls();
    QTimer::singleShot(0, qApp, [this] { dialog.reset(); });
    dialog->slotStartAnalysis();
    EXPECT_EQ(dialog, nullptr);
    EXPECT_TRUE(service.Calls().contains(QStringLiteral("RemoveObserver")));
    service.FireFromThread(Ended, 100);
    QCoreApplication::sendPostedEvents();
}
