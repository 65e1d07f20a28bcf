#include <Tests/KrAutoReframe/Dialog/DialogFixture.h>
#include <Tests/KrAutoReframe/WidgetProbe.h>

#include <KxWidgets/KxDialogButtonBar.h>
#include <KxWidgets/KxWidgetView.h>
#include <KxWidgets/StringOperation.h>

#include <QHBoxLayout>
#include <QProgressBar>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QtTest>

using namespace WidgetProbe;

namespace
{

/// Tests how the dialog takes a source and shows it.
class KrAutoReframeDialogTest : public DialogTest
{
protected:
    void ExpectNothingLoaded() const
    {
        EXPECT_FALSE(IsReadyToAnalyse());
        EXPECT_FALSE(Preview().isEnabled());
        EXPECT_FALSE(Export().isEnabled());
        EXPECT_TRUE(NameLabel().text().isEmpty());
        EXPECT_EQ(Helper().GetSourceTimeline(), nullptr);
    }
};

} // namespace

TEST_F(KrAutoReframeDialogTest, TheMetaObjectHasOnlyTheTwoSignals)
{
    const QMetaObject& meta = KrAutoReframeDialog::staticMetaObject;
    EXPECT_STREQ(meta.superClass()->className(), "KxFramelessDialog");
    EXPECT_EQ(meta.methodCount() - meta.methodOffset(), 2);
    EXPECT_EQ(MethodsOf(meta, QMetaMethod::Signal),
              (QStringList{QStringLiteral("sigExportToLocal(IKxTimeline*,QList<IKxAbstractMedia*>&,QVariant)"),
                           QStringLiteral("sigShowUnsupportDlg()")}));
}

TEST_F(KrAutoReframeDialogTest, ItsBarHasATitleAndThreeButtons)
{
    KxTopLevelWindowTitleBar& bar = *dialog->GetTitleBar();
    EXPECT_EQ(bar.Title(), QStringLiteral("Auto Reframe"));
    EXPECT_TRUE(bar.IsResizeble());
    for (const int bit : {4, 16, 32}) {
        EXPECT_FALSE(bar.GetButton(bit)->isHidden()) << bit;
    }
    EXPECT_TRUE(dialog->GetButtonBar()->isHidden());
}

TEST_F(KrAutoReframeDialogTest, ItsPartsAreMadeInOrder)
{
    const auto placeOf = [this](const QObject* child) {
        return dialog->children().indexOf(const_cast<QObject*>(child));
    };
    ASSERT_NE(process, nullptr);
    ASSERT_NE(progress, nullptr);
    const QWidget* const content = panel->parentWidget();
    EXPECT_EQ(view->parentWidget(), content);
    EXPECT_EQ(content->parentWidget(), dialog.get());
    EXPECT_LT(placeOf(process), placeOf(content));
    EXPECT_LT(placeOf(content), placeOf(progress));
    EXPECT_LT(content->children().indexOf(panel), content->children().indexOf(view));
    EXPECT_EQ(process->parent(), dialog.get());
    EXPECT_EQ(progress->parent(), dialog.get());
    EXPECT_STREQ(content->metaObject()->className(), "QWidget");
}

TEST_F(KrAutoReframeDialogTest, PanelAndPlayerAreSideBySide)
{
    auto* const column = qobject_cast<QVBoxLayout*>(panel->parentWidget()->layout());
    ASSERT_NE(column, nullptr);
    ASSERT_EQ(column->count(), 1);
    auto* const row = qobject_cast<QHBoxLayout*>(column->itemAt(0)->layout());
    ASSERT_NE(row, nullptr);
    for (const QBoxLayout* const layout : {static_cast<QBoxLayout*>(column), static_cast<QBoxLayout*>(row)}) {
        EXPECT_EQ(layout->spacing(), 0);
        EXPECT_EQ(layout->contentsMargins(), QMargins(0, 0, 0, 0));
    }
    ASSERT_EQ(row->count(), 2);
    EXPECT_EQ(row->itemAt(0)->widget(), panel);
    EXPECT_EQ(row->itemAt(1)->widget(), view);
    for (int index = 0; index < 2; ++index) {
        EXPECT_EQ(row->stretch(index), 0);
        EXPECT_EQ(row->itemAt(index)->alignment(), Qt::Alignment());
    }
    EXPECT_EQ(view->minimumSize(), QSize(920, 670));
}

