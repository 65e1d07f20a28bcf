#include <Apps/AutoReframe/MainWindow.h>

#include <Apps/AutoReframe/Batch/BatchDialog.h>
#include <Apps/AutoReframe/Exports/ExportQueue.h>
#include <Apps/AutoReframe/Library/MediaLibrary.h>
#include <Apps/AutoReframe/Library/MediaLibraryView.h>
#include <Apps/AutoReframe/Store/LibraryStore.h>

#include <QFileInfo>

QList<int> MainWindow::UsableSelected() const
{
    using State = MediaLibraryModel::State;
    const MediaLibraryModel& model = m_library->Model();
    QList<int> ids;
    for (const QModelIndex& video : m_view->SelectedVideos()) {
        const State state = model.StateAt(video);
        if (state == State::Open || state == State::Stored) {
            ids += model.IdAt(video);
        }
    }
    return ids;
}

bool MainWindow::IsTaken(const QString& path) const
{
    return QFileInfo::exists(path) || m_exports->WillWrite(path);
}

void MainWindow::ReframeAllSelected()
{
    QList<BatchVideo> videos;
    for (const int id : UsableSelected()) {
        const MediaFile facts = m_library->Model().FactsAt(m_library->Model().IndexOf(id));
        videos += BatchVideo{facts.path, facts.resolution, facts.frameCount};
    }
    // While the dialog of one video is open, its shortcuts belong to it.
    if (videos.isEmpty() || m_isReframing) {
        return;
    }
    m_batchSettings.folder = OutputFolder();
    const auto isTaken = [this](const QString& path) { return IsTaken(path); };
    BatchDialog dialog(videos, m_batchSettings, isTaken, this);
    if (dialog.DoModal() == 0) {
        return;
    }
    m_batchSettings = dialog.Settings();
    m_store.SaveBatchSettings(m_batchSettings.ToJson());
    for (const PlannedExport& planned : m_batchSettings.PlanFor(videos, isTaken)) {
        m_exports->AddPlanned(planned);
    }
}

VideoEdits MainWindow::EditsFor(const QString& path) const
{
    VideoEdits edits = m_library->EditsOf(path);
    if (m_dialogPlan) {
        edits.aspect = m_dialogPlan->aspect;
        edits.speed = m_dialogPlan->speed;
        // The queue has analyzed it, so the dialog shows the result at once.
        edits.isAnalyzed = true;
    }
    return edits;
}

void MainWindow::LookAtExport(int id)
{
    const ExportItem* const item = m_exports->Find(id);
    if (item == nullptr || !item->plan || m_isReframing) {
        return;
    }
    const std::optional<ReframePlan> plan = item->plan;
    const QString path = item->request.source.path;
    const QModelIndex video = m_library->Model().IndexOfPath(path);
    if (!video.isValid()) {
        Inform(tr("%1 is no longer in the library. Import it to look at its shots.").arg(QFileInfo(path).fileName()));
        return;
    }
    m_view->setCurrentIndex(video);
    m_toReframe = {m_library->Model().IdAt(video)};
    m_dialogPlan = plan;
    m_dialogTrack.reset();
    ReframeNext();
}
