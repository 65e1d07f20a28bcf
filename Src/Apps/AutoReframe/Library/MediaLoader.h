#pragma once

#include <Apps/AutoReframe/Backend/MediaBackend.h>

#include <KxCore/KxWorker.h>

#include <QHash>
#include <QObject>

/// Opens files on a thread of its own, in the order of the requests. User-interface thread.
class MediaLoader : public QObject
{
    Q_OBJECT
public:
    /// `backend` is borrowed.
    MediaLoader(MediaBackend& backend, QObject* parent);
    /// Cancels all requests and waits for the one that is running.
    ~MediaLoader() override;

    void Open(int id, const QString& path);
    /// sigOpened is no longer emitted for that file.
    void Forget(int id);

Q_SIGNALS:
    void sigOpened(int id, const KxResult<MediaFile>& media);

private:
    /// On the worker's thread.
    void Deliver(int id, const KxResult<MediaFile>& media);

    MediaBackend& m_backend;
    /// The job of each file that is not open yet.
    QHash<int, quint64> m_jobs;
    // Last: its thread uses the others.
    KxWorker m_worker{KxWorker::Order::OldestFirst};
};
