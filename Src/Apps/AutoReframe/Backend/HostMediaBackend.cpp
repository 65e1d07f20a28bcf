#include <Apps/AutoReframe/Backend/HostMediaBackend.h>

#include <Apps/AutoReframe/Backend/CropFinder.h>
#include <Apps/AutoReframe/Backend/DialogEdits.h>
#include <Apps/AutoReframe/Backend/ExportRecord.h>
#include <Apps/CropTracks/CropTrackFile.h>
#include <KxCore/KxLog.h>
#include <KxEditList/KxEditList.h>
#include <KxMedia/Container/KxAvVersion.h>
#include <KxMediaLibrary/KxThumbnailer.h>
#include <KxModel/KxAutoReframeService.h>
#include <KxModel/KxDetectorFiles.h>
#include <KxModel/KxMediaItem.h>
#include <KxModel/KxRecordStore.h>
#include <KxModel/KxSimpleTimeline.h>
#include <KxRender/KxRenderJob.h>
#include <KxSubject/KxOpenCvProcess.h>

#include <KrAutoReframe/KrAutoReframeDialog.h>
#include <KxMediaLibrary/KxMediaLibraryUtils.h>
#include <KxWidgets/KxFileDialog.h>

#include <QCoreApplication>
#include <QFileInfo>

namespace
{

class JobTask final : public MediaTask
{
public:
    JobTask(const KxRenderSource& source, const KxRenderSettings& settings, const KxRenderJob::Callbacks& callbacks)
        : m_job(source, settings, callbacks)
    {
    }
    void Cancel() override { m_job.Cancel(); }

private:
    KxRenderJob m_job;
};

/// Of what a rendering of the timeline takes for its sound; 0 without any.
int SoundBitRate(const IKxTimeline& timeline)
{
    const QList<IKxClip*> clips = timeline.clips();
    const auto* const clip = clips.isEmpty() ? nullptr : dynamic_cast<const KxClip*>(clips.first());
    return clip != nullptr ? clip->StreamInfo().bitRate(clip->Facts()->defaultAudio) : 0;
}

void RequestExport(IKxTimeline* timeline, const QVariant& record, const DialogEdits& edits,
                   const DialogCallbacks& callbacks)
{
    KxResult<KxRenderSettings> settings = ExportRecord::Read(record, SoundBitRate(*timeline));
    if (!settings) {
        callbacks.exportRefused(settings.Message());
        return;
    }
    const KxResult<KxRenderSource> source = KxRenderSource::FromTimeline(*timeline);
    if (!source) {
        callbacks.exportRefused(source.Message());
        return;
    }
    settings->resolution = edits.SizeFor(settings->resolution);
    callbacks.exportRequested({*source, *settings});
}

} // namespace

HostMediaBackend::HostMediaBackend()
{
    KxAutoReframeService::PrepareProgram();
    const KxDetectorFiles::NetworkFolder networks = KxDetectorFiles::FindNetworks();
    if (networks.isWanted && networks.path.isEmpty()) {
        KX_LOG_INFO(KxDetectorFiles::MissingNetworks());
    }
    KxAutoReframeService::Instance().SetNetworkFolder(networks.path);
    KxAutoReframeService::Instance().SetRecordFolder(KxRecordStore::ChooseFolder());
    KxFileDialog::SetFileCheck(&KxMediaLibraryUtils::CheckVideoFile);
}

HostMediaBackend::~HostMediaBackend() = default;

KxResult<MediaFile> HostMediaBackend::Open(const QString& path, const KxCancelToken& cancel)
{
    using Opened = KxResult<MediaFile>;
    KxResult<std::unique_ptr<KxMediaItem>> item = KxMediaItem::Open(path, cancel);
    if (!item) {
        return Opened::Failure(item.Message());
    }
    if (!(*item)->mediaInfo()->hasVideoStream()) {
        return Opened::Failure(
            QCoreApplication::translate("HostMediaBackend", "Cannot open %1: it has no moving picture.")
                .arg((*item)->name()));
    }
    const KxStreamInfo& info = (*item)->StreamInfo();
    MediaFile media;
    media.path = (*item)->filePath();
    media.resolution = info.resolution();
    media.frameRate = info.frameRate();
    media.frameCount = info.frameCount();
    media.fileBytes = QFileInfo(media.path).size();
    media.contentHash = ContentHash(media.path);
    media.item = std::move(*item);
    return media;
}

