#pragma once

#include <atomic>
#include <memory>

/// Asks a job to stop. Copies share one flag, which any thread may set or read. A job checks it once a frame and in
/// every wait.
class KxCancelToken
{
public:
    KxCancelToken()
        : m_mark(std::make_shared<std::atomic_bool>(false))
    {
    }

    void Cancel() const { m_mark->store(true, std::memory_order_release); }
    bool IsCancelled() const { return m_mark->load(std::memory_order_acquire); }

private:
    std::shared_ptr<std::atomic_bool> m_mark;
};
