#pragma once

#include <Apps/AutoReframe/Backend/MediaBackend.h>

#include <QFile>
#include <QFileInfo>
#include <QObject>

#include <new>
#include <thread>

/// A backend without media libraries. Every file is a video, but opening fails if the name begins with "bad" and throws
/// if it begins with "throws".
class FakeMediaBackend final : public MediaBackend
{
public:
    /// A rendering that runs until a test ends it.
    class Task final : public MediaTask
    {
    public:
        Task(FakeMediaBackend& backend, ExportRequest requested, KxRenderJob::Callbacks called)
            : request(std::move(requested))
            , callbacks(std::move(called))
            , m_backend(backend)
        {
            m_backend.task = this;
        }
        ~Task() override
        {
            if (m_thread.joinable()) {
                m_thread.join();
            }
            m_backend.task = nullptr;
        }
        void Cancel() override
        {
            isCancelled = true;
            End({KxOutcome::Cancelled, QString(), QString(), QString()});
        }
        /// On a thread of its own, as real renderings do.
        void End(const KxRenderResult& result)
        {
            m_thread = std::thread([called = callbacks, result] { called.finished(result); });
        }
        void EndWell() { End({KxOutcome::Done, QString(), request.settings.outputPath, QString()}); }

        const ExportRequest request;
        const KxRenderJob::Callbacks callbacks;
        bool isCancelled = false;

    private:
        FakeMediaBackend& m_backend;
        std::thread m_thread;
    };

    /// A search for crops that runs until a test ends it.
    class Finding final : public MediaTask
    {
    public:
        Finding(FakeMediaBackend& backend, CropRequest requested, CropCallbacks called)
            : request(std::move(requested))
            , callbacks(std::move(called))
            , m_backend(backend)
        {
            m_backend.finding = this;
        }
        ~Finding() override { m_backend.finding = nullptr; }
        void Cancel() override
        {
            isCancelled = true;
            FoundCrops cancelled;
            cancelled.outcome = KxOutcome::Cancelled;
            End(cancelled);
        }
        /// Through the event loop, as real ones do.
        void End(const FoundCrops& found)
        {
            QMetaObject::invokeMethod(
                &m_context, [this, found] { callbacks.finished(found); }, Qt::QueuedConnection);
        }
        void EndWell(const QList<uint>& doubtfulShots = {}, int missingEdits = 0)
        {
            FoundCrops found;
            found.outcome = KxOutcome::Done;
            found.request.source.path = request.path;
            found.request.settings.resolution = QSize(608, 1080);
            found.doubtfulShots = doubtfulShots;
            found.missingEdits = missingEdits;
            End(found);
        }

        const CropRequest request;
        const CropCallbacks callbacks;
        bool isCancelled = false;

    private:
        FakeMediaBackend& m_backend;
        QObject m_context;
    };

    KxResult<MediaFile> Open(const QString& path, const KxCancelToken& cancel) override
    {
        const QString name = QFileInfo(path).fileName();
        if (whileOpening) {
            whileOpening(name, cancel);
        }
        if (name.startsWith(QLatin1String("bad")) || name == refused) {
            return KxResult<MediaFile>::Failure(QStringLiteral("Cannot open %1: it is bad.").arg(name));
        }
        if (name.startsWith(QLatin1String("throws"))) {
            throw std::bad_alloc();
        }
        MediaFile media;
        media.path = path;
        media.resolution = QSize(1920, 1080);
        media.frameRate = {30, 1};
        media.frameCount = 1260;
        media.fileBytes = QFileInfo(path).size();
        media.contentHash = ContentHash(path);
        return media;
    }
    /// The whole content, so that a test sees what was compared.
    QByteArray ContentHash(const QString& path) override
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll().toHex() : QByteArray();
    }
    quint64 RequestThumbnail(const QString&, const QSize& roomPx,
                             const std::function<void(const QImage&)>& ready) override
    {
        QImage picture(roomPx, QImage::Format_RGB32);
        picture.fill(Qt::darkCyan);
        ready(picture);
        return ++lastThumbnail;
    }
    void CancelThumbnail(quint64) override {}
    QStringList LibraryVersions() const override { return {QStringLiteral("Camera 1.2")}; }
    QString ImportPatterns() const override { return QStringLiteral("*.mp4;*.mov"); }
    void Reframe(const MediaFile& video, QWidget&, const DialogCallbacks& callbacks) override
    {
        reframed += QFileInfo(video.path).fileName();
        ++dialogs;
        if (inDialog) {
            inDialog(callbacks);
        }
    }
    std::unique_ptr<MediaTask> Render(const ExportRequest& request, const KxRenderJob::Callbacks& callbacks) override
    {
        return std::make_unique<Task>(*this, request, callbacks);
    }
    std::unique_ptr<MediaTask> FindCrops(const CropRequest& request, const CropCallbacks& callbacks) override
    {
        ++findings;
        auto made = std::make_unique<Finding>(*this, request, callbacks);
        if (whenFinding) {
            whenFinding(*made);
        }
        return made;
    }
    KxResult<QString> SaveCropTrack(const FoundCrops&, const QString& filePath) override
    {
        savedTracks += filePath;
        return filePath;
    }
    KxResult<QString> SaveEditList(const FoundCrops&, const QString& filePath) override
    {
        savedEditLists += filePath;
        return filePath;
    }

    /// Called by the thread that opens a file.
    std::function<void(const QString& name, const KxCancelToken& cancel)> whileOpening;
    /// The name of one that cannot be opened either.
    QString refused;
    quint64 lastThumbnail = 0;
    int dialogs = 0;
    /// The names of the videos that the dialog was opened for.
    QStringList reframed;
    /// What the person does in the dialog.
    std::function<void(const DialogCallbacks&)> inDialog;
    /// The running rendering, or null.
    Task* task = nullptr;
    /// The running search for crops, or null.
    Finding* finding = nullptr;
    int findings = 0;
    /// Called when a search has started.
    std::function<void(Finding&)> whenFinding;
    QStringList savedTracks;
    QStringList savedEditLists;
};
