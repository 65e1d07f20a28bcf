#include <Apps/AutoReframe/Library/MediaLoader.h>

#include <algorithm>

MediaLoader::MediaLoader(MediaBackend& backend, QObject* parent)
    : QObject(parent)
    , m_backend(backend)
    , m_thread([this] { Work(); })
{
}

MediaLoader::~MediaLoader()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_ends = true;
        if (m_current) {
            m_current->cancel.Cancel();
        }
    }
    m_changed.notify_all();
    m_thread.join();
}

void MediaLoader::Open(int id, const QString& path)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_requests.push_back({id, path, KxCancelToken()});
    }
    m_changed.notify_all();
}

void MediaLoader::Forget(int id)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto isOfFile = [id](const Request& request) { return request.id == id; };
    m_requests.erase(std::remove_if(m_requests.begin(), m_requests.end(), isOfFile), m_requests.end());
    if (m_current && isOfFile(*m_current)) {
        m_current->cancel.Cancel();
    }
}

std::optional<MediaLoader::Request> MediaLoader::Next()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    m_current.reset();
    m_changed.wait(lock, [this] { return m_ends || !m_requests.empty(); });
    if (m_ends) {
        return std::nullopt;
    }
    m_current = m_requests.front();
    m_requests.pop_front();
    return m_current;
}

void MediaLoader::Work()
{
    while (const std::optional<Request> request = Next()) {
        const KxResult<MediaFile> media = m_backend.Open(request->path, request->cancel);
        if (!request->cancel.IsCancelled()) {
            QMetaObject::invokeMethod(this, [this, id = request->id, media] { Q_EMIT sigOpened(id, media); });
        }
    }
}
