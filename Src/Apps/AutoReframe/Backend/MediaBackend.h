#pragma once

#include <KxCore/KxRational.h>

#include <KxCore/KxCancelToken.h>
#include <KxCore/KxResult.h>
#include <KxRender/KxRenderJob.h>

#include <QImage>
#include <QMap>
#include <QRectF>
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
    qint64 fileBytes = 0;
    /// MediaBackend::ContentHash() of the file.
    QByteArray contentHash;
    /// Used by one thread at a time; the last copy goes before the backend does.
    std::shared_ptr<IKxAbstractMedia> item;
};

/// What a person decided about a video in the dialog. A plain record.
struct VideoEdits {
    /// Of the settings; empty if none was chosen yet.
    QSize aspect;
    /// As in IKxAutoReframeParam: 8 fast, 16 auto, 24 slow; 0 if none was chosen yet.
    int speed = 0;
    bool isAnalyzed = false;
    /// The crops that the person placed, by frame, in fractions of the picture.
    QMap<uint, QRectF> editPoints;
    QByteArray choices; ///< JSON; the program does not look into it
    /// First frames of the doubtful shots that the person has looked at, ascending.
    QList<uint> seenShots;

    bool operator==(const VideoEdits& other) const
    {
        return aspect == other.aspect && speed == other.speed && isAnalyzed == other.isAnalyzed &&
               editPoints == other.editPoints && choices == other.choices && seenShots == other.seenShots;
    }
    bool operator!=(const VideoEdits& other) const { return !(*this == other); }
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
    /// What the person decided about the video `path` when it was open last; the dialog may also open others than the
    /// one it was shown for. May be empty.
    std::function<VideoEdits(const QString& path)> loadEdits;
    /// The person changed something. May be empty.
    std::function<void(const QString& path, const VideoEdits& edits)> editsChanged;
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
    /// Identifies the content of a file, from its size and parts of it; empty if it cannot be read. Blocks; any thread.
    virtual QByteArray ContentHash(const QString& path) = 0;
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
