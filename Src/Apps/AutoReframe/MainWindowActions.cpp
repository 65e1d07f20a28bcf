#include <Apps/AutoReframe/MainWindow.h>

#include <Apps/AutoReframe/Backend/MediaBackendLoader.h>
#include <Apps/AutoReframe/Dialogs/ExportForMenu.h>
#include <Apps/AutoReframe/Exports/ExportQueue.h>
#include <Apps/AutoReframe/Exports/ExportWatch.h>
#include <Apps/AutoReframe/Help/HelpDialog.h>
#include <Apps/AutoReframe/Library/LibraryShortcuts.h>
#include <Apps/AutoReframe/Library/MediaLibrary.h>
#include <Apps/AutoReframe/Library/MediaLibraryView.h>

#include <KxCore/KxConfig.h>
#include <KxWidgets/KrMessageDialog.h>
#include <KxWidgets/KxFileDialog.h>
#include <KxWidgets/KxPushButton.h>
#include <KxWidgets/KxToolButton.h>
#include <KxWidgets/KxUIStyle.h>

#include <QApplication>
#include <QDir>
#include <QDropEvent>
#include <QFileInfo>
#include <QMenu>
#include <QMimeData>
#include <QStandardPaths>
#include <QUrl>

namespace
{

/// More would not fit on the screen.
constexpr int MostMessages = 8;

QStringList LocalFiles(const QMimeData& data)
{
    QStringList paths;
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile()) {
            paths += url.toLocalFile();
        }
    }
    return paths;
}

} // namespace

void MainWindow::Open(const QStringList& paths)
{
    m_library->Import(paths);
}

QStringList MainWindow::ChooseVideos(const QString& caption, const QString& folder)
{
    MediaBackend* const backend = m_backend.Get();
    if (backend == nullptr) {
        Inform(m_backend.Error());
        return {};
    }
    return KxFileDialog::GetOpenFileNamesUnchecked(
        this, caption, folder, QStringLiteral("%1(%2;)").arg(tr("All supported files"), backend->ImportPatterns()));
}

void MainWindow::ChooseFiles()
{
    const QStringList chosen = ChooseVideos(
        tr("Import"),
        KxConfig::Instance().getDefaultImportDir(QStandardPaths::writableLocation(QStandardPaths::MoviesLocation)));
    if (!chosen.isEmpty()) {
        KxConfig::Instance().setDefaultImportDir(QFileInfo(chosen.first()).absolutePath());
        m_library->Import(chosen);
    }
}

void MainWindow::ChooseFolder()
{
    const QString folder = KxFileDialog::getExistingDirectory(
        this, tr("Import Folder"),
        KxConfig::Instance().getDefaultImportDir(QStandardPaths::writableLocation(QStandardPaths::MoviesLocation)));
    if (!folder.isEmpty()) {
        KxConfig::Instance().setDefaultImportDir(folder);
        m_library->Import({folder});
    }
}

void MainWindow::ShowMenu()
{
    QMenu menu(this);
    menu.setObjectName(QStringLiteral("MainMenu"));
    m_menu->FollowMenu(menu);
    menu.addAction(tr("Import…"), this, &MainWindow::ChooseFiles)->setShortcut(QKeySequence::Open);
    menu.addAction(tr("Import Folder…"), this, &MainWindow::ChooseFolder);
    AddRecent(*menu.addMenu(tr("Open Recent")));
    menu.addSeparator();
    QAction* const reframeAll = menu.addAction(tr("Reframe All…"), this, &MainWindow::ReframeAllSelected);
    reframeAll->setShortcut(LibraryShortcuts::ReframeAll());
    reframeAll->setEnabled(m_reframeAll->isEnabled());
    const bool isOneSelected = UsableSelected().size() == 1;
    menu.addAction(tr("Save Crop Track…"), this, &MainWindow::SaveCropTrack)->setEnabled(isOneSelected);
    menu.addAction(tr("Open Crop Track…"), this, &MainWindow::OpenCropTrack)->setEnabled(isOneSelected);
    ExportForMenu::AddTo(menu, [this](const EditListTarget& target) { SaveCrops(target); })->setEnabled(isOneSelected);
    menu.addSeparator();
    AddLanguages(*menu.addMenu(tr("Language")));
    menu.addAction(tr("Keyboard Shortcuts"), this, &MainWindow::ShowHelp)->setShortcut(QKeySequence::HelpContents);
    menu.addAction(tr("About Auto Reframe"), this, &MainWindow::ShowAbout);
    menu.addSeparator();
    menu.addAction(tr("Quit"), this, &QWidget::close)->setShortcut(LibraryShortcuts::Quit());
    constexpr int gapPx = 4;
    menu.exec(m_menu->mapToGlobal(QPoint(0, m_menu->height() + gapPx)));
}

