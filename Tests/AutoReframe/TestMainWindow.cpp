#include <Apps/AutoReframe/Backend/MediaBackendLoader.h>
#include <Apps/AutoReframe/Exports/ExportQueue.h>
#include <Apps/AutoReframe/Library/MediaLibraryView.h>
#include <Apps/AutoReframe/MainWindow.h>
#include <Apps/AutoReframe/Store/LibraryStore.h>
#include <Tests/AutoReframe/Backend/FakeMediaBackend.h>

#include <KxWidgets/Windows/KxFileResponder.h>
#include <KxWidgets/Windows/KxMessageResponder.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QProcess>
#include <QProgressBar>
#include <QScreen>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

#include <gtest/gtest.h>

#include <future>

namespace
{

/// Stands in for the system's file manager.
class FileManager : public QObject
{
    Q_OBJECT
public:
    QStringList shown;

public Q_SLOTS:
    void Show(const QUrl& folder) { shown += folder.toLocalFile(); }
};

class TestMainWindow : public testing::Test
{
protected:
    void SetUp() override
    {
        qputenv("KX_CONFIG_FILE", m_folder.filePath(QStringLiteral("config.ini")).toLocal8Bit());
        KrMessageDialog::SetResponder([this](const KrMessageDialog::Shown& shown) {
            m_boxes += shown.text;
            return m_answer;
        });
        m_window = std::make_unique<MainWindow>(m_loader, m_store);
        QDesktopServices::setUrlHandler(QStringLiteral("file"), &m_fileManager, "Show");
        m_window->show();
    }
    void TearDown() override
    {
        m_window.reset();
        QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
        KrMessageDialog::SetResponder({});
        KxFileDialog::SetResponder({});
        qputenv("KX_CONFIG_FILE", m_folder.filePath(QStringLiteral("none.ini")).toLocal8Bit());
    }

    template<typename T>
    T* Child(const char* name) const
    {
        return m_window->findChild<T*>(QLatin1String(name));
    }
    QString Text(const char* name) const { return Child<QLabel>(name)->text(); }
    QAbstractButton* Button(const char* name) const { return Child<QAbstractButton>(name); }
    MediaLibraryView* View() const { return Child<MediaLibraryView>("MediaLibrary"); }

    void Open(const QStringList& names)
    {
        QStringList paths;
        for (const QString& name : names) {
            paths += m_folder.filePath(name);
        }
        m_window->Open(paths);
    }
    bool WaitForStatus(const QString& text) const
    {
        return QTest::qWaitFor([&] { return Text("StatusBar_text") == text; }, 10000);
    }
    bool WaitUntilUsable() const
    {
        return QTest::qWaitFor([&] { return Button("TopBar_reframe")->isEnabled(); }, 10000);
    }
    bool WaitUntilAllAreOpen() const
    {
        return QTest::qWaitFor(
            [&] {
                const QAbstractItemModel& model = *View()->model();
                for (int row = 0; row + 1 < model.rowCount(); ++row) {
                    const QString details = model.index(row, 0).data(Qt::AccessibleDescriptionRole).toString();
                    if (!details.endsWith(QLatin1String("fps"))) {
                        return false;
                    }
                }
                return true;
            },
            10000);
    }
    ExportRequest Request(const QString& name) const
    {
        ExportRequest request;
        request.settings.outputPath = m_folder.filePath(name);
        request.settings.resolution = QSize(608, 1080);
        return request;
    }
    void ExportInDialog(const QString& name)
    {
        m_backend->inDialog = [this, name](const DialogCallbacks& callbacks) {
            callbacks.exportRequested(Request(name));
        };
        Button("TopBar_reframe")->click();
    }
    bool WaitForCard(const QString& status) const
    {
        return QTest::qWaitFor([&] { return Text("ExportCard_status") == status; }, 10000);
    }

