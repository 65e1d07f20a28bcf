#include <KrAutoReframe/Dialog/KrAutoReframeExportDlg.h>
#include <KrAutoReframe/Extensions/KrRatioComparison.h>
#include <KxCore/KxLanguage.h>
#include <Tests/KrAutoReframe/Dialog/ExtendedDialogTest.h>
#include <Tests/Support/TextFit.h>

#include <QAction>
#include <QtTest>

namespace
{

/// Before the dialog is made.
struct InLanguage {
    explicit InLanguage(const QString& language) { TextFit::Show(language); }
};

class Host final : public StateKeeper, public KrAutoReframeExports
{
public:
    void ListenToExports(const Listener& listener) override { report = listener; }
    void ShowInFolder(const QString&) override {}

    Listener report;
};

/// The module's windows in each language.
class DialogTexts : public testing::WithParamInterface<const char*>, private InLanguage, public DialogTest
{
protected:
    DialogTexts()
        : InLanguage(QLatin1String(GetParam()))
        , deciding(FakeHost::OfferChoices())
    {
        Make(nullptr);
        dialog->SetExtensions(host);
        deciding.decided = FakeHost::MakeResults(FrameCount);
        deciding.shots = {{0, 50, 0.3, KxAutoReframeDoubt::SeveralPlaces}, {50, 100, 0.9, KxAutoReframeDoubt::None}};
    }
    ~DialogTexts() override
    {
        dialog.reset();
        TextFit::Show(QStringLiteral("en"));
    }

    static void ExpectFit(QWidget& window, const char* name)
    {
        QCoreApplication::sendPostedEvents();
        TextFit::Keep(window, QLatin1String(name));
        EXPECT_EQ(TextFit::Misfits(window, {QStringLiteral("KrAutoReframe_fileName")}), QStringList());
    }

    FakeHost::ServiceWithChoices& deciding;
    Host host;
    const QString clip = QStringLiteral("/v/clip.mp4");
};

} // namespace

TEST_P(DialogTexts, FitWhileTheDialogWaitsForAVideo)
{
    ExpectFit(*dialog, "dialog-empty");
}

TEST_P(DialogTexts, FitAfterAnAnalysis)
{
    Load(Video(clip));
    ExpectFit(*dialog, "dialog-loaded");
    Analyse();
    ExpectFit(*dialog, "dialog-analysed");
}

TEST_P(DialogTexts, FitWhenSettingsDifferFromThoseOfTheResult)
{
    Load(Video(clip));
    Analyse();
    auto* const speed = panel->findChild<KxComboBox*>(QStringLiteral("KrAutoReframePropertyPanel_motionSpeed"));
    speed->setCurrentIndex(1);
    deciding.shots.clear();
    ExpectFit(*dialog, "dialog-changed");
}

TEST_P(DialogTexts, FitInEveryStateOfAnExport)
{
    using State = KrAutoReframeExport::State;
    Load(Video(clip));
    Analyse();
    ASSERT_TRUE(host.report);
    for (const State state : {State::Queued, State::Running, State::Done, State::Cancelled}) {
        KrAutoReframeExport now;
        now.state = state;
        now.progress = 10000;
        now.filePath = QStringLiteral("/out/clip.mp4");
        host.report(now);
        ASSERT_FALSE(panel->findChild<KxLabel*>(QStringLiteral("KrAutoReframe_exportState"))->text().isEmpty());
        ExpectFit(*dialog, qPrintable(QStringLiteral("dialog-export-%1").arg(static_cast<int>(state))));
    }
}

TEST_P(DialogTexts, FitInTheProgressDialog)
{
    progress->SetProgressTitle(QCoreApplication::translate("KrAutoReframeDialog", "Converting video. Please wait..."),
                               QStringLiteral("None"));
    progress->show();
    ExpectFit(*progress, "progress");
    progress->hide();
}

TEST_P(DialogTexts, FitInTheExportDialog)
{
    KrAutoReframeExportDlg exporting(dialog.get());
    exporting.show();
    ExpectFit(exporting, "export");
}

TEST_P(DialogTexts, FitInTheComparisonOfRatios)
{
    Load(Video(clip));
    Analyse();
    view->findChild<QAction*>(QStringLiteral("Compare"))->trigger();
    auto* const window = dialog->findChild<KrRatioComparison*>();
    ASSERT_NE(window, nullptr);
    ExpectFit(*window, "comparison");
}

INSTANTIATE_TEST_SUITE_P(InEachLanguage, DialogTexts, testing::Values("en", "de", "es", "fr", "ja", "pt_BR", "zh_CN"),
                         [](const auto& chosen) { return std::string(chosen.param); });

TEST(TextFitTest, EachLanguageIsTested)
{
    EXPECT_EQ(KxLanguage::Codes().join(QLatin1Char(' ')), QStringLiteral("en de es fr ja pt_BR zh_CN"));
}

TEST(TextFitTest, ATextThatIsTooLongIsFound)
{
    QWidget window;
    auto* const label = KxLabel::CreateLabel(&window, QStringLiteral("A text of many words"));
    label->setObjectName(QStringLiteral("tight"));
    label->resize(label->sizeHint());
    window.resize(400, 100);
    EXPECT_EQ(TextFit::Misfits(window), QStringList());
    label->resize(label->width() - 1, label->height());
    EXPECT_EQ(TextFit::Misfits(window).size(), 1);
    label->setWordWrap(true);
    EXPECT_EQ(TextFit::Misfits(window).size(), 1); // too low now
    label->resize(label->sizeHint());
    label->move(window.width() - label->width() + 3, 0);
    EXPECT_EQ(TextFit::Misfits(window).size(), 1); // beyond the window's edge
}
