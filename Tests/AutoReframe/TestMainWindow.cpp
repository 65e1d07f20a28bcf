#include <Tests/AutoReframe/MainWindowTest.h>
#include <Tests/Support/TestSystem.h>

#include <QApplication>
#include <QDir>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QScreen>
#include <QStandardPaths>
#include <QTimer>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <future>

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

TEST_F(TestMainWindow, ItsMenusButtonLooksLeftWhenTheMenuClosesElsewhere)
{
    QAbstractButton* const button = Button("TopBar_menu");
    ASSERT_TRUE(QTest::qWaitForWindowExposed(m_window.get()));
    for (const bool isLeft : {false, true}) {
        QCursor::setPos(button->mapToGlobal(button->rect().center()));
        ASSERT_TRUE(QTest::qWaitFor([button] { return button->underMouse(); }));
        bool isShown = false;
        QTimer::singleShot(0, m_window.get(), [&] {
            QWidget* const menu = QApplication::activePopupWidget();
            ASSERT_NE(menu, nullptr);
            isShown = menu->objectName() == QLatin1String("MainMenu");
            if (isLeft) {
                QCursor::setPos(m_window->mapToGlobal(m_window->rect().center()));
            }
            QApplication::processEvents(); // the menu takes the movement
            menu->close();
        });
        button->click();
        EXPECT_TRUE(isShown);
        EXPECT_EQ(button->underMouse(), !isLeft);
    }
}

TEST_F(TestMainWindow, TheHintOfAnEmptyLibraryIsInTheMiddleOfItsFrame)
{
    ASSERT_TRUE(QTest::qWaitForWindowExposed(m_window.get()));
    const QImage picture = View()->viewport()->grab().toImage();
    const QRgb background = picture.pixel(0, 0);
    // Rows with something in the middle of the frame, whose sides are farther away.
    QVector<int> rows;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = picture.width() / 2 - 100; x < picture.width() / 2 + 100; ++x) {
            if (picture.pixel(x, y) != background) {
                rows += y;
                break;
            }
        }
    }
    ASSERT_GT(rows.size(), 20);
    const auto isGap = [](int above, int below) { return below - above > 10; };
    const auto content = std::adjacent_find(rows.begin(), rows.end(), isGap) + 1;
    const auto contentEnd =
        std::adjacent_find(rows.rbegin(), rows.rend(), [](int below, int above) { return below - above > 10; });
    const int above = *content - rows.first();
    const int below = rows.last() - *(contentEnd + 1);
    EXPECT_NEAR(above, below, 4 * picture.devicePixelRatio());
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

#ifndef Q_OS_WIN
TEST_F(TestMainWindow, VideosOfAFolderWhoseNamesQtCannotHoldAreReported)
{
    const std::string folder = m_folder.path().toStdString();
    const std::array<std::string, 3> files{folder + "/bad\xff.mp4", folder + "/b\xfe.mov", folder + "/bad\xff.txt"};
    for (const std::string& file : files) {
        std::ofstream(file) << "a file";
    }
    Open({QStringLiteral(".")});
    ASSERT_TRUE(QTest::qWaitFor([&] { return !m_boxes.isEmpty(); }, 10000));
    EXPECT_EQ(m_boxes, QStringList(QStringLiteral("2 videos in %1 were left out: their names are not valid UTF-8. "
                                                  "Rename them.")
                                       .arg(m_folder.path())));
    for (const std::string& file : files) {
        std::filesystem::remove(file); // Qt cannot
    }
}
#endif

TEST_F(TestMainWindow, FilesOfADroppedFolderThatAreNoVideosAreCountedAndNotReported)
{
    const QDir folder(m_folder.path());
    for (const char* const name : {"trip/b.mp4", "trip/bad.mp4", "trip/notes.txt", "trip/day 1/cover.png"}) {
        const QString path = folder.filePath(QLatin1String(name));
        folder.mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    QMimeData dragged;
    dragged.setUrls({QUrl::fromLocalFile(folder.filePath(QStringLiteral("trip")))});
    QDragEnterEvent enter(QPoint(100, 100), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(m_window.get(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(100, 100), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(m_window.get(), &drop);
    ASSERT_TRUE(WaitForStatus(QStringLiteral("1 videos · 1 selected")));
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return Text("StatusBar_skipped") == QLatin1String("3 files that are no videos were skipped"); }, 10000));
    EXPECT_TRUE(m_boxes.isEmpty());
    Open({QStringLiteral("a.mp4")});
    EXPECT_EQ(Text("StatusBar_skipped"), QString());
}

TEST_F(TestMainWindow, AFolderWithoutVideosIsReported)
{
    QDir(m_folder.path()).mkdir(QStringLiteral("empty"));
    Open({QStringLiteral("empty")});
    ASSERT_TRUE(QTest::qWaitFor([&] { return !m_boxes.isEmpty(); }, 10000));
    EXPECT_EQ(m_boxes, QStringList(QStringLiteral("There are no videos in %1.")
                                       .arg(QDir::toNativeSeparators(m_folder.filePath(QStringLiteral("empty"))))));
    EXPECT_EQ(View()->model()->rowCount(), 0);
}

TEST_F(TestMainWindow, F1ListsTheShortcuts)
{
    m_window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(m_window.get()));
    QString shown;
    QTimer::singleShot(0, m_window.get(), [&shown] {
        ASSERT_NE(QApplication::activeModalWidget(), nullptr);
        shown = QApplication::activeModalWidget()->objectName();
        QApplication::activeModalWidget()->close();
    });
    QTest::keyClick(m_window.get(), Qt::Key_F1);
    EXPECT_EQ(shown, QStringLiteral("HelpDialog"));
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
    if (!TestSystem::MakeNamedPipe(m_folder.filePath(QStringLiteral("config.window")))) {
        GTEST_SKIP() << "this system has no named pipes in folders";
    }
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
    const QSet<QWidget*> reached = ReachedWithTab();
    EXPECT_TRUE(reached.contains(View()));
    for (const QAbstractButton* const button : m_window->findChildren<QAbstractButton*>()) {
        EXPECT_FALSE(button->objectName().isEmpty());
        if (button->isVisible() && button->isEnabled()) {
            EXPECT_TRUE(reached.contains(const_cast<QAbstractButton*>(button))) << button->objectName().toStdString();
        }
    }
}
