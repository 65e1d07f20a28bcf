#include <Apps/AutoReframe/Backend/MediaBackendLoader.h>
#include <Apps/AutoReframe/Exports/ExportQueue.h>
#include <Apps/AutoReframe/Library/MediaLibraryModel.h>
#include <Apps/AutoReframe/Library/MediaLibraryView.h>
#include <Apps/AutoReframe/MainWindow.h>
#include <Apps/AutoReframe/Store/LibraryStore.h>
#include <Tests/AutoReframe/Backend/FakeMediaBackend.h>

#include <KxWidgets/Windows/KxFileResponder.h>
#include <KxWidgets/Windows/KxMessageResponder.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QMenu>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace
{

using State = MediaLibraryModel::State;

/// One run of the program after the other over the same data.
class TestRestoredWindow : public testing::Test
{
protected:
    struct Run {
        explicit Run(const QString& file)
            : store(file, nullptr)
        {
            window.show();
            store.Open();
            EXPECT_TRUE(QTest::qWaitFor([this] { return store.IsOpen(); }, 30000));
        }
        MediaLibraryView& View() const { return *window.findChild<MediaLibraryView*>(); }
        const MediaLibraryModel& Model() const { return static_cast<const MediaLibraryModel&>(*View().model()); }
        QAbstractButton* Button(const char* name) const
        {
            return window.findChild<QAbstractButton*>(QLatin1String(name));
        }
        QStringList Cards() const
        {
            QStringList names;
            for (int row = 0; row < Model().Count(); ++row) {
                names += Model().index(row).data().toString();
            }
            return names;
        }
        QStringList Selected() const
        {
            QStringList names;
            for (const QModelIndex& video : View().SelectedVideos()) {
                names += video.data().toString();
            }
            return names;
        }
        bool WaitForState(int row, State state) const
        {
            return QTest::qWaitFor([&] { return Model().StateAt(Model().index(row)) == state; }, 30000);
        }
        void LoadBackend() { loader.Get(); }

        std::shared_ptr<FakeMediaBackend> backend = std::make_shared<FakeMediaBackend>();
        MediaBackendLoader loader{[this] { return KxResult<std::shared_ptr<MediaBackend>>(backend); }, nullptr};
        LibraryStore store;
        MainWindow window{loader, store};
    };

    void SetUp() override
    {
        qputenv("KX_CONFIG_FILE", m_folder.filePath(QStringLiteral("config.ini")).toLocal8Bit());
        KrMessageDialog::SetResponder([this](const KrMessageDialog::Shown& shown) {
            m_boxes += shown.text;
            return m_answer;
        });
    }
    void TearDown() override
    {
        KrMessageDialog::SetResponder({});
        KxFileDialog::SetResponder({});
        qputenv("KX_CONFIG_FILE", m_folder.filePath(QStringLiteral("none.ini")).toLocal8Bit());
    }

    QString Data() const { return m_folder.filePath(QStringLiteral("data/library.db")); }
    QString Clip(const QString& name, const QByteArray& content = "a video") const
    {
        QDir(m_folder.path()).mkpath(QFileInfo(name).path());
        QFile file(m_folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    }
    /// A run that imports the files and is closed.
    void ImportAndQuit(const QStringList& paths)
    {
        Run run(Data());
        run.window.Open(paths);
        for (int row = 0; row < paths.size(); ++row) {
            ASSERT_TRUE(run.WaitForState(row, State::Open));
        }
        EXPECT_TRUE(run.window.close());
    }
    static ExportRequest Request(const QString& path)
    {
        ExportRequest request;
        request.source.path = QStringLiteral("/clips/a.mp4");
        request.settings.outputPath = path;
        request.settings.resolution = QSize(608, 1080);
        return request;
    }
    void ExportInDialog(Run& run, const QStringList& names) const
    {
        run.backend->inDialog = [this, names](const DialogCallbacks& callbacks) {
            for (const QString& name : names) {
                callbacks.exportRequested(Request(m_folder.filePath(name)));
            }
        };
        run.Button("TopBar_reframe")->click();
    }

    /// What the menu offers to open again.
    static QStringList Recent(
        Run& run, const std::function<void(const QMenu& recent)>& choose = [](const QMenu&) {})
    {
        QStringList texts;
        QTimer::singleShot(0, &run.window, [&] {
            auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_NE(menu, nullptr);
            const auto* const recent = menu->findChild<QMenu*>(QStringLiteral("RecentMenu"));
            for (QAction* const action : recent->actions()) {
                texts += action->isSeparator() ? QStringList() : QStringList(action->text());
            }
            choose(*recent);
            menu->close();
        });
        run.Button("TopBar_menu")->click();
        return texts;
    }

    QTemporaryDir m_folder;
    QStringList m_boxes;
    bool m_answer = true;
};

} // namespace

TEST_F(TestRestoredWindow, TheLibraryIsNotReadForAnEmptyListOfFiles)
{
    {
        MediaBackendLoader loader(
            [] { return KxResult<std::shared_ptr<MediaBackend>>(std::make_shared<FakeMediaBackend>()); }, nullptr);
        LibraryStore store(Data(), nullptr);
        MainWindow window(loader, store);
        window.Open({});
    }

    EXPECT_FALSE(QFileInfo::exists(Data()));
}

TEST_F(TestRestoredWindow, TheHintOfTheExportsDoesNotFlashBeforeTheyAreRestored)
{
    LibraryStore store(Data(), nullptr);
    MediaBackendLoader loader(
        [] { return KxResult<std::shared_ptr<MediaBackend>>(std::make_shared<FakeMediaBackend>()); }, nullptr);
    MainWindow window(loader, store);
    window.show();
    const auto* const hint = window.findChild<QLabel*>(QStringLiteral("ExportPanel_hint"));
    EXPECT_FALSE(hint->isVisible());
    store.Open();
    EXPECT_TRUE(QTest::qWaitFor([hint] { return hint->isVisible(); }, 30000));
}

TEST_F(TestRestoredWindow, LibrarySelectionAndScrollPositionComeBack)
{
    QStringList paths;
    for (int i = 0; i < 40; ++i) {
        paths += Clip(QStringLiteral("%1.mp4").arg(i, 2, 10, QLatin1Char('0')));
    }
    ImportAndQuit(paths);
    int scrolledTo = 0;
    {
        Run run(Data());
        EXPECT_EQ(run.Selected().size(), 40);
        run.View().setCurrentIndex(run.Model().index(3));
        run.View().verticalScrollBar()->setValue(run.View().verticalScrollBar()->maximum() / 2);
        scrolledTo = run.View().verticalScrollBar()->value();
        EXPECT_GT(scrolledTo, 0);
        EXPECT_TRUE(run.window.close());
    }
    Run run(Data());
    EXPECT_EQ(run.Cards().size(), 40);
    EXPECT_EQ(run.Cards().first(), QStringLiteral("00.mp4"));
    EXPECT_EQ(run.Selected(), QStringList(QStringLiteral("03.mp4")));
    EXPECT_EQ(run.View().verticalScrollBar()->value(), scrolledTo);
    EXPECT_EQ(run.Model().index(3).data(MediaLibraryModel::DetailsRole).toString(),
              QStringLiteral("1920 × 1080 · 30 fps"));
    EXPECT_TRUE(m_boxes.isEmpty());
}

TEST_F(TestRestoredWindow, VideosAreShownWithoutOpeningTheirFiles)
{
    ImportAndQuit({Clip(QStringLiteral("a.mp4"))});
    Run run(Data());
    std::atomic_int opened{0};
    run.backend->whileOpening = [&opened](const QString&, const KxCancelToken&) { ++opened; };
    EXPECT_EQ(run.Model().StateAt(run.Model().index(0)), State::Stored);
    EXPECT_TRUE(run.Button("TopBar_reframe")->isEnabled());
    run.LoadBackend();
    EXPECT_EQ(opened, 0);
    run.Button("TopBar_reframe")->click();
    ASSERT_TRUE(QTest::qWaitFor([&] { return run.backend->dialogs == 1; }, 30000));
    EXPECT_EQ(opened, 1);
}

TEST_F(TestRestoredWindow, FilesOfTheCommandLineComeAfterTheRestoredOnesAndAreSelected)
{
    ImportAndQuit({Clip(QStringLiteral("a.mp4"))});
    LibraryStore store(Data(), nullptr);
    MediaBackendLoader loader(
        [] { return KxResult<std::shared_ptr<MediaBackend>>(std::make_shared<FakeMediaBackend>()); }, nullptr);
    MainWindow window(loader, store);
    window.show();
    window.Open({Clip(QStringLiteral("b.mp4"))});
    const auto* const view = window.findChild<MediaLibraryView*>();
    ASSERT_TRUE(QTest::qWaitFor([&] { return view->model()->rowCount() == 3; }, 30000));
    EXPECT_EQ(view->model()->index(0, 0).data().toString(), QStringLiteral("a.mp4"));
    ASSERT_EQ(view->SelectedVideos().size(), 1);
    EXPECT_EQ(view->SelectedVideos().first().data().toString(), QStringLiteral("b.mp4"));
}

TEST_F(TestRestoredWindow, EditsComeBackWhenTheDialogIsOpenedAgain)
{
    VideoEdits edits;
    edits.aspect = QSize(9, 16);
    edits.speed = 8;
    edits.isAnalyzed = true;
    edits.editPoints = {{12, QRectF(0.25, 0.0, 0.5, 1.0)}};
    edits.choices = "{\"version\":1}";
    edits.seenShots = {40};
    const QString path = Clip(QStringLiteral("a.mp4"));
    {
        Run run(Data());
        run.window.Open({path});
        ASSERT_TRUE(run.WaitForState(0, State::Open));
        run.backend->inDialog = [&](const DialogCallbacks& callbacks) {
            EXPECT_TRUE(callbacks.loadEdits(path) == VideoEdits());
            callbacks.editsChanged(path, edits);
            EXPECT_TRUE(callbacks.loadEdits(path) == edits);
        };
        run.Button("TopBar_reframe")->click();
        ASSERT_EQ(run.backend->dialogs, 1);
    }
    Run run(Data());
    run.backend->inDialog = [&](const DialogCallbacks& callbacks) { EXPECT_TRUE(callbacks.loadEdits(path) == edits); };
    run.View().setCurrentIndex(run.Model().index(0));
    run.Button("TopBar_reframe")->click();
    ASSERT_TRUE(QTest::qWaitFor([&] { return run.backend->dialogs == 1; }, 30000));
}

TEST_F(TestRestoredWindow, ARenamedFileIsFoundInItsFolder)
{
    ImportAndQuit({Clip(QStringLiteral("a.mp4"), "one video"), Clip(QStringLiteral("b.mp4"), "two video")});
    ASSERT_TRUE(QFile::rename(m_folder.filePath(QStringLiteral("a.mp4")), m_folder.filePath(QStringLiteral("z.mp4"))));
    {
        Run run(Data());
        run.LoadBackend();
        ASSERT_TRUE(run.WaitForState(0, State::Open));
        EXPECT_EQ(run.Cards(), (QStringList{QStringLiteral("z.mp4"), QStringLiteral("b.mp4")}));
    }
    Run run(Data());
    EXPECT_EQ(run.Cards(), (QStringList{QStringLiteral("z.mp4"), QStringLiteral("b.mp4")}));
    EXPECT_TRUE(m_boxes.isEmpty());
}

TEST_F(TestRestoredWindow, AMissingFileIsShownAsSuchAndCannotBeReframed)
{
    const QString path = Clip(QStringLiteral("a.mp4"));
    ImportAndQuit({path});
    ASSERT_TRUE(QFile::remove(path));
    Clip(QStringLiteral("other.mp4"), "b video");
    Run run(Data());
    run.LoadBackend();
    ASSERT_TRUE(run.WaitForState(0, State::Missing));
    EXPECT_EQ(run.Model().index(0).data(MediaLibraryModel::DetailsRole).toString(), QStringLiteral("File not found"));
    EXPECT_FALSE(run.Button("TopBar_reframe")->isEnabled());
    EXPECT_TRUE(m_boxes.isEmpty());
}

TEST_F(TestRestoredWindow, FindingOneFileFindsTheOthersThatMovedWithIt)
{
    const QStringList paths{Clip(QStringLiteral("old/a.mp4"), "video a"), Clip(QStringLiteral("old/b.mp4"), "video b")};
    ImportAndQuit(paths);
    ASSERT_TRUE(QDir(m_folder.path()).rename(QStringLiteral("old"), QStringLiteral("new")));
    Run run(Data());
    run.LoadBackend();
    ASSERT_TRUE(run.WaitForState(0, State::Missing) && run.WaitForState(1, State::Missing));
    QString caption;
    KxFileDialog::SetResponder([&](const KxFileDialog::Shown& shown) {
        caption = shown.caption;
        return QStringList(m_folder.filePath(QStringLiteral("new/a.mp4")));
    });
    run.View().setCurrentIndex(run.Model().index(0));
    QTest::keyClick(&run.View(), Qt::Key_Return);
    EXPECT_EQ(caption, QStringLiteral("Find a.mp4"));
    ASSERT_TRUE(run.WaitForState(0, State::Open) && run.WaitForState(1, State::Open));
    EXPECT_EQ(run.Model().PathAt(run.Model().index(1)), m_folder.filePath(QStringLiteral("new/b.mp4")));
    EXPECT_TRUE(m_boxes.isEmpty());
}

TEST_F(TestRestoredWindow, AnotherFileIsTakenForAMissingOneOnlyIfThePersonAgrees)
{
    const QString path = Clip(QStringLiteral("a.mp4"), "video a");
    ImportAndQuit({path});
    ASSERT_TRUE(QFile::remove(path));
    const QString other = Clip(QStringLiteral("else/b.mp4"), "video b");
    KxFileDialog::SetResponder([&](const KxFileDialog::Shown&) { return QStringList(other); });
    Run run(Data());
    run.LoadBackend();
    ASSERT_TRUE(run.WaitForState(0, State::Missing));
    m_answer = false;
    run.View().setCurrentIndex(run.Model().index(0));
    QTest::keyClick(&run.View(), Qt::Key_Return);
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_boxes.size() == 1; }, 30000));
    EXPECT_EQ(m_boxes.first(), QStringLiteral("The content of this file differs from that of a.mp4."));
    EXPECT_EQ(run.Model().StateAt(run.Model().index(0)), State::Missing);
    m_answer = true;
    QTest::keyClick(&run.View(), Qt::Key_Return);
    ASSERT_TRUE(run.WaitForState(0, State::Open));
    EXPECT_EQ(run.Cards(), QStringList(QStringLiteral("b.mp4")));
}