QByteArray HostMediaBackend::ContentHash(const QString& path)
{
    return KxRecordStore::ContentHash(path);
}

KxThumbnailer& HostMediaBackend::Thumbnailer()
{
    if (m_thumbnailer == nullptr) {
        m_thumbnailer = std::make_unique<KxThumbnailer>();
        QObject::connect(m_thumbnailer.get(), &KxThumbnailer::sigReady, m_thumbnailer.get(),
                         [this](quint64 request, const QImage& picture) {
                             if (const auto ready = m_thumbnailRequests.take(request)) {
                                 ready(picture);
                             }
                         });
        QObject::connect(m_thumbnailer.get(), &KxThumbnailer::sigFailed, m_thumbnailer.get(),
                         [this](quint64 request) { m_thumbnailRequests.remove(request); });
    }
    return *m_thumbnailer;
}

quint64 HostMediaBackend::RequestThumbnail(const QString& path, const QSize& roomPx,
                                           const std::function<void(const QImage&)>& ready)
{
    const quint64 request = Thumbnailer().Request(path, roomPx);
    m_thumbnailRequests.insert(request, ready);
    return request;
}

void HostMediaBackend::CancelThumbnail(quint64 request)
{
    m_thumbnailRequests.remove(request);
    Thumbnailer().Cancel(request);
}

QStringList HostMediaBackend::LibraryVersions() const
{
    return {QStringLiteral("FFmpeg %1").arg(KxAvVersion()),
            QStringLiteral("OpenCV %1").arg(QString::fromStdString(KxOpenCvProcess::Version()))};
}

QString HostMediaBackend::ImportPatterns() const
{
    return KxMediaLibraryUtils::getImportVideoFilter();
}

void HostMediaBackend::Reframe(const MediaFile& video, QWidget& parent, const DialogCallbacks& callbacks)
{
    {
        DialogEdits edits(callbacks);
        const auto dialog = std::make_unique<KrAutoReframeDialog>(&parent);
        QObject::connect(
            dialog.get(), &KrAutoReframeDialog::sigExportToLocal, &parent,
            [&callbacks, &edits](IKxTimeline* timeline, const QList<IKxAbstractMedia*>&, const QVariant& record) {
                RequestExport(timeline, record, edits, callbacks);
            });
        QObject::connect(dialog.get(), &KrAutoReframeDialog::sigShowUnsupportDlg, &parent, callbacks.unsupported);
        dialog->SetExtensions(edits);
        dialog->InitMediaItem({video.item.get()});
        dialog->DoModal();
    }
    KxSimpleTimeline::ReleaseAll();
}

std::unique_ptr<MediaTask> HostMediaBackend::Render(const ExportRequest& request,
                                                    const KxRenderJob::Callbacks& callbacks)
{
    return std::make_unique<JobTask>(request.source, request.settings, callbacks);
}

std::unique_ptr<MediaTask> HostMediaBackend::FindCrops(const CropRequest& request, const CropCallbacks& callbacks)
{
    return std::make_unique<CropFinder>(request, KxAutoReframeService::Instance().Settings(), callbacks);
}

KxResult<QString> HostMediaBackend::SaveCropTrack(const FoundCrops& crops, const QString& filePath)
{
    return KxOutputFile::Write(filePath, CropTrackFile::Format(*crops.track, filePath),
                               KxOutputFile::Existing::AddNumber);
}

KxResult<QString> HostMediaBackend::SaveEditList(const FoundCrops& crops, const QString& filePath)
{
    return KxOutputFile::Write(filePath, KxEditList::Text(*crops.clip, QFileInfo(filePath).suffix()),
                               KxOutputFile::Existing::AddNumber);
}