    QTemporaryDir m_folder;
    std::shared_ptr<FakeMediaBackend> m_backend = std::make_shared<FakeMediaBackend>();
    MediaBackendLoader m_loader{[this] { return KxResult<std::shared_ptr<MediaBackend>>(m_backend); }, nullptr};
    /// Saves nothing.
    LibraryStore m_store{QString(), nullptr};
    QStringList m_boxes;
    bool m_answer = false;
    FileManager m_fileManager;
    std::unique_ptr<MainWindow> m_window;
};

} // namespace

TEST_F(TestMainWindow, StartsEmptyAndWithoutTheBackend)
{
    EXPECT_EQ(Text("StatusBar_text"), QStringLiteral("No videos yet"));
    EXPECT_FALSE(Button("TopBar_reframe")->isEnabled());
    EXPECT_TRUE(Button("TopBar_import")->isEnabled());
    QApplication::processEvents();
    EXPECT_EQ(m_loader.IfLoaded(), nullptr);
}

TEST_F(TestMainWindow, ReportsOnceThatItIsPainted)
{
    int painted = 0;
    QObject::connect(m_window.get(), &MainWindow::sigPainted, m_window.get(), [&painted] { ++painted; });
    ASSERT_TRUE(QTest::qWaitFor([&] { return painted > 0; }));
    m_window->repaint();
    QApplication::processEvents();
    EXPECT_EQ(painted, 1);
}

TEST_F(TestMainWindow, OpenedFilesAppearAtOnceAndAreSelected)
{
    Open({QStringLiteral("a.mp4"), QStringLiteral("b.mov")});
    EXPECT_EQ(View()->model()->rowCount(), 3);
    EXPECT_EQ(View()->SelectedVideos().size(), 2);
    EXPECT_TRUE(WaitUntilUsable());
    EXPECT_FALSE(m_boxes.size());
}

TEST_F(TestMainWindow, FilesThatCannotBeOpenedAreReportedInOneBox)
{
    Open({QStringLiteral("bad1.mp4"), QStringLiteral("a.mp4"), QStringLiteral("bad2.mp4")});
    ASSERT_TRUE(QTest::qWaitFor([&] { return !m_boxes.isEmpty(); }, 10000));
    EXPECT_EQ(m_boxes,
              QStringList(QStringLiteral("Cannot open bad1.mp4: it is bad.\nCannot open bad2.mp4: it is bad.")));
    EXPECT_EQ(View()->model()->rowCount(), 2);
}

TEST_F(TestMainWindow, AnExceptionWhileAFileIsOpenedIsReported)
{
    Open({QStringLiteral("throws.mp4"), QStringLiteral("a.mp4")});
    ASSERT_TRUE(QTest::qWaitFor([&] { return !m_boxes.isEmpty(); }, 10000));
    EXPECT_EQ(m_boxes, QStringList(QStringLiteral("Cannot open throws.mp4: memory ran out.")));
    EXPECT_EQ(View()->model()->rowCount(), 2);
}

TEST_F(TestMainWindow, AFileThatIsRemovedWhileItIsOpenedIsCancelledAndNotReported)
{
    std::promise<KxCancelToken> entered;
    std::promise<void> released;
    m_backend->whileOpening = [&](const QString& name, const KxCancelToken& cancel) {
        if (name == QLatin1String("bad.mp4")) {
            entered.set_value(cancel);
            released.get_future().wait();
        }
    };
    m_loader.Get();
    Open({QStringLiteral("bad.mp4")});
    const KxCancelToken cancel = entered.get_future().get();
    QTest::keyClick(View(), Qt::Key_Delete);
    EXPECT_EQ(View()->model()->rowCount(), 0);
    EXPECT_TRUE(cancel.IsCancelled());
    released.set_value();
    Open({QStringLiteral("a.mp4")});
    ASSERT_TRUE(WaitUntilUsable());
    EXPECT_TRUE(m_boxes.isEmpty());
    EXPECT_EQ(View()->model()->rowCount(), 2);
}

