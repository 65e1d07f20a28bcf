#pragma once

#include <KxCore/KxRational.h>

#include <KxCore/KxCancelToken.h>
#include <KxCore/KxResult.h>

#include <QImage>
#include <QList>
#include <QSize>
#include <QString>

#include <functional>
#include <memory>

class QWidget;

/// What the studio keeps of an opened file. Used by one thread at a time; ends before the studio.
class StudioItem
{
public:
    virtual ~StudioItem();

protected:
    StudioItem() = default;
    Q_DISABLE_COPY_MOVE(StudioItem)
};

/// A video file that was opened. Copies share the item.
struct StudioMedia {
    QString path;
    /// As displayed.
    QSize resolution;
    KxRational frameRate;
    qint64 frameCount = 0;
    std::shared_ptr<StudioItem> item;
};

/// What is rendered, as it was at the moment of the order. Never changes; copies of an order share it.
class ExportSource
{
public:
    virtual ~ExportSource();

protected:
    ExportSource() = default;
    Q_DISABLE_COPY_MOVE(ExportSource)
};

/// One file to write.
struct ExportOrder {
    std::shared_ptr<const ExportSource> source;
    /// The wished name; the file gets a number added where one of that name exists.
    QString filePath;
    QSize resolution;
    double frameRate = 0.0; ///< frames a second; 0 is the source's
    int videoBitRate = 0;   ///< bits a second
    int audioBitRate = 0;   ///< bits a second
};

/// How a rendering ended.
struct RenderEnd {
    KxOutcome outcome = KxOutcome::Failed;
    /// Why it failed, for a person; empty otherwise.
    QString message;
    /// The file that was written; empty unless done.
    QString filePath;
    /// What a person should know of a file that was written all the same; mostly empty.
    QString warning;
};

/// Both are called on the rendering's own thread.
struct RenderCallbacks {
    std::function<void(int tenThousandths)> progress;
    /// Exactly once, as the last call.
    std::function<void(const RenderEnd& end)> finished;
};

/// A rendering that runs. Destroying it cancels it and waits for its end.
class RenderTask
{
public:
    virtual ~RenderTask();
    /// Returns at once; the end is told as ever. Any thread.
    virtual void Cancel() = 0;

protected:
    RenderTask() = default;
    Q_DISABLE_COPY_MOVE(RenderTask)
};

/// Heard while the dialog is open, on the user-interface thread.
struct ReframeCallbacks {
    std::function<void(const ExportOrder& order)> ordered;
    /// A result could not be ordered; the message says why.
    std::function<void(const QString& message)> refused;
    /// The machine is said to be too weak for the analysis.
    std::function<void()> unsupported;
};

/// Everything that needs the media libraries, behind one face: these libraries take far longer to load than a window
/// takes to show, so the program starts without them (see StudioLoader).
class Studio
{
public:
    virtual ~Studio();

    /// Blocks while the file's header and first picture are read; any thread. The error message names the file
    /// and the reason.
    virtual KxResult<StudioMedia> Open(const QString& path, const KxCancelToken& cancel) = 0;
    /// Asks for a picture of the video that fits into `roomPx` and returns the request's number. `ready` is called
    /// once, later, unless there is no picture or the request was cancelled. User-interface thread.
    virtual quint64 RequestThumbnail(const QString& path, const QSize& roomPx,
                                     const std::function<void(const QImage& picture)>& ready) = 0;
    virtual void CancelThumbnail(quint64 request) = 0;
    /// The patterns of files that can be opened, separated by ";".
    virtual QString ImportPatterns() const = 0;
    /// Shows the Auto Reframe dialog over `parent` and returns when it was closed. User-interface thread.
    virtual void Reframe(const QList<StudioMedia>& media, QWidget& parent, const ReframeCallbacks& callbacks) = 0;
    /// Starts to render. User-interface thread.
    virtual std::unique_ptr<RenderTask> Render(const ExportOrder& order, const RenderCallbacks& callbacks) = 0;

protected:
    Studio() = default;
    Q_DISABLE_COPY_MOVE(Studio)
};
