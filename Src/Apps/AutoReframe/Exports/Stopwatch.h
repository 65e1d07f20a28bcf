#pragma once

#include <QtGlobal>

#include <functional>

/// Measures how long something has taken, without pauses.
class Stopwatch
{
public:
    /// A steady clock in milliseconds.
    using Clock = std::function<qint64()>;

    explicit Stopwatch(Clock clock)
        : m_clock(std::move(clock))
    {
    }

    /// From 0. A paused one stays paused.
    void Restart()
    {
        m_beforeMs = 0;
        m_sinceMs = m_clock();
    }
    void SetPaused(bool isPaused)
    {
        m_beforeMs = ElapsedMs();
        m_sinceMs = m_clock();
        m_isPaused = isPaused;
    }
    qint64 ElapsedMs() const { return m_beforeMs + (m_isPaused ? 0 : m_clock() - m_sinceMs); }

private:
    const Clock m_clock;
    qint64 m_beforeMs = 0;
    qint64 m_sinceMs = 0;
    bool m_isPaused = false;
};