TEST_F(KrAutoReframeDialogTest, NothingIsLoadedAtFirst)
{
    ExpectNothingLoaded();
    EXPECT_FALSE(progress->isVisible());
    EXPECT_EQ(progress->GetTitleBar()->Title(), QStringLiteral("Auto Reframe"));
    const auto* const bar = progress->findChild<QProgressBar*>();
    EXPECT_EQ(bar->minimum(), 0);
    EXPECT_EQ(bar->maximum(), 10000);
}

TEST_F(KrAutoReframeDialogTest, TheNameLetsTheMouseThrough)
{
    EXPECT_EQ(NameLabel().parentWidget(), dialog->GetTitleBar());
    EXPECT_EQ(NameLabel().alignment(), Qt::AlignCenter);
    EXPECT_TRUE(NameLabel().testAttribute(Qt::WA_TransparentForMouseEvents));
}

TEST_F(KrAutoReframeDialogTest, AVideoBecomesTheSource)
{
    Load(Video(QStringLiteral("/videos/clip.MP4")));
    EXPECT_EQ(NameLabel().text(), QStringLiteral("clip.MP4"));
    EXPECT_TRUE(IsReadyToAnalyse());
    EXPECT_FALSE(Preview().isEnabled());
    EXPECT_FALSE(Export().isEnabled());
    EXPECT_TRUE(PanelButton("KrAutoReframe_Import").isHidden());
    ASSERT_NE(Helper().GetSourceTimeline(), nullptr);
    EXPECT_EQ(Helper().GetSourceTimeline()->projectSettings().resolution, QSize(1920, 1080));
    EXPECT_EQ(Helper().GetSourceTimeline()->projectSettings().frameRateType, KxProjectFrameRateType::Fps25);
    EXPECT_NE(Helper().GetWorkTimeline(), nullptr);
    EXPECT_EQ(Player().calls.value(0), QStringLiteral("pause"));
}

TEST_F(KrAutoReframeDialogTest, WithoutAVideoNothingIsLoaded)
{
    FakeHost::Facts sound = Video(QStringLiteral("/music/song.mp3"));
    sound.isVideo = false;
    dialog->InitMediaItem({Item(sound), nullptr});
    ExpectNothingLoaded();
    EXPECT_EQ(Player().calls, QStringList{QStringLiteral("pause")});
    EXPECT_TRUE(recorders.boxes.empty());
}

TEST_F(KrAutoReframeDialogTest, WithoutAVideoTheSourceBeforeStays)
{
    Load(Video(QStringLiteral("/videos/clip.mp4")));
    IKxTimeline* const before = Helper().GetSourceTimeline();
    Analyse();
    FakeHost::Facts sound = Video(QStringLiteral("/music/song.mp3"));
    sound.isVideo = false;
    dialog->InitMediaItem({Item(sound)});
    EXPECT_EQ(Helper().GetSourceTimeline(), before);
    EXPECT_EQ(NameLabel().text(), QStringLiteral("clip.mp4"));
    EXPECT_TRUE(Export().isEnabled());
    // Without a source item nothing can be exported.
    recorders.events.clear();
    dialog->slotExportToLocal();
    EXPECT_TRUE(recorders.events.isEmpty());
}

