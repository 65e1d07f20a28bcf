#include <Apps/AutoReframe/Backend/MediaStudio.h>

#include <Apps/AutoReframe/Backend/ExportRecord.h>
#include <KxMediaLibrary/KxThumbnailer.h>
#include <KxModel/KxAutoReframeService.h>
#include <KxModel/KxFaceModel.h>
#include <KxModel/KxMediaItem.h>
#include <KxModel/KxSimpleTimeline.h>
#include <KxRender/KxRenderJob.h>

#include <KrAutoReframe/KrAutoReframeDialog.h>
#include <KxMediaLibrary/KxMediaLibraryUtils.h>

#include <QCoreApplication>

namespace
{

class OpenedFile final : public StudioItem
{
public:
    explicit OpenedFile(std::unique_ptr<KxMediaItem> opened)
        : item(std::move(opened))
    {
    }

    const std::unique_ptr<KxMediaItem> item;
};

class TimelineSource final : public ExportSource
{
public:
    explicit TimelineSource(KxRenderSource taken)
        : source(std::move(taken))
    {
    }

    const KxRenderSource source;
};

class JobTask final : public RenderTask
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

void Order(IKxTimeline* timeline, const QVariant& record, const ReframeCallbacks& callbacks)
{
    KxResult<ExportOrder> order = ExportRecord::Read(record);
    if (!order) {
        callbacks.refused(order.Message());
        return;
    }
    KxResult<KxRenderSource> source = KxRenderSource::FromTimeline(*timeline);
    if (!source) {
        callbacks.refused(source.Message());
        return;
    }
    order->source = std::make_shared<TimelineSource>(std::move(*source));
    callbacks.ordered(*order);
}

} // namespace

MediaStudio::MediaStudio()
{
    KxAutoReframeService::Instance().SetFaceModel(KxFaceModel::Find());
}

MediaStudio::~MediaStudio() = default;

KxResult<StudioMedia> MediaStudio::Open(const QString& path, const KxCancelToken& cancel)
{
    using Opened = KxResult<StudioMedia>;
    KxResult<std::unique_ptr<KxMediaItem>> item = KxMediaItem::Open(path, cancel);
    if (!item) {
        return Opened::Failure(item.Message());
    }
    if (!(*item)->mediaInfo()->hasVideoStream()) {
        return Opened::Failure(QCoreApplication::translate("MediaStudio", "Cannot open %1: it has no moving picture.")
                                   .arg((*item)->name()));
    }
    const KxStreamInfo& info = static_cast<const KxClip*>((*item)->clip())->StreamInfo();
    StudioMedia media;
    media.path = (*item)->filePath();
    media.resolution = info.resolution();
    media.frameRate = info.frameRate();
    media.frameCount = info.frameCount();
    media.item = std::make_shared<OpenedFile>(std::move(*item));
    return media;
}

KxThumbnailer& MediaStudio::Thumbnailer()
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

quint64 MediaStudio::RequestThumbnail(const QString& path, const QSize& roomPx,
                                      const std::function<void(const QImage&)>& ready)
{
    const quint64 request = Thumbnailer().Request(path, roomPx);
    m_thumbnailRequests.insert(request, ready);
    return request;
}

void MediaStudio::CancelThumbnail(quint64 request)
{
    m_thumbnailRequests.remove(request);
    Thumbnailer().Cancel(request);
}

QString MediaStudio::ImportPatterns() const
{
    return KxMediaLibraryUtils::getImportVideoFilter();
}

void MediaStudio::Reframe(const QList<StudioMedia>& media, QWidget& parent, const ReframeCallbacks& callbacks)
{
    QList<IKxAbstractMedia*> items;
    for (const StudioMedia& video : media) {
        items += static_cast<const OpenedFile&>(*video.item).item.get();
    }
    {
        const auto dialog = std::make_unique<KrAutoReframeDialog>(&parent);
        QObject::connect(dialog.get(), &KrAutoReframeDialog::sigExportToLocal, &parent,
                         [&callbacks](IKxTimeline* timeline, const QList<IKxAbstractMedia*>&, const QVariant& record) {
                             Order(timeline, record, callbacks);
                         });
        QObject::connect(dialog.get(), &KrAutoReframeDialog::sigShowUnsupportDlg, &parent, callbacks.unsupported);
        dialog->InitMediaItem(items);
        dialog->DoModal();
    }
    KxSimpleTimeline::ReleaseAll();
}

std::unique_ptr<RenderTask> MediaStudio::Render(const ExportOrder& order, const RenderCallbacks& callbacks)
{
    KxRenderSettings settings;
    settings.outputPath = order.filePath;
    settings.existing = KxOutputFile::Existing::AddNumber;
    settings.resolution = order.resolution;
    settings.frameRate = order.frameRate;
    settings.videoBitRate = order.videoBitRate;
    settings.audioBitRate = order.audioBitRate;
    KxRenderJob::Callbacks heard;
    heard.progress = callbacks.progress;
    heard.finished = [finished = callbacks.finished](const KxRenderResult& result) {
        finished({result.outcome, result.message, result.outputPath, result.warning});
    };
    return std::make_unique<JobTask>(static_cast<const TimelineSource&>(*order.source).source, settings, heard);
}