TEST_F(TestRestoredWindow, ExportsOfAKilledRunAreOfferedAndResumed)
{
    {
        Run killed(Data());
        killed.window.Open({Clip(QStringLiteral("a.mp4"))});
        ASSERT_TRUE(killed.WaitForState(0, State::Open));
        ExportInDialog(killed, {QStringLiteral("1.mp4"), QStringLiteral("2.mp4")});
        killed.window.Interrupt();
    }
    Run run(Data());
    const auto* const bar = run.window.findChild<QWidget*>(QStringLiteral("ExportPanel_resumeBar"));
    EXPECT_TRUE(bar->isVisible());
    EXPECT_EQ(run.window.Exports().InterruptedCount(), 2);
    EXPECT_EQ(run.window.Exports().UnfinishedCount(), 0);
    run.Button("ExportPanel_resume")->click();
    EXPECT_FALSE(bar->isVisible());
    ASSERT_NE(run.backend->task, nullptr);
    EXPECT_EQ(run.backend->task->request.settings.outputPath, m_folder.filePath(QStringLiteral("1.mp4")));
    EXPECT_EQ(run.backend->task->request.settings.resolution, QSize(608, 1080));
    EXPECT_EQ(run.window.Exports().UnfinishedCount(), 2);
}

TEST_F(TestRestoredWindow, PlannedExportsOfAKilledRunAreAnalyzedAgainAndSummedUp)
{
    const QString clip = Clip(QStringLiteral("a.mp4"));
    PlannedExport planned;
    planned.path = clip;
    planned.plan = {QSize(4, 5), 24, 1080};
    planned.frames = 1260;
    {
        Run killed(Data());
        for (const char* const name : {"1.mp4", "2.mp4"}) {
            planned.outputPath = m_folder.filePath(QLatin1String(name));
            killed.window.Exports().AddPlanned(planned);
        }
        killed.backend->finding->EndWell({40});
        ASSERT_TRUE(QTest::qWaitFor([&] { return killed.backend->task != nullptr; }, 30000));
        killed.backend->task->EndWell();
        ASSERT_TRUE(QTest::qWaitFor([&] { return killed.window.Exports().Summary().done == 1; }, 30000));
        killed.window.Interrupt();
    }
    Run run(Data());
    const auto* const text = run.window.findChild<QLabel*>(QStringLiteral("QueueBar_text"));
    EXPECT_EQ(text->text(), QStringLiteral("1 done, 1 to look at"));
    EXPECT_EQ(run.window.Exports().InterruptedCount(), 1);
    run.Button("ExportPanel_resume")->click();
    ASSERT_NE(run.backend->finding, nullptr);
    EXPECT_EQ(run.backend->finding->request.path, clip);
    EXPECT_TRUE(run.backend->finding->request.plan == planned.plan);
    EXPECT_EQ(text->text(), QStringLiteral("1 of 2 done"));
}