TEST_F(KrAutoReframeDialogTest, TheFirstVideoOfSeveralCounts)
{
    FakeHost::Facts sound = Video(QStringLiteral("/music/song.mp3"));
    sound.isVideo = false;
    dialog->InitMediaItem(
        {Item(sound), Item(Video(QStringLiteral("/v/first.mov"))), Item(Video(QStringLiteral("/v/second.mov")))});
    EXPECT_EQ(NameLabel().text(), QStringLiteral("first.mov"));
    EXPECT_EQ(Helper().GetSourceTimeline()->clips().first()->filePath(), QStringLiteral("/v/first.mov"));
}

TEST_F(KrAutoReframeDialogTest, AVideoWithoutATimelineOnlyShowsItsName)
{
    FakeHost::RefuseSimpleTimelines(true);
    Load(Video(QStringLiteral("/videos/clip.mp4")));
    EXPECT_EQ(NameLabel().text(), QStringLiteral("clip.mp4"));
    EXPECT_TRUE(IsReadyToAnalyse());
    EXPECT_EQ(Helper().GetSourceTimeline(), nullptr);
}

TEST_F(KrAutoReframeDialogTest, ATimelineBecomesTheSourceUnchanged)
{
    FakeHost::Timeline* const timeline = FakeHost::MakeTimeline({Video(QStringLiteral("/videos/clip.mp4"))});
    dialog->InitTimeline(timeline);
    EXPECT_EQ(Helper().GetSourceTimeline(), timeline);
    EXPECT_TRUE(IsReadyToAnalyse());
    EXPECT_FALSE(Export().isEnabled());
    EXPECT_TRUE(NameLabel().text().isEmpty());
    EXPECT_EQ(FakeHost::TimelineCalls(), QStringList{QStringLiteral("clone")});
}

TEST_F(KrAutoReframeDialogTest, ATimelineKeepsTheNameBeforeAndEndsExports)
{
    Load(Video(QStringLiteral("/videos/clip.mp4")));
    Analyse();
    dialog->InitTimeline(FakeHost::MakeTimeline({Video(QStringLiteral("/videos/other.mp4"))}));
    EXPECT_EQ(NameLabel().text(), QStringLiteral("clip.mp4"));
    Analyse();
    recorders.events.clear();
    dialog->slotExportToLocal();
    EXPECT_TRUE(recorders.events.isEmpty()) << "there is no media item to export";
}

TEST_F(KrAutoReframeDialogTest, NoTimelineOnlyPauses)
{
    Load(Video(QStringLiteral("/videos/clip.mp4")));
    IKxTimeline* const before = Helper().GetSourceTimeline();
    Analyse();
    Player().calls.clear();
    dialog->InitTimeline(nullptr);
    EXPECT_EQ(Player().calls, QStringList{QStringLiteral("pause")});
    EXPECT_EQ(Helper().GetSourceTimeline(), before);
    EXPECT_TRUE(Export().isEnabled());
}

TEST_F(KrAutoReframeDialogTest, ANameThatFitsPrecedesItsSuffix)
{
    dialog->UpdateProjectName(QStringLiteral("my.holiday.mp4"));
    EXPECT_EQ(NameLabel().text(), QStringLiteral("my.holiday.mp4"));
    dialog->UpdateProjectName(QStringLiteral("50%1.mp4"));
    EXPECT_EQ(NameLabel().text(), QStringLiteral("50%1.mp4"));
    dialog->UpdateProjectName(QString());
    EXPECT_EQ(NameLabel().text(), QStringLiteral("50%1.mp4"));
}

TEST_F(KrAutoReframeDialogTest, ALongNameIsElidedWithABlankBeforeItsSuffix)
{
    const QString base = QString(200, QLatin1Char('w'));
    dialog->UpdateProjectName(base + QStringLiteral(".MOV"));
    const QString elided = StringOperation::GetElidedString(base, NameLabel().font(), 268, Qt::ElideRight);
    ASSERT_LT(elided.size(), 200);
    EXPECT_TRUE(elided.endsWith(QChar(0x2026)));
    EXPECT_EQ(NameLabel().text(), elided + QStringLiteral(" .MOV"));
}

