#include <KrAutoReframe/Extensions/KrDialogExtension.h>
#include <Tests/KrAutoReframe/Dialog/ExtendedDialogTest.h>
#include <Tests/KrAutoReframe/WidgetProbe.h>
#include <Tests/Support/Eventually.h>

#include <QShortcut>
#include <QUndoStack>
#include <QtTest>

namespace
{

constexpr int Ended = 2;
const QString SettingsChanged = QStringLiteral("Settings changed: analyze again");

class KrDialogExtensionTest : public ExtendedDialogTest
{
};

} // namespace

TEST_F(DialogTest, WithoutExtensionsTheDialogHasNothingOfThem)
{
    FakeHost::ServiceWithShots& service = FakeHost::OfferShots();
    Make(nullptr);
    Load(Video(QStringLiteral("/v/clip.mp4")));
    Analyse();
    EXPECT_FALSE(service.collects);
    EXPECT_EQ(dialog->findChild<KrDialogExtension*>(), nullptr);
    EXPECT_EQ(panel->findChild<KxLabel*>(QStringLiteral("KrAutoReframePropertyPanel_hint")), nullptr);
    EXPECT_EQ(view->findChild<QWidget*>(QStringLiteral("KrAutoReframe_doubtfulShots")), nullptr);
    EXPECT_EQ(view->PlayerWidget().focusPolicy(), Qt::NoFocus);
    Helper().AddKeyFrame(10, QRectF(0.5, 0.0, 0.25, 1.0));
    Analyse();
    EXPECT_TRUE(Helper().GetEditPointFrames().isEmpty());
    dialog.reset();
}

TEST_F(KrDialogExtensionTest, EditsAndTheirHistorySurviveAnotherAnalysis)
{
    Load(Video(clip));
    Analyse();
    Helper().AddKeyFrame(10, QRectF(0.5, 0.0, 0.25, 1.0));
    Ratios().setCurrentText(QStringLiteral("1:1"));
    Analyse();
    EXPECT_EQ(Helper().GetEditPointFrames(), QList<uint>{10});
    EXPECT_TRUE(Helper().Undo());
    EXPECT_TRUE(Helper().GetEditPointFrames().isEmpty());
}

TEST_F(KrDialogExtensionTest, AnotherAnalysisStaysAtTheFrameAndDoesNotPlay)
{
    Load(Video(clip));
    Player().calls.clear();
    Analyse();
    EXPECT_EQ(Player().calls,
              (QStringList{QStringLiteral("pause"), QStringLiteral("open true false"), QStringLiteral("play")}));
    FakePlayer::ShowFrame(*presenter, 40);
    Player().calls.clear();
    Analyse();
    EXPECT_EQ(Player().calls, QStringList{QStringLiteral("pause")}) << "the picture would be black meanwhile";
}

TEST_F(KrDialogExtensionTest, AnotherAnalysisLeavesThePreview)
{
    Load(Video(clip));
    Analyse();
    view->SwitchTimeline(true, false);
    FakePlayer::ShowFrame(*presenter, 40);
    Player().calls.clear();
    Analyse();
    EXPECT_EQ(Player().calls,
              (QStringList{QStringLiteral("pause"), QStringLiteral("open true false"), QStringLiteral("seek 40 0 0")}));
}

TEST_F(KrDialogExtensionTest, TheHintShowsWhileThePanelDiffersFromThePicture)
{
    Load(Video(clip));
    Ratios().setCurrentText(QStringLiteral("4:5"));
    EXPECT_EQ(Hint(), QString()) << "nothing is shown yet";
    Analyse();
    EXPECT_EQ(Hint(), QString());
    Speeds().setCurrentText(QStringLiteral("Slow"));
    EXPECT_EQ(Hint(), SettingsChanged);
    Speeds().setCurrentText(QStringLiteral("Auto"));
    EXPECT_EQ(Hint(), QString());
    Ratios().setCurrentText(QStringLiteral("1:1"));
    EXPECT_EQ(Hint(), SettingsChanged);
    Analyse();
    EXPECT_EQ(Hint(), QString());
    Ratios().setCurrentText(QStringLiteral("4:3"));
    Load(Video(QStringLiteral("/v/other.mp4")));
    EXPECT_EQ(Hint(), QString());
}

