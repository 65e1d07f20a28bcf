#include <Apps/AutoReframe/Exports/PauseGate.h>

void PauseGate::SetPaused(bool isPaused)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isPaused = isPaused;
    }
    m_changed.notify_all();
}

void PauseGate::Open()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isOpen = true;
    }
    m_changed.notify_all();
}

void PauseGate::Pass()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    m_changed.wait(lock, [this] { return m_isOpen || !m_isPaused; });
}
