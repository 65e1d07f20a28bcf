#pragma once

#include <KxCore/KxExport.h>

#include <QtGlobal>

#include <functional>
#include <mutex>
#include <optional>

/// The time of playback. It follows a steady clock and is corrected gently by what the sound device has played, so that
/// it neither jumps nor stops if the device stalls or disappears. Any thread.
class KXPLAYER_API KxPlayerClock
{
public:
    /// Microseconds that never go back.
    using TimeSource = std::function<qint64()>;

    /// Without a time source, std::chrono::steady_clock.
    explicit KxPlayerClock(TimeSource time = {});

    /// Runs from `mediaUs`. Returns the number of this run, which ends with the next Start() or Stop().
    quint64 Start(qint64 mediaUs);
    void Stop();
    bool IsRunning() const;

    /// Nothing while stopped.
    std::optional<qint64> NowUs() const;
    /// Nothing if `run` has ended.
    std::optional<qint64> NowUs(quint64 run) const;

    /// `heardUs` is the time up to which sound has been heard. Each call corrects the difference by at most a few
    /// milliseconds. Nothing happens if `run` has ended.
    void Correct(quint64 run, qint64 heardUs);

private:
    qint64 Now() const { return m_time() + m_offsetUs; }

    const TimeSource m_time;
    mutable std::mutex m_mutex;
    quint64 m_run = 0;
    bool m_isRunning = false;
    qint64 m_offsetUs = 0;
};