TEST_F(KrDialogExtensionTest, AHintThatComesDoesNotMoveTheExportButton)
{
    service.shots = {{0, FrameCount, 0.3, KxAutoReframeDoubt::SeveralPlaces}};
    Load(Video(clip));
    Analyse();
    QCoreApplication::processEvents();
    const int placeOfExport = Export().y();
    Ratios().setCurrentText(QStringLiteral("1:1"));
    QCoreApplication::processEvents();
    EXPECT_EQ(Hint(), SettingsChanged);
    EXPECT_EQ(Export().y(), placeOfExport);
}

TEST_F(KrDialogExtensionTest, TheHintStaysAfterAnAnalysisThatFailed)
{
    Load(Video(clip));
    Analyse();
    Ratios().setCurrentText(QStringLiteral("1:1"));
    service.Answer(-1, {});
    WhileModal([this] { service.FireFromThread(Ended, 100); });
    RestartButton().click();
    EXPECT_EQ(Hint(), SettingsChanged);
}

TEST_F(KrDialogExtensionTest, AnAnalysisThatEndsAtOnceShowsNoProgress)
{
    Load(Video(clip));
    const WidgetProbe::EventCounter shown(progress, QEvent::Show);
    Analyse();
    EXPECT_EQ(shown.count, 0);
    EXPECT_TRUE(Export().isEnabled());
}

TEST_F(KrDialogExtensionTest, ALongerAnalysisShowsItsProgress)
{
    Load(Video(clip));
    service.Answer(0, FakeHost::MakeResults(FrameCount));
    bool wasShown = false;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, progress, [&] {
        if (progress->isVisible()) {
            wasShown = true;
            poll.stop();
            service.FireFromThread(Ended, 100);
        }
    });
    poll.start(10);
    AnalyzeButton().click();
    EXPECT_TRUE(wasShown);
    EXPECT_FALSE(progress->isVisible());
    EXPECT_TRUE(Export().isEnabled());
}

TEST_F(KrDialogExtensionTest, CanBeDestroyedWhileItWaitsForTheEnd)
{
    Load(Video(clip));
    QTimer::singleShot(0, qApp, [this] { dialog.reset(); });
    dialog->slotStartAnalysis();
    EXPECT_EQ(dialog, nullptr);
}

TEST_F(KrDialogExtensionTest, EachChangeReportsTheWholeState)
{
    Load(Video(clip));
    EXPECT_EQ(keeper.changes, 0);
    Ratios().setCurrentText(QStringLiteral("4:5"));
    EXPECT_EQ(keeper.changes, 1);
    EXPECT_EQ(StateOf(clip).aspectWidth, 4);
    EXPECT_EQ(StateOf(clip).aspectHeight, 5);
    EXPECT_EQ(StateOf(clip).motionSpeed, 16);
    EXPECT_FALSE(StateOf(clip).isAnalyzed);
    Analyse();
    EXPECT_EQ(keeper.changes, 2);
    EXPECT_TRUE(StateOf(clip).isAnalyzed);
    const QRectF placed(0.5, 0.0, 0.25, 1.0);
    Helper().AddKeyFrame(10, placed);
    EXPECT_EQ(keeper.changes, 3);
    EXPECT_EQ(StateOf(clip).editPoints, (QMap<uint, QRectF>{{10, placed}}));
    Helper().Undo();
    EXPECT_EQ(keeper.changes, 4);
    EXPECT_TRUE(StateOf(clip).editPoints.isEmpty());
    Helper().Redo();
    EXPECT_EQ(StateOf(clip).editPoints.size(), 1);
}

TEST_F(KrDialogExtensionTest, WhatAnotherSourceDropsIsNoChangeOfTheFirst)
{
    Load(Video(clip));
    Analyse();
    Helper().AddKeyFrame(10, QRectF(0.5, 0.0, 0.25, 1.0));
    const KrAutoReframeState left = StateOf(clip);
    const QString other = QStringLiteral("/v/other.mp4");
    Load(Video(other));
    EXPECT_EQ(StateOf(clip), left);
    EXPECT_FALSE(keeper.states.contains(other));
    Load(Video(clip));
    EXPECT_EQ(Helper().GetEditPointFrames(), QList<uint>{10});
    dialog.reset();
    EXPECT_EQ(StateOf(clip), left);
}