TEST_F(TestMainWindow, AFileIsInTheLibraryOnce)
{
    Open({QStringLiteral("a.mp4"), QStringLiteral("a.mp4")});
    ASSERT_TRUE(WaitUntilUsable());
    Open({QStringLiteral("b.mp4")});
    Open({QStringLiteral("a.mp4")});
    EXPECT_EQ(View()->model()->rowCount(), 3);
    ASSERT_EQ(View()->SelectedVideos().size(), 1);
    EXPECT_EQ(View()->SelectedVideos().first().data().toString(), QStringLiteral("a.mp4"));
}

TEST_F(TestMainWindow, ImportRemembersTheFolder)
{
    QDir(m_folder.path()).mkdir(QStringLiteral("holiday"));
    QStringList folders;
    KxFileDialog::SetResponder([&](const KxFileDialog::Shown& shown) {
        folders += shown.folder;
        EXPECT_EQ(shown.filter, QStringLiteral("All supported files(*.mp4;*.mov;)"));
        return QStringList(m_folder.filePath(QStringLiteral("holiday/a.mp4")));
    });
    Button("TopBar_import")->click();
    Button("TopBar_import")->click();
    ASSERT_EQ(folders.size(), 2);
    EXPECT_EQ(folders.first(), QStandardPaths::writableLocation(QStandardPaths::MoviesLocation));
    EXPECT_EQ(folders.last(), m_folder.filePath(QStringLiteral("holiday")));
}

