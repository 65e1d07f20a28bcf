#pragma once

#include <condition_variable>
#include <mutex>

/// Holds the thread of a task while the queue is paused. Any thread.
class PauseGate
{
public:
    void SetPaused(bool isPaused);
    /// From now on nothing is held, paused or not: the task is to end.
    void Open();
    /// Returns once the gate is open or not paused.
    void Pass();

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    // Guarded by the mutex.
    bool m_isPaused = false;
    bool m_isOpen = false;
};