void MainWindow::AddRecent(QMenu& menu)
{
    menu.setObjectName(QStringLiteral("RecentMenu"));
    menu.setToolTipsVisible(true);
    menu.setEnabled(!m_library->Recent().isEmpty() || !m_library->RecentFolders().isEmpty());
    AddPaths(menu, m_library->Recent(), QIcon());
    if (!m_library->RecentFolders().isEmpty()) {
        menu.addSeparator();
        AddPaths(menu, m_library->RecentFolders(), KxUIStyle::Icon(QStringLiteral("folder")));
    }
}

void MainWindow::AddPaths(QMenu& menu, const QStringList& paths, const QIcon& icon)
{
    constexpr int longestPx = 320;
    for (const QString& path : paths) {
        QString name = menu.fontMetrics().elidedText(QFileInfo(path).fileName(), Qt::ElideMiddle, longestPx);
        // An ampersand would mark the key that chooses the entry.
        name.replace(QLatin1Char('&'), QStringLiteral("&&"));
        QAction* const action = menu.addAction(icon, name, this, [this, path] { m_library->Import({path}); });
        action->setToolTip(QDir::toNativeSeparators(path));
    }
}

void MainWindow::SelectImported(const QModelIndexList& videos)
{
    QItemSelection selection;
    for (const QModelIndex& video : videos) {
        selection.select(video, video);
    }
    m_view->selectionModel()->setCurrentIndex(videos.first(), QItemSelectionModel::NoUpdate);
    m_view->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    m_view->scrollTo(videos.last());
}

void MainWindow::ReportRefused(const QStringList& messages)
{
    QStringList shown = messages.mid(0, MostMessages);
    if (shown.size() < messages.size()) {
        shown += tr("… and %n more.", nullptr, messages.size() - shown.size());
    }
    Inform(shown.join(QLatin1Char('\n')));
}

void MainWindow::Inform(const QString& text)
{
    QWidget* const top = QApplication::activeModalWidget();
    KrMessageDialog::Infomation(text, top != nullptr ? top : this, KrStandardButton::Ok, QString(), tr("Auto Reframe"),
                                QString(), false);
}

void MainWindow::RemoveSelected()
{
    m_library->Remove(m_view->SelectedVideos());
}

void MainWindow::Activate(const QModelIndex& video)
{
    if (m_library->Model().StateAt(video) == MediaLibraryModel::State::Missing) {
        FindFile(video);
    } else {
        Reframe({video});
    }
}

void MainWindow::FindFile(const QModelIndex& video)
{
    const int id = m_library->Model().IdAt(video);
    const QFileInfo file(m_library->Model().PathAt(video));
    const QStringList chosen = ChooseVideos(tr("Find %1").arg(file.fileName()), file.absolutePath());
    if (!chosen.isEmpty()) {
        m_library->FindAt(id, chosen.first());
    }
}

void MainWindow::AskForOtherFile(int id, const QString& path)
{
    const QString name = QFileInfo(m_library->Model().PathAt(m_library->Model().IndexOf(id))).fileName();
    if (KrMessageDialog::Question_CustomYesNo(tr("The content of this file differs from that of %1.").arg(name),
                                              tr("Cancel"), tr("Use This File"), this, KrStandardButton::No,
                                              tr("Your edits are kept, but may not fit this file."), tr("Auto Reframe"),
                                              KrMessageType::Question)) {
        m_library->MoveTo(id, path);
    }
}