TEST_F(TestMainWindow, DroppedFilesAreImportedAndOtherThingsRefused)
{
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile(m_folder.filePath(QStringLiteral("a.mp4")))});
    QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(m_window.get(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(50, 50), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(m_window.get(), &drop);
    EXPECT_TRUE(WaitForStatus(QStringLiteral("1 videos · 1 selected")));

    QMimeData text;
    text.setText(QStringLiteral("no file"));
    QDragEnterEvent other(QPoint(50, 50), Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
    other.ignore();
    QApplication::sendEvent(m_window.get(), &other);
    EXPECT_FALSE(other.isAccepted());
}

TEST_F(TestMainWindow, OfAFolderTheVideosInItAndBelowItAreImported)
{
    const QDir folder(m_folder.path());
    for (const char* const name :
         {"trip/day 2/c.MOV", "trip/b.mp4", "trip/notes.txt", "trip/day 1/a.mp4", "other.mp4"}) {
        const QString path = folder.filePath(QLatin1String(name));
        folder.mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    Open({QStringLiteral("trip")});
    EXPECT_TRUE(WaitForStatus(QStringLiteral("3 videos · 3 selected")));
    QStringList names;
    for (int row = 0; row < 3; ++row) {
        names += View()->model()->index(row, 0).data().toString();
    }
    EXPECT_EQ(names, (QStringList{QStringLiteral("b.mp4"), QStringLiteral("a.mp4"), QStringLiteral("c.MOV")}));
    EXPECT_TRUE(m_boxes.isEmpty());
}

TEST_F(TestMainWindow, AFolderWithoutVideosIsReported)
{
    QDir(m_folder.path()).mkdir(QStringLiteral("empty"));
    Open({QStringLiteral("empty")});
    ASSERT_TRUE(QTest::qWaitFor([&] { return !m_boxes.isEmpty(); }, 10000));
    EXPECT_EQ(
        m_boxes,
        QStringList(QStringLiteral("There are no videos in %1.").arg(m_folder.filePath(QStringLiteral("empty")))));
    EXPECT_EQ(View()->model()->rowCount(), 0);
}

TEST_F(TestMainWindow, DeleteRemovesTheSelection)
{
    Open({QStringLiteral("a.mp4"), QStringLiteral("b.mp4"), QStringLiteral("c.mp4")});
    ASSERT_TRUE(WaitUntilUsable());
    View()->selectionModel()->select(View()->model()->index(1, 0), QItemSelectionModel::Deselect);
    QTest::keyClick(View(), Qt::Key_Delete);
    EXPECT_EQ(Text("StatusBar_text").left(1), QStringLiteral("1"));
    EXPECT_EQ(View()->model()->index(0, 0).data().toString(), QStringLiteral("b.mp4"));
    View()->selectAll();
    QTest::keyClick(View(), Qt::Key_Delete);
    EXPECT_EQ(View()->model()->rowCount(), 0);
    EXPECT_FALSE(Button("TopBar_reframe")->isEnabled());
}

TEST_F(TestMainWindow, SelectionButtonReturnAndDoubleClickOpenTheDialog)
{
    Open({QStringLiteral("a.mp4"), QStringLiteral("b.mp4")});
    ASSERT_TRUE(WaitUntilAllAreOpen());
    Button("TopBar_reframe")->click();
    EXPECT_EQ(m_backend->reframed, QStringList(QStringLiteral("a.mp4")));
    m_backend->reframed.clear();
    View()->setCurrentIndex(View()->model()->index(1, 0));
    QTest::keyClick(View(), Qt::Key_Return);
    EXPECT_EQ(m_backend->reframed, QStringList(QStringLiteral("b.mp4")));
    m_backend->reframed.clear();
    const QPoint card = View()->visualRect(View()->model()->index(0, 0)).center();
    QTest::mouseClick(View()->viewport(), Qt::LeftButton, Qt::NoModifier, card);
    QTest::mouseDClick(View()->viewport(), Qt::LeftButton, Qt::NoModifier, card);
    EXPECT_EQ(m_backend->reframed, QStringList(QStringLiteral("a.mp4")));
    EXPECT_EQ(m_backend->dialogs, 3);
}

TEST_F(TestMainWindow, SeveralSelectedVideosAreReframedOneAfterTheOther)
{
    Open({QStringLiteral("a.mp4"), QStringLiteral("50%1.mp4"), QStringLiteral("c.mp4")});
    ASSERT_TRUE(WaitUntilAllAreOpen());
    m_answer = true;
    Button("TopBar_reframe")->click();
    EXPECT_EQ(m_backend->reframed,
              (QStringList{QStringLiteral("a.mp4"), QStringLiteral("50%1.mp4"), QStringLiteral("c.mp4")}));
    EXPECT_EQ(m_boxes,
              (QStringList{QStringLiteral("Continue with 50%1.mp4?"), QStringLiteral("Continue with c.mp4?")}));
}

TEST_F(TestMainWindow, TheRestOfTheSelectionCanBeLeftOut)
{
    Open({QStringLiteral("a.mp4"), QStringLiteral("b.mp4"), QStringLiteral("c.mp4")});
    ASSERT_TRUE(WaitUntilAllAreOpen());
    m_answer = false;
    Button("TopBar_reframe")->click();
    EXPECT_EQ(m_backend->reframed, QStringList(QStringLiteral("a.mp4")));
    EXPECT_EQ(m_boxes.size(), 1);
}

TEST_F(TestMainWindow, NoSecondDialogOpensOverTheFirst)
{
    Open({QStringLiteral("a.mp4")});
    ASSERT_TRUE(WaitUntilUsable());
    m_backend->inDialog = [this](const DialogCallbacks&) { Button("TopBar_reframe")->click(); };
    Button("TopBar_reframe")->click();
    EXPECT_EQ(m_backend->dialogs, 1);
}

TEST_F(TestMainWindow, ATooSlowComputerIsReported)
{
    Open({QStringLiteral("a.mp4")});
    ASSERT_TRUE(WaitUntilUsable());
    m_backend->inDialog = [](const DialogCallbacks& callbacks) { callbacks.unsupported(); };
    Button("TopBar_reframe")->click();
    ASSERT_EQ(m_boxes.size(), 1);
    EXPECT_TRUE(m_boxes.first().startsWith(QLatin1String("This computer may be too slow")));
}

TEST_F(TestMainWindow, ACardShowsTheStatesOfItsExport)
{
    Open({QStringLiteral("a.mp4")});
    ASSERT_TRUE(WaitUntilUsable());
    ExportInDialog(QStringLiteral("out.mp4"));
    EXPECT_EQ(Text("ExportCard_name"), QStringLiteral("out.mp4"));
    EXPECT_EQ(Text("ExportCard_size"), QStringLiteral("608 × 1080"));
    m_backend->task->callbacks.progress(6250);
    ASSERT_TRUE(WaitForCard(QStringLiteral("62 %")));
    EXPECT_EQ(Child<QProgressBar>("ExportCard_progress")->value(), 6250);

    QFile written(m_folder.filePath(QStringLiteral("out.mp4")));
    ASSERT_TRUE(written.open(QIODevice::WriteOnly) && written.resize(34LL * 1024 * 1024));
    m_backend->task->EndWell();
    ASSERT_TRUE(WaitForCard(QStringLiteral("Done · 34 MB")));
    EXPECT_FALSE(Button("ExportCard_cancel")->isVisible());
    Button("ExportCard_show")->click();
    EXPECT_EQ(m_fileManager.shown, QStringList(m_folder.path()));
    Button("ExportPanel_clear")->click();
    EXPECT_TRUE(Child<QLabel>("ExportPanel_hint")->isVisible());
}

TEST_F(TestMainWindow, CardsDoNotMoveWhenTheFirstExportEnds)
{
    Open({QStringLiteral("a.mp4")});
    ASSERT_TRUE(WaitUntilUsable());
    ExportInDialog(QStringLiteral("out.mp4"));
    QApplication::sendPostedEvents();
    const QPoint before = Child<QWidget>("ExportCard")->mapTo(m_window.get(), QPoint());
    m_backend->task->EndWell();
    ASSERT_TRUE(QTest::qWaitFor([&] { return Button("ExportPanel_clear")->isVisible(); }, 10000));
    QApplication::sendPostedEvents();
    EXPECT_EQ(Child<QWidget>("ExportCard")->mapTo(m_window.get(), QPoint()), before);
}

TEST_F(TestMainWindow, AFailedExportShowsItsReasonAndCanBeRetried)
{
    Open({QStringLiteral("a.mp4")});
    ASSERT_TRUE(WaitUntilUsable());
    ExportInDialog(QStringLiteral("out.mp4"));
    m_backend->task->End({KxOutcome::Failed, QStringLiteral("The disk is full."), QString(), QString()});
    ASSERT_TRUE(WaitForCard(QStringLiteral("The disk is full.")));
    EXPECT_EQ(Child<QLabel>("ExportCard_status")->property("textRole").toString(), QStringLiteral("error"));
    Button("ExportCard_retry")->click();
    EXPECT_NE(m_backend->task, nullptr);
    EXPECT_TRUE(WaitForCard(QStringLiteral("0 %")));
}

TEST_F(TestMainWindow, TheCrossCancelsAnExport)
{
    Open({QStringLiteral("a.mp4")});
    ASSERT_TRUE(WaitUntilUsable());
    ExportInDialog(QStringLiteral("out.mp4"));
    Button("ExportCard_cancel")->click();
    EXPECT_TRUE(WaitForCard(QStringLiteral("Cancelled")));
    EXPECT_TRUE(Button("ExportCard_retry")->isVisible());
}

TEST_F(TestMainWindow, QuittingAsksWhileExportsRun)
{
    Open({QStringLiteral("a.mp4")});
    ASSERT_TRUE(WaitUntilUsable());
    ExportInDialog(QStringLiteral("out.mp4"));
    EXPECT_FALSE(m_window->close());
    EXPECT_TRUE(m_window->isVisible());
    EXPECT_EQ(m_boxes.size(), 1);
    m_answer = true;
    EXPECT_TRUE(m_window->close());
    EXPECT_TRUE(m_backend->task->isCancelled);
}

TEST_F(TestMainWindow, QuittingWithoutExportsAsksNothing)
{
    EXPECT_TRUE(m_window->close());
    EXPECT_TRUE(m_boxes.isEmpty());
}

TEST_F(TestMainWindow, TheFirstWindowFitsOnASmallScreen)
{
    const QRect screen = m_window->screen()->availableGeometry();
    ASSERT_LT(screen.width(), 1180);
    EXPECT_TRUE(screen.contains(m_window->frameGeometry()));
}

TEST_F(TestMainWindow, AnAbsurdConfigurationDoesNotEndTheProgram)
{
    for (const char* const value : {"@Variant(\\0\\0\\0\\t\\x7f\\xff\\xff\\xff)",
                                    "@Variant(\\0\\0\\0\\b\\x7f\\xff\\xff\\xff)", "@Rect(9 9 99999999999 -7)"}) {
        QFile config(m_folder.filePath(QStringLiteral("absurd.ini")));
        ASSERT_TRUE(config.open(QIODevice::WriteOnly));
        config.write(QByteArray("[Main%20Window]\nGeometry=") + value + "\n");
        config.close();
        qputenv("KX_CONFIG_FILE", config.fileName().toLocal8Bit());
        const MainWindow window(m_loader, m_store);
        EXPECT_EQ(window.size(), m_window->size()) << value;
    }
}

TEST_F(TestMainWindow, AbsurdSavedGeometryIsIgnored)
{
    m_window->resize(730, 500);
    const QByteArray saved = m_window->saveGeometry();
    for (const QByteArray& content : {QByteArray(), QByteArray("1180x740"), QByteArray(5000, 'x'), saved.left(20),
                                      QByteArray(saved).replace(8, 40, QByteArray(40, '\x7f')),
                                      QByteArray(saved).replace(8, 40, QByteArray(40, '\xff'))}) {
        QFile file(m_folder.filePath(QStringLiteral("config.window")));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        const MainWindow window(m_loader, m_store);
        EXPECT_TRUE(window.screen()->availableGeometry().contains(window.geometry())) << content.toHex().toStdString();
    }
}

TEST_F(TestMainWindow, AFifoInPlaceOfTheSavedGeometryDoesNotBlockTheStart)
{
    ASSERT_EQ(QProcess::execute(QStringLiteral("mkfifo"), {m_folder.filePath(QStringLiteral("config.window"))}), 0);
    const MainWindow window(m_loader, m_store);
    EXPECT_EQ(window.size(), m_window->size());
}

TEST_F(TestMainWindow, ItsSizeIsRemembered)
{
    m_window->resize(730, 500);
    ASSERT_TRUE(m_window->close());
    MainWindow again(m_loader, m_store);
    EXPECT_EQ(again.size(), QSize(730, 500));
}

TEST_F(TestMainWindow, ReportsABackendThatCannotBeLoaded)
{
    MediaBackendLoader broken(
        [] {
            return KxResult<std::shared_ptr<MediaBackend>>::Failure(QStringLiteral("Cannot load the video engine."));
        },
        nullptr);
    LibraryStore store(QString(), nullptr);
    MainWindow window(broken, store);
    window.Open({m_folder.filePath(QStringLiteral("a.mp4"))});
    ASSERT_TRUE(QTest::qWaitFor([&] { return !m_boxes.isEmpty(); }, 10000));
    EXPECT_EQ(m_boxes, QStringList(QStringLiteral("Cannot load the video engine.")));
}

TEST_F(TestMainWindow, EveryControlHasANameAndIsReachedWithTab)
{
    Open({QStringLiteral("a.mp4")});
    ASSERT_TRUE(WaitUntilUsable());
    ExportInDialog(QStringLiteral("out.mp4"));
    QApplication::setActiveWindow(m_window.get());
    QSet<QWidget*> reached;
    Button("TopBar_import")->setFocus();
    while (!reached.contains(QApplication::focusWidget())) {
        reached.insert(QApplication::focusWidget());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_TRUE(reached.contains(View()));
    for (const QAbstractButton* const button : m_window->findChildren<QAbstractButton*>()) {
        EXPECT_FALSE(button->objectName().isEmpty());
        if (button->isVisible() && button->isEnabled()) {
            EXPECT_TRUE(reached.contains(const_cast<QAbstractButton*>(button))) << button->objectName().toStdString();
        }
    }
}

#include "TestMainWindow.moc"