TEST_F(KrAutoReframeDialogTest, TheNameIsInTheMiddleOfTheBar)
{
    dialog->UpdateProjectName(QStringLiteral("clip.mp4"));
    const int barHeight = dialog->GetTitleBar()->height();
    EXPECT_EQ(NameLabel().geometry(), QRect((dialog->width() - 300) / 2, (barHeight - 24) / 2, 300, 24));
}

TEST_F(KrAutoReframeDialogTest, SizesAreEven)
{
    EXPECT_EQ(dialog->CalculateResolution(QSize(1920, 1080), QRectF(0, 0, 0.31640625, 1)), QSize(608, 1080));
    EXPECT_EQ(dialog->CalculateResolution(QSize(601, 402), QRectF(0, 0, 0.5, 0.5)), QSize(300, 202));
}

TEST_F(KrAutoReframeDialogTest, MinimisingAlsoMinimisesTheHostsWindow)
{
    KxWidgetView host;
    host.show();
    Make(&host);
    dialog->GetTitleBar()->GetButton(4)->click();
    EXPECT_TRUE(host.isMinimized());
    dialog.reset();
}

TEST_F(KrAutoReframeDialogTest, AnotherWindowIsLeftAlone)
{
    QWidget host;
    host.show();
    Make(&host);
    dialog->GetTitleBar()->GetButton(4)->click();
    EXPECT_FALSE(host.isMinimized());
    dialog.reset();
}

TEST_F(KrAutoReframeDialogTest, EachClickOnTheCloseButtonIsReportedOnce)
{
    Load(Video(QStringLiteral("/videos/clip.mp4")));
    recorders.confirms = false;
    dialog->GetTitleBar()->GetButton(32)->click();
    EXPECT_EQ(recorders.events, QStringList{QStringLiteral("close_window")});
    EXPECT_TRUE(dialog->isVisible());
    recorders.confirms = true;
    dialog->GetTitleBar()->GetButton(32)->click();
    EXPECT_EQ(recorders.events, (QStringList{QStringLiteral("close_window"), QStringLiteral("close_window")}));
    EXPECT_FALSE(dialog->isVisible());
}

TEST_F(KrAutoReframeDialogTest, AnErrorOfTheProcessIsReportedWithoutItsText)
{
    Q_EMIT process->sigProcessError(QStringLiteral("inner workings"));
    ASSERT_EQ(recorders.boxes.size(), 1u);
    const KrMessageDialog::Shown& box = recorders.boxes.front();
    EXPECT_EQ(box.text, QStringLiteral("Analysis error. Please try again."));
    EXPECT_EQ(box.parent, dialog.get());
    EXPECT_EQ(box.type, KrMessageType::Information);
    EXPECT_EQ(box.confirmText, QStringLiteral("OK"));
    EXPECT_TRUE(box.refuseText.isEmpty());
}

TEST_F(KrAutoReframeDialogTest, TheHostsMediaStayTheHosts)
{
    Load(Video(QStringLiteral("/videos/clip.mp4")));
    dialog.reset();
    EXPECT_EQ(FakeHost::MediaCalls(), QStringList{QStringLiteral("release nothing")});
    EXPECT_EQ(FakeHost::LiveTimelines(), 1) << "the working copy is gone, the simple timeline is the host's";
}

TEST_F(KrAutoReframeDialogTest, CanBeDestroyedWithAnAnalysisBehindIt)
{
    Load(Video(QStringLiteral("/videos/clip.mp4")));
    Analyse();
    dialog.reset();
    FakeHost::TheService().FireFromThread(2, 100);
    QCoreApplication::sendPostedEvents();
    EXPECT_TRUE(FakeHost::TheService().Calls().contains(QStringLiteral("RemoveObserver")));
}
