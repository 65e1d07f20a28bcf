#pragma once

#include <atomic>
#include <memory>

/// The one mark by which a job is told to stop. Copies share the mark; any thread may set or read it. A job looks at it
/// once a frame and inside every wait.
class KxCancelToken
{
public:
    KxCancelToken()
        : m_mark(std::make_shared<std::atomic_bool>(false))
    {
    }

    void Cancel() { m_mark->store(true, std::memory_order_release); }
    bool IsCancelled() const { return m_mark->load(std::memory_order_acquire); }

private:
    std::shared_ptr<std::atomic_bool> m_mark;
};