TEST_F(TestRestoredWindow, DiscardedExportsDoNotComeBack)
{
    {
        Run killed(Data());
        killed.window.Open({Clip(QStringLiteral("a.mp4"))});
        ASSERT_TRUE(killed.WaitForState(0, State::Open));
        ExportInDialog(killed, {QStringLiteral("1.mp4")});
        killed.window.Interrupt();
    }
    {
        Run run(Data());
        run.Button("ExportPanel_discard")->click();
        EXPECT_EQ(run.window.Exports().InterruptedCount(), 0);
    }
    Run run(Data());
    EXPECT_TRUE(run.window.findChild<QWidget*>(QStringLiteral("ExportPanel_hint"))->isVisible());
}

TEST_F(TestRestoredWindow, FinishedAndCancelledExportsComeBackAsTheyWere)
{
    {
        Run run(Data());
        run.window.Open({Clip(QStringLiteral("a.mp4"))});
        ASSERT_TRUE(run.WaitForState(0, State::Open));
        ExportInDialog(run, {QStringLiteral("1.mp4"), QStringLiteral("2.mp4")});
        Clip(QStringLiteral("1.mp4"), QByteArray(2048, 'x'));
        run.backend->task->EndWell();
        ASSERT_TRUE(QTest::qWaitFor([&] { return run.window.Exports().FinishedCount() == 1; }, 30000));
        EXPECT_TRUE(run.window.close());
    }
    EXPECT_EQ(m_boxes.size(), 1);
    Run run(Data());
    QStringList statuses;
    for (const QLabel* const label : run.window.findChildren<QLabel*>(QStringLiteral("ExportCard_status"))) {
        statuses += label->text();
    }
    EXPECT_EQ(statuses, (QStringList{QStringLiteral("Done · 2 KB"), QStringLiteral("Cancelled")}));
    EXPECT_FALSE(run.window.findChild<QWidget*>(QStringLiteral("ExportPanel_resumeBar"))->isVisible());
}

