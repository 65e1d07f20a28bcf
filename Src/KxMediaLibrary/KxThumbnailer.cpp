#include <KxMediaLibrary/KxThumbnailer.h>

#include <KxCore/KxWorker.h>
#include <KxMediaLibrary/KxThumbnailPicture.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QHash>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(KxThumbnailer)
};

} // namespace

struct KxThumbnailer::Work {
    explicit Work(Maker made)
        : maker(std::move(made))
    {
    }

    /// On the worker's thread. Nothing is emitted for a request that was cancelled meanwhile.
    void Deliver(KxThumbnailer& thumbnailer, quint64 request, const KxResult<QImage>& picture)
    {
        QMetaObject::invokeMethod(
            &thumbnailer,
            [this, &thumbnailer, request, picture] {
                if (jobs.remove(request) == 0) {
                    return;
                }
                if (picture) {
                    Q_EMIT thumbnailer.sigReady(request, *picture);
                } else {
                    Q_EMIT thumbnailer.sigFailed(request, picture.Message());
                }
            },
            Qt::QueuedConnection);
    }

    const Maker maker;
    /// The worker's job of each request that was neither answered nor cancelled. User-interface thread.
    QHash<quint64, quint64> jobs;
    // Last: its thread uses the others.
    KxWorker worker{KxWorker::Order::NewestFirst};
};

KxThumbnailer::KxThumbnailer(QObject* parent)
    : KxThumbnailer(&KxThumbnailPicture::Make, parent)
{
}

KxThumbnailer::KxThumbnailer(Maker maker, QObject* parent)
    : QObject(parent)
    , m_work(std::make_unique<Work>(std::move(maker)))
{
}

KxThumbnailer::~KxThumbnailer() = default;

quint64 KxThumbnailer::Request(const QString& path, const QSize& roomPx)
{
    const quint64 request = ++m_lastRequest;
    KxWorker::Job job;
    job.work = [this, work = m_work.get(), request, path, roomPx](const KxCancelToken& cancel) {
        work->Deliver(*this, request, work->maker(path, roomPx, cancel));
    };
    job.failed = [this, work = m_work.get(), request, path](const QString& message) {
        work->Deliver(
            *this, request,
            KxResult<QImage>::Failure(Texts::tr("Cannot show %1: %2.").arg(QFileInfo(path).fileName(), message)));
    };
    m_work->jobs.insert(request, m_work->worker.Add(std::move(job)));
    return request;
}

void KxThumbnailer::Cancel(quint64 request)
{
    m_work->worker.Cancel(m_work->jobs.take(request));
}

void KxThumbnailer::CancelAll()
{
    m_work->jobs.clear();
    m_work->worker.CancelAll();
}
