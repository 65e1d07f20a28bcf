#pragma once

#include <Apps/AutoReframe/Backend/MediaBackend.h>

#include <QObject>

#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>
#include <thread>

/// Opens files on a thread of its own, in the order in which they were asked for. User-interface thread.
class MediaLoader : public QObject
{
    Q_OBJECT
public:
    /// `backend` is borrowed.
    MediaLoader(MediaBackend& backend, QObject* parent);
    /// Cancels and waits; nothing more is told.
    ~MediaLoader() override;

    void Open(int id, const QString& path);
    /// Nothing more is told of that file, unless it is on its way already.
    void Forget(int id);

Q_SIGNALS:
    void sigOpened(int id, const KxResult<MediaFile>& media);

private:
    struct Request {
        int id = 0;
        QString path;
        KxCancelToken cancel;
    };

    void Work();
    std::optional<Request> Next();

    MediaBackend& m_backend;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    // Under the mutex.
    std::deque<Request> m_requests;
    std::optional<Request> m_current;
    bool m_ends = false;
    std::thread m_thread;
};
