#include <KxMedia/Picture/KxFrameGrid.h>

#include <KxCore/KxFrameTime.h>

extern "C" {
#include <libavutil/common.h>
}

#include <algorithm>
#include <limits>

namespace
{

// Beyond any grid, yet small enough not to overflow in sums.
constexpr qint64 LargestIndex = std::numeric_limits<qint64>::max() / 2;

bool IsSane(const KxRational& rate)
{
    return rate.IsPositive() && rate.ToDouble() <= 1000.0 && rate.ToDouble() > 0.01;
}

} // namespace

KxFrameGrid::KxFrameGrid(const KxRational& rate, const KxRational& timeBase, qint64 firstTicks)
    : m_rate(rate)
    , m_timeBase(timeBase)
    , m_firstTicks(firstTicks)
{
}

KxRational KxFrameGrid::SaneRate(const KxRational& guessed, const KxRational& average)
{
    if (IsSane(guessed)) {
        return guessed;
    }
    return IsSane(average) ? average : KxRational{25, 1};
}

qint64 KxFrameGrid::IndexOf(qint64 ticks) const
{
    const qint64 distance = av_sat_sub64(ticks, m_firstTicks);
    if (distance <= 0) {
        return 0;
    }
    const qint64 index =
        KxFrameTime::Rescale(distance, qint64{m_timeBase.numerator} * m_rate.numerator,
                             qint64{m_timeBase.denominator} * m_rate.denominator, KxFrameTime::Rounding::Nearest);
    return std::min(index, LargestIndex);
}

qint64 KxFrameGrid::Ticks(qint64 frames) const
{
    return KxFrameTime::Rescale(frames, qint64{m_rate.denominator} * m_timeBase.denominator,
                                qint64{m_rate.numerator} * m_timeBase.numerator, KxFrameTime::Rounding::Nearest);
}

qint64 KxFrameGrid::TicksAt(qint64 index) const
{
    return av_sat_add64(m_firstTicks, Ticks(index));
}

qint64 KxFrameGrid::StepTicks() const
{
    return std::max<qint64>(1, Ticks(1));
}

qint64 KxFrameGrid::LengthUpTo(qint64 lastTicks, qint64 durationTicks) const
{
    const qint64 lastIndex = IndexOf(lastTicks);
    const qint64 end = durationTicks > 0 ? IndexOf(av_sat_add64(lastTicks, durationTicks)) : 0;
    return std::max<qint64>({1, av_sat_add64(lastIndex, 1), end});
}
