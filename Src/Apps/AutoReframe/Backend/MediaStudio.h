#pragma once

#include <Apps/AutoReframe/Backend/Studio.h>

#include <QMap>

class KxThumbnailer;

/// The studio over the host's own libraries and the Auto Reframe module.
class MediaStudio final : public Studio
{
public:
    MediaStudio();
    ~MediaStudio() override;

    KxResult<StudioMedia> Open(const QString& path, const KxCancelToken& cancel) override;
    quint64 RequestThumbnail(const QString& path, const QSize& roomPx,
                             const std::function<void(const QImage& picture)>& ready) override;
    void CancelThumbnail(quint64 request) override;
    QString ImportPatterns() const override;
    void Reframe(const QList<StudioMedia>& media, QWidget& parent, const ReframeCallbacks& callbacks) override;
    std::unique_ptr<RenderTask> Render(const ExportOrder& order, const RenderCallbacks& callbacks) override;

private:
    KxThumbnailer& Thumbnailer();

    // Made with the first request: the studio itself is made on a thread that is gone by then.
    std::unique_ptr<KxThumbnailer> m_thumbnailer;
    QMap<quint64, std::function<void(const QImage&)>> m_thumbnailRequests;
};
