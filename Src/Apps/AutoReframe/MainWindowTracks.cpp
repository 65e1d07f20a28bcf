#include <Apps/AutoReframe/MainWindow.h>

#include <Apps/AutoReframe/Backend/MediaBackendLoader.h>
#include <Apps/AutoReframe/Exports/ExportQueue.h>
#include <Apps/AutoReframe/Library/MediaLibrary.h>
#include <Apps/AutoReframe/Library/MediaLibraryView.h>
#include <Apps/AutoReframe/Library/MediaText.h>
#include <Apps/AutoReframe/Tracks/CropTrackDialog.h>
#include <Apps/AutoReframe/Tracks/CropWait.h>
#include <KxCore/KxConfigFile.h>

#include <KxCore/KxConfig.h>
#include <KxWidgets/KrMessageDialog.h>
#include <KxWidgets/KxFileDialog.h>

#include <QDir>
#include <QFileInfo>

QString MainWindow::OutputFolder() const
{
    if (!m_batchSettings.folder.isEmpty()) {
        return m_batchSettings.folder;
    }
    const QString ofDialog = KxConfigFile::ReadAutoReframe(QStringLiteral("OutputPath"));
    return QFileInfo(ofDialog).isDir() ? ofDialog : KxConfig::GetKorviOutputDirectory();
}

CropRequest MainWindow::RequestForSelected() const
{
    const QList<int> ids = UsableSelected();
    CropRequest request;
    if (ids.size() != 1) {
        return request;
    }
    request.path = m_library->Model().PathAt(m_library->Model().IndexOf(ids.first()));
    request.edits = m_library->EditsOf(request.path);
    request.plan.aspect = request.edits.aspect.isEmpty() ? QSize(9, 16) : request.edits.aspect;
    request.plan.speed = request.edits.speed > 0 ? request.edits.speed : request.plan.speed;
    return request;
}

std::optional<FoundCrops> MainWindow::WaitForCrops(const CropRequest& request)
{
    MediaBackend* const backend = m_backend.Get();
    if (backend == nullptr) {
        Inform(m_backend.Error());
        return std::nullopt;
    }
    const FoundCrops found = CropWait::Run(*backend, request, *this);
    if (found.outcome == KxOutcome::Failed) {
        Inform(found.message);
    }
    return found.outcome == KxOutcome::Done ? std::optional<FoundCrops>(found) : std::nullopt;
}

void MainWindow::SaveCropTrack()
{
    SaveCrops(std::nullopt);
}

void MainWindow::SaveCrops(const std::optional<EditListTarget>& target)
{
    const CropRequest request = RequestForSelected();
    if (request.path.isEmpty() || m_isReframing) {
        return;
    }
    const QString name =
        QStringLiteral("%1-%2x%3")
            .arg(QFileInfo(request.path).completeBaseName(), QString::number(request.plan.aspect.width()),
                 QString::number(request.plan.aspect.height()));
    CropTrackDialog dialog(name, OutputFolder(), target, this);
    if (dialog.DoModal() == 0) {
        return;
    }
    const std::optional<FoundCrops> found = WaitForCrops(request);
    if (!found) {
        return;
    }
    MediaBackend& backend = *m_backend.Get();
    const KxResult<QString> saved =
        target ? backend.SaveEditList(*found, dialog.FilePath()) : backend.SaveCropTrack(*found, dialog.FilePath());
    const QString done =
        target ? tr("The file for %1 was saved.").arg(target->program) : tr("The crop track was saved.");
    if (!saved) {
        Inform(saved.Message());
        return;
    }
    QStringList details{QDir::toNativeSeparators(*saved), MediaText::MissingEdits(found->missingEdits)};
    details.removeAll(QString());
    if (KrMessageDialog::Question_CustomYesNo(done, tr("Close"), tr("Show in Folder"), this, KrStandardButton::No,
                                              details.join(QLatin1Char('\n')), tr("Auto Reframe"),
                                              KrMessageType::Information)) {
        ShowInFolder(*saved);
    }
}

void MainWindow::OpenCropTrack()
{
    CropRequest request = RequestForSelected();
    if (request.path.isEmpty() || m_isReframing) {
        return;
    }
    const QStringList chosen = KxFileDialog::GetOpenFileNamesUnchecked(
        this, tr("Open Crop Track"), OutputFolder(), QStringLiteral("%1(*.json;*.csv;)").arg(tr("Crop tracks")));
    if (chosen.isEmpty()) {
        return;
    }
    request.cropTrack = chosen.first();
    const std::optional<FoundCrops> found = WaitForCrops(request);
    if (found) {
        m_toReframe = UsableSelected();
        m_dialogPlan.reset();
        m_dialogTrack = found->track;
        ReframeNext();
    }
}
