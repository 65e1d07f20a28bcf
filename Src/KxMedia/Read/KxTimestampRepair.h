#pragma once

#include <KxCore/KxExport.h>

#include <QtGlobal>

#include <optional>

/// Gives the pictures of a stream, in the order in which they are shown, times that grow:
/// 1. a time after the last one is kept;
/// 2. a missing time is one step after the last one (nothing when there is no last one);
/// 3. a time before the last one becomes one step after it, so that a clock that starts again goes on;
/// 4. the last time once more becomes one tick after it: such a picture replaces the last one and moves no later one.
/// Pure arithmetic, one thread at a time.
class KXMEDIA_API KxTimestampRepair
{
public:
    /// `stepTicks` is the usual distance of two pictures.
    explicit KxTimestampRepair(qint64 stepTicks)
        : m_stepTicks(stepTicks)
    {
    }

    std::optional<qint64> Repair(std::optional<qint64> ticks);
    /// After a seek.
    void Reset() { m_last.reset(); }

private:
    qint64 m_stepTicks;
    std::optional<qint64> m_last;
};

/// Joins a clock that jumps, as in transport streams that were recorded in pieces or concatenated: packets come in the
/// order of decoding, and from a jump on an offset puts them one step after the last ones. Jumps are steps of more than
/// a second back or of more than ten seconds ahead. Pure arithmetic, one thread at a time.
class KXMEDIA_API KxTimestampJoin
{
public:
    KxTimestampJoin(qint64 stepTicks, qint64 secondTicks)
        : m_stepTicks(stepTicks)
        , m_secondTicks(secondTicks)
    {
    }

    /// What has to be added to this packet's times.
    qint64 OffsetFor(qint64 decodingTicks);
    qint64 Offset() const { return m_offset; }
    /// After a seek to a place where `offset` holds.
    void Reset(qint64 offset)
    {
        m_offset = offset;
        m_last.reset();
    }

private:
    qint64 m_stepTicks;
    qint64 m_secondTicks;
    qint64 m_offset = 0;
    std::optional<qint64> m_last;
};