void MainWindow::ReframeSelected()
{
    Reframe(m_view->SelectedVideos());
}

void MainWindow::Reframe(const QModelIndexList& videos)
{
    // The window still takes dropped files while the dialog is open, but must not open a second dialog.
    if (m_isReframing) {
        return;
    }
    m_toReframe.clear();
    m_dialogPlan.reset();
    m_dialogTrack.reset();
    for (const QModelIndex& video : videos) {
        const MediaLibraryModel::State state = m_library->Model().StateAt(video);
        if (state == MediaLibraryModel::State::Open || state == MediaLibraryModel::State::Stored) {
            m_toReframe += m_library->Model().IdAt(video);
        }
    }
    ReframeNext();
}

void MainWindow::ReframeNext()
{
    while (!m_isReframing && !m_toReframe.isEmpty()) {
        const int id = m_toReframe.first();
        const QModelIndex video = m_library->Model().IndexOf(id);
        const std::optional<MediaFile> media = m_library->Model().MediaAt(video);
        if (!media && video.isValid()) {
            m_library->Open(id);
            return;
        }
        m_toReframe.removeFirst();
        if (media) {
            ShowDialog(*media);
        }
        if (!m_toReframe.isEmpty()) {
            const QModelIndex next = m_library->Model().IndexOf(m_toReframe.first());
            if (!ContinuesWith(m_library->Model().PathAt(next), m_toReframe.size())) {
                m_toReframe.clear();
            }
        }
    }
}

void MainWindow::ShowDialog(const MediaFile& video)
{
    m_isReframing = true;
    m_library->MarkUsed(video.path);
    DialogCallbacks callbacks;
    ExportWatch exports(*m_exports);
    callbacks.exportRequested = [&exports](const ExportRequest& request) { exports.Add(request); };
    callbacks.listenToExports = [&exports](const KrAutoReframeExports::Listener& listener) {
        exports.Listen(listener);
    };
    callbacks.showInFolder = &MainWindow::ShowInFolder;
    callbacks.showHelp = [](QWidget& dialog) { HelpDialog(&dialog).DoModal(); };
    callbacks.startsAtDoubtfulShot = m_dialogPlan.has_value();
    callbacks.track = m_dialogTrack;
    callbacks.exportRefused = [this](const QString& message) { Inform(message); };
    callbacks.loadEdits = [this](const QString& path) { return EditsFor(path); };
    callbacks.editsChanged = [this](const QString& path, const VideoEdits& edits) {
        m_library->SaveEdits(path, edits);
        m_exports->MarkSeen(path, QSet<uint>(edits.seenShots.begin(), edits.seenShots.end()));
    };
    callbacks.unsupported = [this] {
        Inform(tr("This computer may be too slow for the analysis. To try anyway, start it again."));
    };
    m_backend.Get()->Reframe(video, *this, callbacks);
    m_isReframing = false;
    m_dialogPlan.reset();
    m_dialogTrack.reset();
    activateWindow();
}

bool MainWindow::ContinuesWith(const QString& path, int left)
{
    return KrMessageDialog::Question_CustomYesNo(tr("Continue with %1?").arg(QFileInfo(path).fileName()), tr("Stop"),
                                                 tr("Continue"), this, KrStandardButton::Yes,
                                                 tr("%n selected videos are left.", nullptr, left), tr("Auto Reframe"),
                                                 KrMessageType::Question);
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!LocalFiles(*event->mimeData()).isEmpty()) {
        event->setDropAction(Qt::CopyAction);
        event->accept();
        m_view->SetDropActive(true);
    }
}

void MainWindow::dragLeaveEvent(QDragLeaveEvent* event)
{
    m_view->SetDropActive(false);
    KxWidgetView::dragLeaveEvent(event);
}

void MainWindow::dropEvent(QDropEvent* event)
{
    m_view->SetDropActive(false);
    event->setDropAction(Qt::CopyAction);
    event->accept();
    activateWindow();
    m_library->Import(LocalFiles(*event->mimeData()));
}
