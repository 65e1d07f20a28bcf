#include <KxMedia/Read/KxClockJumps.h>

extern "C" {
#include <libavutil/common.h>
}

#include <algorithm>
#include <cstdlib>
#include <limits>

KxClockJumps::KxClockJumps(std::vector<KxClockJump> jumps)
    : m_jumps(std::move(jumps))
{
}

void KxClockJumps::Reset()
{
    m_passed = 0;
    m_lastUs.reset();
}

qint64 KxClockJumps::OffsetUs(std::optional<qint64> position, std::optional<qint64> timeUs)
{
    if (position) {
        const auto isPassed = [&](const KxClockJump& jump) { return jump.firstAfter <= *position; };
        const auto mayBePassed = [&](const KxClockJump& jump) { return jump.lastBefore < *position; };
        const auto least = static_cast<size_t>(std::count_if(m_jumps.begin(), m_jumps.end(), isPassed));
        const auto most = static_cast<size_t>(std::count_if(m_jumps.begin(), m_jumps.end(), mayBePassed));
        m_passed = least < most && timeUs ? Closest(least, most, *timeUs) : least;
    }
    const qint64 offsetUs = OffsetAfter(m_passed);
    if (timeUs) {
        m_lastUs = av_sat_add64(*timeUs, offsetUs);
    }
    return offsetUs;
}

size_t KxClockJumps::Closest(size_t least, size_t most, qint64 timeUs) const
{
    size_t best = least;
    qint64 bestDistance = std::numeric_limits<qint64>::max();
    for (size_t passed = least; passed <= most && m_lastUs; ++passed) {
        const qint64 distance = av_sat_sub64(av_sat_add64(timeUs, OffsetAfter(passed)), *m_lastUs);
        if (distance > -bestDistance && distance < bestDistance) {
            best = passed;
            bestDistance = std::abs(distance);
        }
    }
    return best;
}