TEST_F(KrDialogExtensionTest, AVideoThatTheServiceKnowsOpensWhereItWasLeft)
{
    KrAutoReframeState left;
    left.aspectWidth = 4;
    left.aspectHeight = 5;
    left.motionSpeed = 24;
    left.isAnalyzed = true;
    left.editPoints.insert(10, QRectF(0.5, 0.0, 0.25, 1.0));
    keeper.states.insert(clip, left);
    service.knows.append(clip);
    service.Answer(0, FakeHost::MakeResults(FrameCount));
    recorders.events.clear();
    Load(Video(clip));
    EXPECT_EQ(Ratios().currentText(), QStringLiteral("4:5"));
    EXPECT_EQ(Speeds().currentText(), QStringLiteral("Slow"));
    const QString start = QStringLiteral("StartTask(%1, 24, 4x5)").arg(clip);
    Player().calls.clear();
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, dialog.get(), [&] {
        if (service.Calls().contains(start)) {
            poll.stop();
            service.FireFromThread(Ended, 100);
        }
    });
    poll.start(10);
    ASSERT_EVENTUALLY(Export().isEnabled());
    EXPECT_EQ(Helper().GetEditPointFrames(), QList<uint>{10});
    EXPECT_DOUBLE_EQ(Helper().GetDisplayResults().at(10).cropRect().x(), 0.5);
    EXPECT_FALSE(Player().calls.contains(QStringLiteral("play")));
    EXPECT_TRUE(recorders.events.isEmpty()) << "the person has pressed nothing";
    EXPECT_EQ(keeper.changes, 0);
}

TEST_F(KrDialogExtensionTest, AVideoThatTheServiceDoesNotKnowWaitsForThePerson)
{
    KrAutoReframeState left;
    left.isAnalyzed = true;
    left.editPoints.insert(10, QRectF(0.5, 0.0, 0.25, 1.0));
    keeper.states.insert(clip, left);
    service.ForgetCalls();
    Load(Video(clip));
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
    EXPECT_FALSE(service.Calls().join(QLatin1Char(' ')).contains(QStringLiteral("StartTask")));
    EXPECT_TRUE(IsReadyToAnalyse());
    Analyse();
    EXPECT_EQ(Helper().GetEditPointFrames(), QList<uint>{10});
}

TEST_F(KrDialogExtensionTest, ATimelinesStateIsThatOfItsFile)
{
    FakeHost::Timeline* const timeline = FakeHost::MakeTimeline({Video(clip)});
    StateOf(clip).editPoints.insert(20, QRectF(0.1, 0.0, 0.25, 1.0));
    dialog->InitTimeline(timeline);
    EXPECT_EQ(keeper.loaded, QStringList{clip});
    EXPECT_EQ(Helper().GetEditPointFrames(), QList<uint>{20});
}

TEST_F(ExtendedDialogTest, CropsOfTheHostAreShownInPlaceOfAnAnalysis)
{
    for (int frame = 0; frame < 100; ++frame) {
        StateOf(clip).crops.append(QRectF(0.01 * frame / 2.0, 0.0, 0.3, 1.0));
    }
    StateOf(clip).aspectWidth = 4;
    StateOf(clip).aspectHeight = 5;
    StateOf(clip).isAnalyzed = true;
    service.knows = QStringList(clip);
    Load(Video(clip));
    ASSERT_EVENTUALLY(Helper().GetResults().size() == 100);
    EXPECT_EQ(Helper().GetResults().at(40).cropRect(), QRectF(0.2, 0.0, 0.3, 1.0));
    ASSERT_EVENTUALLY(!Helper().GetDisplayResults().isEmpty());
    EXPECT_TRUE(service.Calls().filter(QStringLiteral("StartTask")).isEmpty());
    EXPECT_EQ(Hint(), QString());
}

namespace
{

class HelpingHost final : public StateKeeper, public KrAutoReframeHelp
{
public:
    void ShowHelp(QWidget& dialog) override { askedFrom = &dialog; }

    QWidget* askedFrom = nullptr;
};

} // namespace

TEST_F(DialogTest, F1AsksTheHostForHelp)
{
    HelpingHost host;
    Make(nullptr);
    dialog->SetExtensions(host);
    dialog->show();
    dialog->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
    QTest::keyClick(dialog.get(), Qt::Key_F1);
    EXPECT_EQ(host.askedFrom, dialog.get());
    dialog.reset();
}

TEST_F(ExtendedDialogTest, AHostWithoutHelpLeavesF1Alone)
{
    EXPECT_EQ(dialog->findChild<QShortcut*>(QStringLiteral("KrAutoReframe_help")), nullptr);
}
