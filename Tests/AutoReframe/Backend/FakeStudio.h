#pragma once

#include <Apps/AutoReframe/Backend/Studio.h>

#include <QFileInfo>

#include <thread>

/// A studio without media libraries: every file whose name does not begin with "bad" is a video.
class FakeStudio final : public Studio
{
public:
    /// A rendering that goes on until it is told how to end.
    class Task final : public RenderTask
    {
    public:
        Task(FakeStudio& studio, ExportOrder ordered, RenderCallbacks heard)
            : order(std::move(ordered))
            , callbacks(std::move(heard))
            , m_studio(studio)
        {
            m_studio.task = this;
        }
        ~Task() override
        {
            if (m_thread.joinable()) {
                m_thread.join();
            }
            m_studio.task = nullptr;
        }
        void Cancel() override
        {
            isCancelled = true;
            End({KxOutcome::Cancelled, QString(), QString(), QString()});
        }
        /// On a thread of its own, as real renderings do.
        void End(const RenderEnd& end)
        {
            m_thread = std::thread([heard = callbacks, end] { heard.finished(end); });
        }
        void EndWell() { End({KxOutcome::Done, QString(), order.filePath, QString()}); }

        const ExportOrder order;
        const RenderCallbacks callbacks;
        bool isCancelled = false;

    private:
        FakeStudio& m_studio;
        std::thread m_thread;
    };

    KxResult<StudioMedia> Open(const QString& path, const KxCancelToken&) override
    {
        const QString name = QFileInfo(path).fileName();
        if (name.startsWith(QLatin1String("bad"))) {
            return KxResult<StudioMedia>::Failure(QStringLiteral("Cannot open %1: it is bad.").arg(name));
        }
        StudioMedia media;
        media.path = path;
        media.resolution = QSize(1920, 1080);
        media.frameRate = {30, 1};
        media.frameCount = 1260;
        return media;
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
    QString ImportPatterns() const override { return QStringLiteral("*.mp4;*.mov"); }
    void Reframe(const QList<StudioMedia>& media, QWidget&, const ReframeCallbacks& callbacks) override
    {
        reframed.clear();
        for (const StudioMedia& video : media) {
            reframed += QFileInfo(video.path).fileName();
        }
        ++dialogs;
        if (inDialog) {
            inDialog(callbacks);
        }
    }
    std::unique_ptr<RenderTask> Render(const ExportOrder& order, const RenderCallbacks& callbacks) override
    {
        return std::make_unique<Task>(*this, order, callbacks);
    }

    quint64 lastThumbnail = 0;
    int dialogs = 0;
    QStringList reframed;
    /// What the person does in the dialog.
    std::function<void(const ReframeCallbacks&)> inDialog;
    /// What renders now; null when nothing does.
    Task* task = nullptr;
};
