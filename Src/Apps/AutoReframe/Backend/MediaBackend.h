#pragma once

#include <KxCore/KxRational.h>

#include <KxCore/KxCancelToken.h>
#include <KxCore/KxResult.h>
#include <KxRender/KxRenderJob.h>

#include <KrAutoReframe/KrAutoReframeExtensions.h>

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
    QMap<uint, QByteArray> editPictures; ///< text about the pictures around each; opaque to the program
    QList<KrUnplacedEdit> unplacedEdits;
    QByteArray choices; ///< JSON; opaque to the program
    /// First frames of the doubtful shots that the person has looked at, ascending.
    QList<uint> seenShots;

    bool operator==(const VideoEdits& other) const
    {
        return aspect == other.aspect && speed == other.speed && isAnalyzed == other.isAnalyzed &&
               editPoints == other.editPoints && editPictures == other.editPictures &&
               unplacedEdits == other.unplacedEdits && choices == other.choices && seenShots == other.seenShots;
    }
    bool operator!=(const VideoEdits& other) const { return !(*this == other); }
};

/// One file to render.
struct ExportRequest {
    KxRenderSource source;
    KxRenderSettings settings;
};

/// How to reframe a video without the dialog. A plain record.
struct ReframePlan {
    QSize aspect;
    /// As in IKxAutoReframeParam: 8 fast, 16 auto, 24 slow.
    int speed = 16;
    /// Of the result; at most one of both is set, otherwise it is as large as the crop.
    int shortSidePx = 0;
    int heightPx = 0;

    bool operator==(const ReframePlan& other) const
    {
        return aspect == other.aspect && speed == other.speed && shortSidePx == other.shortSidePx &&
               heightPx == other.heightPx;
    }
};

/// What the crop of a video is found from. A plain record.
struct CropRequest {
    QString path;
    ReframePlan plan;
    /// Choices and edit points are kept to, in whatever aspect ratio they were made.
    VideoEdits edits;
    /// A file that holds the crops already: nothing is analyzed, and the edits do not count. Usually empty.
    QString cropTrack;
};

struct CropTrack;
struct KxCroppedClip;

/// The crop of every frame of a video, and what follows from it.
struct FoundCrops {
    KxOutcome outcome = KxOutcome::Failed;
    /// The error message of a failure; empty otherwise.
    QString message;
    /// Complete but for the path of the result.
    ExportRequest request;
    /// First frames of the doubtful shots, ascending.
    QList<uint> doubtfulShots;
    /// How many of the person's choices and edit points are not kept to, because their pictures are not in this cut of
    /// the video.
    int missingEdits = 0;
    /// Null unless done. Opaque to all but the backend.
    std::shared_ptr<const CropTrack> track;
    std::shared_ptr<const KxCroppedClip> clip; ///< the same
};

/// A running analysis or rendering. Its destructor cancels it and waits for its end.
class MediaTask
{
public:
    virtual ~MediaTask();
    /// Returns at once; `finished` is still called. Any thread.
    virtual void Cancel() = 0;

protected:
    MediaTask() = default;
    Q_DISABLE_COPY_MOVE(MediaTask)
};

/// Of a task that finds crops. Both may be empty.
struct CropCallbacks {
    /// Ascending ten-thousandths, on a thread of the task, which waits while the call lasts.
    std::function<void(int tenThousandths)> progress;
    /// Once, as the last call, on the user-interface thread; not if the task was destroyed before. Must not destroy the
    /// task.
    std::function<void(const FoundCrops& found)> finished;
};

/// What the dialog is opened with, and what is called while it is open, on the user-interface thread.
struct DialogCallbacks {
    std::function<void(const ExportRequest& request)> exportRequested;
    /// The result cannot be exported; `message` gives the reason.
    std::function<void(const QString& message)> exportRefused;
    /// What the person decided about the video `path` when it was open last; the dialog may also open others than the
    /// one it was shown for. May be empty.
    std::function<VideoEdits(const QString& path)> loadEdits;
    /// The person changed something. May be empty.
    std::function<void(const QString& path, const VideoEdits& edits)> editsChanged;
    /// See KrAutoReframeExports. May be empty.
    std::function<void(const KrAutoReframeExports::Listener& listener)> listenToExports;
    std::function<void(const QString& filePath)> showInFolder;
    /// The person pressed F1 in `dialog`. May be empty.
    std::function<void(QWidget& dialog)> showHelp;
    /// The dialog shows the video's first result at the first doubtful shot that was not seen.
    bool startsAtDoubtfulShot = false;
    /// Shown in place of an analysis, without the person's earlier edits and choices; the edits made then are not
    /// saved. Usually null.
    std::shared_ptr<const CropTrack> track;
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
    /// The libraries behind the backend with the versions that run: "FFmpeg 5.1.6".
    virtual QStringList LibraryVersions() const = 0;
    /// File name patterns of the formats that can be opened, separated by ";".
    virtual QString ImportPatterns() const = 0;
    /// Shows the Auto Reframe dialog over `parent` and returns when it was closed. User-interface thread.
    virtual void Reframe(const MediaFile& video, QWidget& parent, const DialogCallbacks& callbacks) = 0;
    /// Starts to render. User-interface thread.
    virtual std::unique_ptr<MediaTask> Render(const ExportRequest& request,
                                              const KxRenderJob::Callbacks& callbacks) = 0;
    /// Starts to find the crop of every frame as the dialog does; a video that was analyzed before, in whatever aspect
    /// ratio, is not decoded again. May run beside the dialog and its analysis. User-interface thread.
    virtual std::unique_ptr<MediaTask> FindCrops(const CropRequest& request, const CropCallbacks& callbacks) = 0;
    /// Writes the crops to a file for the command line, .json or .csv. A file of that name is kept, and the new one
    /// gets a number. Returns the path.
    virtual KxResult<QString> SaveCropTrack(const FoundCrops& crops, const QString& filePath) = 0;
    /// Writes the crops to a file for another program, by its suffix (see KxEditList). Names are kept as above.
    virtual KxResult<QString> SaveEditList(const FoundCrops& crops, const QString& filePath) = 0;

protected:
    MediaBackend() = default;
    Q_DISABLE_COPY_MOVE(MediaBackend)
};
