#include <Tests/AutoReframe/MainWindowTest.h>

#include <Apps/AutoReframe/Batch/BatchDialog.h>
#include <Apps/AutoReframe/Exports/ExportQueue.h>
#include <Apps/AutoReframe/Help/AboutDialog.h>
#include <Apps/AutoReframe/Help/HelpDialog.h>
#include <Apps/AutoReframe/LanguageChoice.h>
#include <Apps/AutoReframe/Tracks/CropTrackDialog.h>
#include <Tests/Support/TextFit.h>

#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QTimer>

namespace
{

/// The desktop program's windows in each language.
class ProgramTexts : public testing::WithParamInterface<const char*>, public TestMainWindow
{
protected:
    void SetUp() override
    {
        TextFit::Show(QLatin1String(GetParam()));
        TestMainWindow::SetUp();
        m_window->resize(m_window->minimumSize());
    }
    void TearDown() override
    {
        TestMainWindow::TearDown();
        TextFit::Show(QStringLiteral("en"));
    }

    static void ExpectFit(QWidget& window, const char* name)
    {
        QCoreApplication::sendPostedEvents();
        TextFit::Keep(window, QLatin1String(name));
        EXPECT_EQ(TextFit::Misfits(window, {QStringLiteral("ExportCard_name")}), QStringList());
    }
    void Restore(ExportItem::State state)
    {
        ExportItem item;
        item.state = state;
        item.request = Request(QStringLiteral("out.mp4"));
        item.fileBytes = 34 * 1024 * 1024;
        if (state == ExportItem::State::Done) {
            item.shotsToLookAt = {40};
        }
        m_window->Exports().Restore(item);
    }
    /// Reframes all videos to 9:16 and 1:1.
    void ReframeAll()
    {
        QTimer::singleShot(0, m_window.get(), [this] {
            auto* const dialog = qobject_cast<BatchDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            dialog->findChild<QLineEdit*>(QStringLiteral("KxOpenFileLineEdit_edit"))->setText(m_folder.path());
            dialog->findChild<QAbstractButton*>(QStringLiteral("BatchDialog_1x1"))->click();
            ExpectFit(*dialog, "batch-filled");
            dialog->findChild<QAbstractButton*>(QStringLiteral("BatchDialog_accept"))->click();
        });
        Button("TopBar_reframeAll")->click();
    }
};

} // namespace

TEST_P(ProgramTexts, FitInTheSmallestWindow)
{
    ExpectFit(*m_window, "window-empty");
    Open({QStringLiteral("a.mp4")});
    ASSERT_TRUE(WaitUntilUsable());
    ExpectFit(*m_window, "window-one");
}

TEST_P(ProgramTexts, FitOnTheCardsOfExports)
{
    using State = ExportItem::State;
    for (const State state : {State::Done, State::Cancelled, State::Interrupted}) {
        Restore(state);
    }
    m_window->resize(m_window->minimumWidth(), 700);
    ExpectFit(*m_window, "window-exports");
}

TEST_P(ProgramTexts, FitInTheBarOfAllExports)
{
    Open({QStringLiteral("a.mp4")});
    ASSERT_TRUE(WaitUntilUsable());
    ReframeAll();
    ASSERT_TRUE(WaitForFinding());
    ExpectFit(*m_window, "window-running");
    m_backend->finding->callbacks.progress(5000);
    Button("QueueBar_pause")->click();
    ExpectFit(*m_window, "window-paused");
    Button("QueueBar_pause")->click();
    FinishOne({40});
    FoundCrops failed;
    failed.message = QStringLiteral("x");
    ASSERT_TRUE(WaitForFinding());
    m_backend->finding->End(failed);
    ASSERT_TRUE(QTest::qWaitFor([&] { return Button("QueueBar_retry")->isVisible(); }, 10000));
    ExpectFit(*m_window, "window-ended");
}

