#pragma once

#include <KxCore/KxRational.h>

#include <KxCore/KxCancelToken.h>
#include <KxCore/KxResult.h>
#include <KxRender/KxRenderJob.h>

#include <QImage>
#include <QSize>
#include <QString>

#include <functional>
#include <memory>

class IKxAbstractMedia;
class QWidget;

/// An opened video file. Copies share the item.
struct MediaFile {
    QString path;
    /// As displayed.
    QSize resolution;
    KxRational frameRate;
    qint64 frameCount = 0;
    /// Used by one thread at a time; the last copy goes before the backend does.
    std::shared_ptr<IKxAbstractMedia> item;
};

/// One file to render.
struct ExportRequest {
    KxRenderSource source;
    KxRenderSettings settings;
};

/// A running rendering. Its destructor cancels it and waits for its end.
class RenderTask
{
public:
    virtual ~RenderTask();
    /// Returns at once; `finished` is still called. Any thread.
    virtual void Cancel() = 0;

protected:
    RenderTask() = default;
    Q_DISABLE_COPY_MOVE(RenderTask)
};

/// Called while the dialog is open, on the user-interface thread.
struct DialogCallbacks {
    std::function<void(const ExportRequest& request)> exportRequested;
    /// The result cannot be exported; `message` gives the reason.
    std::function<void(const QString& message)> exportRefused;
    /// The dialog considers this computer too slow for the analysis.
    std::function<void()> unsupported;
};

/// The only way from the desktop program to the media libraries. Those take longer to load than the window takes to
/// show, so the program links this interface alone and loads the implementation later (see MediaBackendLoader). Of the
/// renderer the program uses the types of its requests and results, none of its functions.
class MediaBackend
{
public:
    virtual ~MediaBackend();

    /// Blocks while the file's header and first picture are read; any thread. The error message names the file and the
    /// reason.
    virtual KxResult<MediaFile> Open(const QString& path, const KxCancelToken& cancel) = 0;
    /// Asks for a picture of the video that fits into `roomPx` (device pixels) and returns the request's number.
    /// `ready` is called once, later, unless there is no picture or the request was cancelled. User-interface thread.
    virtual quint64 RequestThumbnail(const QString& path, const QSize& roomPx,
                                     const std::function<void(const QImage& picture)>& ready) = 0;
    virtual void CancelThumbnail(quint64 request) = 0;
    /// File name patterns of the formats that can be opened, separated by ";".
    virtual QString ImportPatterns() const = 0;
    /// Shows the Auto Reframe dialog over `parent` and returns when it was closed. User-interface thread.
    virtual void Reframe(const MediaFile& video, QWidget& parent, const DialogCallbacks& callbacks) = 0;
    /// Starts to render. User-interface thread.
    virtual std::unique_ptr<RenderTask> Render(const ExportRequest& request,
                                               const KxRenderJob::Callbacks& callbacks) = 0;

protected:
    MediaBackend() = default;
    Q_DISABLE_COPY_MOVE(MediaBackend)
};
