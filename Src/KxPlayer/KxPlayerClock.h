#pragma once

#include <KxCore/KxExport.h>

#include <QtGlobal>

#include <functional>
#include <mutex>
#include <optional>

/// The time of playback: runs by a steady clock, and is pulled gently towards what the sound device says while there is
/// one, so that it neither jumps nor stops when the device hesitates or goes away. Any thread.
class KXPLAYER_API KxPlayerClock
{
public:
    /// Microseconds that never go back.
    using TimeSource = std::function<qint64()>;

    /// Without a time source, std::chrono::steady_clock.
    explicit KxPlayerClock(TimeSource time = {});

    /// Runs from `mediaUs`. The number stands for this run until the next Start or Stop.
    quint64 Start(qint64 mediaUs);
    void Stop();
    bool IsRunning() const;

    /// Nothing while stopped.
    std::optional<qint64> NowUs() const;
    /// Nothing when `run` is over.
    std::optional<qint64> NowUs(quint64 run) const;

    /// What has been heard up to now. The difference is made up little by little, a few milliseconds a call; without
    /// effect when `run` is over.
    void Correct(quint64 run, qint64 heardUs);

private:
    qint64 Now() const { return m_time() + m_offsetUs; }

    const TimeSource m_time;
    mutable std::mutex m_mutex;
    quint64 m_run = 0;
    bool m_isRunning = false;
    qint64 m_offsetUs = 0;
};