TEST_F(TestRestoredWindow, OfAnImportedFolderTheMenuListsTheFolder)
{
    const QString folder = QFileInfo(Clip(QStringLiteral("trip/a.mp4"))).path();
    ImportAndQuit({folder});
    Run run(Data());
    EXPECT_EQ(Recent(run), QStringList(QStringLiteral("trip")));
}

TEST_F(TestRestoredWindow, TheMenuDoesNotListWhatWasRefused)
{
    {
        Run run(Data());
        run.window.Open({Clip(QStringLiteral("bad.mp4")), Clip(QStringLiteral("a.mp4"))});
        ASSERT_TRUE(QTest::qWaitFor([&] { return m_boxes.size() == 1; }, 30000));
        run.window.Open({QFileInfo(Clip(QStringLiteral("notes/a.txt"))).path()});
        ASSERT_TRUE(QTest::qWaitFor([&] { return m_boxes.size() == 2; }, 30000));
        EXPECT_EQ(Recent(run), QStringList(QStringLiteral("a.mp4")));
    }
    Run run(Data());
    EXPECT_EQ(Recent(run), QStringList(QStringLiteral("a.mp4")));
}

TEST_F(TestRestoredWindow, AVideoThatIsRefusedLaterLeavesTheMenu)
{
    ImportAndQuit({Clip(QStringLiteral("a.mp4"))});
    {
        Run run(Data());
        run.View().selectAll();
        QTest::keyClick(&run.View(), Qt::Key_Delete);
        run.backend->refused = QStringLiteral("a.mp4");
        run.window.Open({Clip(QStringLiteral("a.mp4"))});
        ASSERT_TRUE(QTest::qWaitFor([&] { return !m_boxes.isEmpty(); }, 30000));
        EXPECT_EQ(Recent(run), QStringList());
    }
    Run run(Data());
    EXPECT_EQ(Recent(run), QStringList());
}

