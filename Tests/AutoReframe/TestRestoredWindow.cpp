#include <Tests/AutoReframe/RestoredWindowTest.h>

#include <QScrollBar>

using TestRestoredWindow = RestoredWindowTest;

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
