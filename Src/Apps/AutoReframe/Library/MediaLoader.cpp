#include <Apps/AutoReframe/Library/MediaLoader.h>

#include <QFileInfo>

MediaLoader::MediaLoader(MediaBackend& backend, QObject* parent)
    : QObject(parent)
    , m_backend(backend)
{
}

MediaLoader::~MediaLoader() = default;

void MediaLoader::Open(int id, const QString& path)
{
    KxWorker::Job job;
    job.work = [this, id, path](const KxCancelToken& cancel) { Deliver(id, m_backend.Open(path, cancel)); };
    job.failed = [this, id, path](const QString& message) {
        Deliver(id, KxResult<MediaFile>::Failure(tr("Cannot open %1: %2.").arg(QFileInfo(path).fileName(), message)));
    };
    m_jobs.insert(id, m_worker.Add(std::move(job)));
}

void MediaLoader::Forget(int id)
{
    m_worker.Cancel(m_jobs.take(id));
}

void MediaLoader::Deliver(int id, const KxResult<MediaFile>& media)
{
    QMetaObject::invokeMethod(
        this,
        [this, id, media] {
            // The file may have been forgotten meanwhile.
            if (m_jobs.remove(id) > 0) {
                Q_EMIT sigOpened(id, media);
            }
        },
        Qt::QueuedConnection);
}