TEST_F(TestRestoredWindow, TheMenuListsTheVideosUsedLast)
{
    ImportAndQuit({Clip(QStringLiteral("a.mp4")), Clip(QStringLiteral("b & c.mp4"))});
    Run run(Data());
    run.View().selectAll();
    QTest::keyClick(&run.View(), Qt::Key_Delete);
    ASSERT_TRUE(run.Cards().isEmpty());
    EXPECT_EQ(Recent(run, [](const QMenu& recent) { recent.actions().last()->trigger(); }),
              (QStringList{QStringLiteral("b && c.mp4"), QStringLiteral("a.mp4")}));
    EXPECT_EQ(run.Cards(), QStringList(QStringLiteral("a.mp4")));
}

TEST_F(TestRestoredWindow, ThumbnailsAreNotMadeTwice)
{
    ImportAndQuit({Clip(QStringLiteral("a.mp4"))});
    Run run(Data());
    run.LoadBackend();
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return !run.Model().index(0).data(MediaLibraryModel::ThumbnailRole).value<QPixmap>().isNull(); }, 30000));
    EXPECT_EQ(run.backend->lastThumbnail, 0U);
}

TEST_F(TestRestoredWindow, ADamagedLibraryIsReported)
{
    Clip(QStringLiteral("data/library.db"), QByteArray(5000, 'x'));
    Run run(Data());
    ASSERT_TRUE(QTest::qWaitFor([&] { return !m_boxes.isEmpty(); }, 30000));
    EXPECT_TRUE(m_boxes.first().startsWith(QStringLiteral("The library was damaged. It was renamed to ")));
    run.window.Open({Clip(QStringLiteral("a.mp4"))});
    EXPECT_TRUE(run.WaitForState(0, State::Open));
}