TEST_P(ProgramTexts, FitInTheDialogs)
{
    BatchDialog batch(
        {{QStringLiteral("/clips/walk.mp4"), QSize(1920, 1080), 250}}, BatchSettings(),
        [](const QString&) { return false; }, nullptr);
    batch.show();
    ExpectFit(batch, "batch");
    CropTrackDialog track(QStringLiteral("walk-9x16"), QString(), std::nullopt, nullptr);
    track.show();
    ExpectFit(track, "track");
    const EditListTarget target{QStringLiteral("After Effects"), QStringLiteral("txt")};
    CropTrackDialog project(QStringLiteral("walk-9x16"), QString(), target, nullptr);
    project.show();
    ExpectFit(project, "project");
    HelpDialog help(nullptr);
    help.show();
    ExpectFit(help, "help");
    AboutDialog about({QStringLiteral("Qt 5.15"), QStringLiteral("SQLite 3.40")}, nullptr);
    about.show();
    ExpectFit(about, "about");
}

TEST_P(ProgramTexts, FitInTheQuestionBeforeQuitting)
{
    const auto text = [](const char* source, int number = -1) {
        return QCoreApplication::translate("MainWindow", source, nullptr, number);
    };
    KrMessageDialog::SetResponder({});
    bool isShown = false;
    QTimer::singleShot(0, m_window.get(), [&isShown] {
        QWidget* const box = QApplication::activeModalWidget();
        ASSERT_NE(box, nullptr);
        ExpectFit(*box, "question");
        isShown = true;
        box->close();
    });
    KrMessageDialog::Question_CustomYesNo(text("%n exports are not finished. They are cancelled when you quit.", 2),
                                          text("Keep Exporting"), text("Quit"), m_window.get(), KrStandardButton::No,
                                          QString(), text("Auto Reframe"), KrMessageType::Question);
    EXPECT_TRUE(isShown);
}

INSTANTIATE_TEST_SUITE_P(InEachLanguage, ProgramTexts, testing::Values("en", "de", "es", "fr", "ja", "pt_BR", "zh_CN"),
                         [](const auto& chosen) { return std::string(chosen.param); });

namespace
{

class LanguageMenu : public TestMainWindow
{
protected:
    void SetUp() override
    {
        TextFit::Show(QStringLiteral("en"));
        TestMainWindow::SetUp();
    }
    void TearDown() override
    {
        TestMainWindow::TearDown();
        TextFit::Show(QStringLiteral("en"));
    }
    /// The entries of the language menu, the checked one with a star; presses `entry` unless it is empty.
    QStringList Entries(const QString& entry)
    {
        QStringList entries;
        QTimer::singleShot(0, m_window.get(), [&] {
            QWidget* const menu = QApplication::activePopupWidget();
            ASSERT_NE(menu, nullptr);
            QAction* pressed = nullptr;
            for (QAction* const action : menu->findChild<QMenu*>(QStringLiteral("LanguageMenu"))->actions()) {
                entries += action->text() + (action->isChecked() ? QStringLiteral("*") : QString());
                pressed = action->text() == entry ? action : pressed;
            }
            if (pressed != nullptr) {
                pressed->trigger();
            }
            menu->close();
        });
        Button("TopBar_menu")->click();
        QCoreApplication::sendPostedEvents();
        return entries;
    }
};

} // namespace

TEST_F(LanguageMenu, AChoiceChangesTheTextsAtOnceAndIsKept)
{
    const QString system = QStringLiteral("Language of the System");
    EXPECT_EQ(Entries(QStringLiteral("Deutsch")).value(0), system + QLatin1Char('*'));
    EXPECT_EQ(Button("TopBar_import")->text(), QStringLiteral("Importieren…"));
    EXPECT_EQ(Text("StatusBar_text"), QStringLiteral("Noch keine Videos"));
    EXPECT_EQ(LanguageChoice::Of(QString()), QStringLiteral("de"));
    EXPECT_EQ(LanguageChoice::Of(QStringLiteral("fr")), QStringLiteral("fr")) << "the command line has the last word";
    EXPECT_TRUE(Entries(QStringLiteral("English")).contains(QStringLiteral("Deutsch*")));
    EXPECT_EQ(Button("TopBar_import")->text(), QStringLiteral("Import…"));
    Entries(system);
    EXPECT_EQ(LanguageChoice::Saved(), QString());
}
