#pragma once

#include <KxCore/KxExport.h>

#include <QtGlobal>

#include <optional>

/// Makes the times of a stream's pictures, in display order, strictly increasing:
/// 1. a time after the last one is kept;
/// 2. a missing time is one step after the last one (empty if there is no last one);
/// 3. a time before the last one becomes one step after it, so that a restarted clock continues;
/// 4. a repeated time becomes one tick after it: such a picture replaces the last one and does not shift later ones.
/// Pure arithmetic, one thread at a time.
class KXMEDIA_API KxTimestampRepair
{
public:
    /// `stepTicks` is the nominal distance of two pictures.
    explicit KxTimestampRepair(qint64 stepTicks)
        : m_stepTicks(stepTicks)
    {
    }

    std::optional<qint64> Repair(std::optional<qint64> ticks);
    /// After a seek.
    void Reset() { m_last.reset(); }
    bool IsReset() const { return !m_last; }

private:
    qint64 m_stepTicks;
    std::optional<qint64> m_last;
};

/// Joins a clock that jumps, as in transport streams that were recorded in parts or concatenated. Packets come in
/// decoding order; after a jump, an offset puts them one step after the last packet. A jump is a step of more than one
/// second back or more than ten seconds ahead. Pure arithmetic, one thread at a time.
class KXMEDIA_API KxTimestampJoin
{
public:
    KxTimestampJoin(qint64 stepTicks, qint64 secondTicks)
        : m_stepTicks(stepTicks)
        , m_secondTicks(secondTicks)
    {
    }

    /// The offset to add to this packet's times.
    qint64 OffsetFor(qint64 decodingTicks);
    qint64 Offset() const { return m_offset; }
    /// After a seek to a position with this offset.
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
