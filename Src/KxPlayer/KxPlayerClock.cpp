#include <KxPlayer/KxPlayerClock.h>

#include <algorithm>
#include <chrono>

namespace
{

constexpr qint64 LargestStepUs = 2000;
constexpr qint64 Smoothing = 8;

qint64 SteadyUs()
{
    using namespace std::chrono;
    return duration_cast<microseconds>(steady_clock::now().time_since_epoch()).count();
}

} // namespace

KxPlayerClock::KxPlayerClock(TimeSource time)
    : m_time(time ? std::move(time) : TimeSource(&SteadyUs))
{
}

quint64 KxPlayerClock::Start(qint64 mediaUs)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_isRunning = true;
    m_offsetUs = mediaUs - m_time();
    return ++m_run;
}

void KxPlayerClock::Stop()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_isRunning = false;
    ++m_run;
}

bool KxPlayerClock::IsRunning() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_isRunning;
}

std::optional<qint64> KxPlayerClock::NowUs() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_isRunning ? std::optional<qint64>(Now()) : std::nullopt;
}

std::optional<qint64> KxPlayerClock::NowUs(quint64 run) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_isRunning && run == m_run ? std::optional<qint64>(Now()) : std::nullopt;
}

void KxPlayerClock::Correct(quint64 run, qint64 heardUs)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_isRunning || run != m_run) {
        return;
    }
    m_offsetUs += std::clamp((heardUs - Now()) / Smoothing, -LargestStepUs, LargestStepUs);
}
