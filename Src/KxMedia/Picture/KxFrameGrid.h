#pragma once

#include <KxCore/KxExport.h>
#include <KxCore/KxRational.h>

#include <QtGlobal>

/// The constant grid on which every part counts frames: point n lies n / rate seconds after the first picture. Frame n
/// shows the last picture whose time, rounded to the nearest point, is at or before n: a picture is held over a gap,
/// and of several pictures at one point the last one stays. Pure arithmetic; any thread.
class KXMEDIA_API KxFrameGrid
{
public:
    /// Longer grids are considered damaged time stamps: about 46 hours at 60 frames a second.
    static constexpr qint64 LongestGrid = 10000000;

    /// `timeBase` is the length of a tick in seconds, `firstTicks` the time of the first picture.
    KxFrameGrid(const KxRational& rate, const KxRational& timeBase, qint64 firstTicks);

    /// The first of the two rates that is above 0 and at most 1000; otherwise 25.
    static KxRational SaneRate(const KxRational& guessed, const KxRational& average);

    const KxRational& Rate() const { return m_rate; }
    qint64 FirstTicks() const { return m_firstTicks; }

    /// The grid point nearest to `ticks`, halves upwards; 0 for what lies before the first picture.
    qint64 IndexOf(qint64 ticks) const;
    /// The time of grid point `index`, rounded to the nearest tick.
    qint64 TicksAt(qint64 index) const;
    /// The distance of two points, at least 1 tick.
    qint64 StepTicks() const;
    /// The grid's length when the last picture is shown from `lastTicks` on for `durationTicks` (0 = one step). At
    /// least 1.
    qint64 LengthUpTo(qint64 lastTicks, qint64 durationTicks) const;

private:
    /// The duration of `frames` frames.
    qint64 Ticks(qint64 frames) const;

    KxRational m_rate;
    KxRational m_timeBase;
    qint64 m_firstTicks;
};
