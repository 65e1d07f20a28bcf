#include <KxMediaLibrary/KxThumbnailer.h>

#include <KxMediaLibrary/KxThumbnailPicture.h>

#include <QHash>

#include <condition_variable>
#include <mutex>
#include <thread>
#include <vector>

/// The thread and its stack of requests.
class KxThumbnailer::Worker
{
public:
    explicit Worker(KxThumbnailer* owner)
        : m_owner(owner)
        , m_thread([this] { Run(); })
    {
    }

    ~Worker()
    {
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_isOver = true;
            for (KxCancelToken& token : m_tokens) {
                token.Cancel();
            }
        }
        m_changed.notify_one();
        m_thread.join();
    }

    void Push(quint64 number, const QString& path, const QSize& roomPx)
    {
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_waiting.push_back({number, path, roomPx, m_tokens[number]});
        }
        m_changed.notify_one();
    }

    /// False when there is no such request (any more): it was cancelled meanwhile.
    bool Forget(quint64 number)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        const auto token = m_tokens.find(number);
        if (token == m_tokens.end()) {
            return false;
        }
        token->Cancel();
        m_tokens.erase(token);
        return true;
    }

    QList<quint64> Numbers() const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_tokens.keys();
    }

private:
    struct Task {
        quint64 number;
        QString path;
        QSize roomPx;
        KxCancelToken cancel;
    };

    std::optional<Task> Next()
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_changed.wait(lock, [this] { return m_isOver || !m_waiting.empty(); });
        if (m_isOver) {
            return std::nullopt;
        }
        Task task = std::move(m_waiting.back());
        m_waiting.pop_back();
        return task;
    }

    void Run()
    {
        while (const std::optional<Task> task = Next()) {
            if (task->cancel.IsCancelled()) {
                continue;
            }
            const KxResult<QImage> picture = KxThumbnailPicture::Make(task->path, task->roomPx, task->cancel);
            QMetaObject::invokeMethod(
                m_owner,
                [owner = m_owner, number = task->number, picture] {
                    picture ? owner->HandleReady(number, *picture) : owner->HandleFailed(number, picture.Message());
                },
                Qt::QueuedConnection);
        }
    }

    KxThumbnailer* const m_owner;
    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<Task> m_waiting;
    /// Of every request that has neither been answered nor cancelled.
    QHash<quint64, KxCancelToken> m_tokens;
    bool m_isOver = false;
    std::thread m_thread;
};

KxThumbnailer::KxThumbnailer(QObject* parent)
    : QObject(parent)
    , m_worker(std::make_unique<Worker>(this))
{
}

KxThumbnailer::~KxThumbnailer() = default;

quint64 KxThumbnailer::Request(const QString& path, const QSize& roomPx)
{
    m_worker->Push(++m_lastRequest, path, roomPx);
    return m_lastRequest;
}

void KxThumbnailer::Cancel(quint64 request)
{
    m_worker->Forget(request);
}

void KxThumbnailer::CancelAll()
{
    const QList<quint64> numbers = m_worker->Numbers();
    for (const quint64 number : numbers) {
        m_worker->Forget(number);
    }
}

void KxThumbnailer::HandleReady(quint64 request, const QImage& picture)
{
    if (m_worker->Forget(request)) {
        Q_EMIT sigReady(request, picture);
    }
}

void KxThumbnailer::HandleFailed(quint64 request, const QString& message)
{
    if (m_worker->Forget(request)) {
        Q_EMIT sigFailed(request, message);
    }
}
