#pragma once

#include <Apps/AutoReframe/Backend/MediaBackend.h>

#include <QMap>

class KxThumbnailer;

/// The backend over the host's libraries and the Auto Reframe module.
class HostMediaBackend final : public MediaBackend
{
public:
    HostMediaBackend();
    ~HostMediaBackend() override;

    KxResult<MediaFile> Open(const QString& path, const KxCancelToken& cancel) override;
    QByteArray ContentHash(const QString& path) override;
    quint64 RequestThumbnail(const QString& path, const QSize& roomPx,
                             const std::function<void(const QImage& picture)>& ready) override;
    void CancelThumbnail(quint64 request) override;
    QStringList LibraryVersions() const override;
    QString ImportPatterns() const override;
    void Reframe(const MediaFile& video, QWidget& parent, const DialogCallbacks& callbacks) override;
    std::unique_ptr<MediaTask> Render(const ExportRequest& request, const KxRenderJob::Callbacks& callbacks) override;
    std::unique_ptr<MediaTask> FindCrops(const CropRequest& request, const CropCallbacks& callbacks) override;
    KxResult<QString> SaveCropTrack(const FoundCrops& crops, const QString& filePath) override;
    KxResult<QString> SaveEditList(const FoundCrops& crops, const QString& filePath) override;

private:
    KxThumbnailer& Thumbnailer();

    // Made by the first request: the backend itself is made on the loader's thread, which has ended by then.
    std::unique_ptr<KxThumbnailer> m_thumbnailer;
    QMap<quint64, std::function<void(const QImage&)>> m_thumbnailRequests;
};
