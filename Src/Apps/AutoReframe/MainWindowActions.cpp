#include <Apps/AutoReframe/MainWindow.h>

#include <Apps/AutoReframe/Backend/MediaBackendLoader.h>
#include <Apps/AutoReframe/Exports/ExportQueue.h>
#include <Apps/AutoReframe/Library/MediaLibrary.h>
#include <Apps/AutoReframe/Library/MediaLibraryView.h>

#include <KxCore/KxConfig.h>
#include <KxWidgets/KrMessageDialog.h>
#include <KxWidgets/KxFileDialog.h>

#include <QApplication>
#include <QDropEvent>
#include <QFileInfo>
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

void MainWindow::ChooseFiles()
{
    MediaBackend* const backend = m_backend.Get();
    if (backend == nullptr) {
        Inform(m_backend.Error());
        return;
    }
    const QString folder =
        KxConfig::Instance().getDefaultImportDir(QStandardPaths::writableLocation(QStandardPaths::MoviesLocation));
    const QStringList chosen = KxFileDialog::GetOpenFileNamesUnchecked(
        this, tr("Import"), folder,
        QStringLiteral("%1(%2;)").arg(tr("All supported files"), backend->ImportPatterns()));
    if (!chosen.isEmpty()) {
        KxConfig::Instance().setDefaultImportDir(QFileInfo(chosen.first()).absolutePath());
        m_library->Import(chosen);
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

void MainWindow::ReframeSelected()
{
    Reframe(m_view->SelectedVideos());
}

void MainWindow::Reframe(const QModelIndexList& videos)
{
    QList<MediaFile> media;
    for (const QModelIndex& video : videos) {
        if (const std::optional<MediaFile> opened = m_library->Model().MediaAt(video)) {
            media += *opened;
        }
    }
    // The window still takes dropped files while the dialog is open, but must not open a second dialog.
    if (media.isEmpty() || m_isReframing) {
        return;
    }
    m_isReframing = true;
    DialogCallbacks callbacks;
    callbacks.exportRequested = [this](const ExportRequest& request) { m_exports->Add(request); };
    callbacks.exportRefused = [this](const QString& message) { Inform(message); };
    callbacks.unsupported = [this] {
        Inform(tr("This computer may be too slow for the analysis. To try anyway, start it again."));
    };
    // The dialog works on one video.
    m_backend.Get()->Reframe(media.first(), *this, callbacks);
    for (int i = 1; i < media.size() && ContinuesWith(media.at(i), media.size() - i); ++i) {
        m_backend.Get()->Reframe(media.at(i), *this, callbacks);
    }
    m_isReframing = false;
    activateWindow();
}

bool MainWindow::ContinuesWith(const MediaFile& video, int left)
{
    return KrMessageDialog::Question_CustomYesNo(tr("Continue with %1?").arg(QFileInfo(video.path).fileName()),
                                                 tr("Stop"), tr("Continue"), this, KrStandardButton::Yes,
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
