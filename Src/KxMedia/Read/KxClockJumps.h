#pragma once

#include <KxCore/KxExport.h>

#include <QtGlobal>

#include <optional>
#include <vector>

/// A point in a concatenated file at which the clock of all streams jumps, as seen in the packets of one stream.
struct KxClockJump {
    /// Byte positions of the last packet before the jump and of the first one after it.
    qint64 lastBefore = 0;
    qint64 firstAfter = 0;
    /// Added to the times of packets after this jump and before the next one.
    qint64 offsetUs = 0;
};

/// Applies the clock jumps found in one stream to the packets of another one:
/// 1. a packet outside of all jumps has the offset of the last jump before its position;
/// 2. a packet without a position (a parser split it off the previous one) has the offset of the previous packet;
/// 3. a packet inside a jump has the offset that puts it closest to the previous packet. Packets come in the order of
/// the file. Pure arithmetic, one thread at a time.
class KXMEDIA_API KxClockJumps
{
public:
    /// In the order of the file.
    explicit KxClockJumps(std::vector<KxClockJump> jumps);

    bool IsEmpty() const { return m_jumps.empty(); }
    /// The offset of the next packet's times. `timeUs` is its time on the file's own clock.
    qint64 OffsetUs(std::optional<qint64> position, std::optional<qint64> timeUs);
    /// Call when the next packet is the first one of its stream.
    void Reset();

private:
    qint64 OffsetAfter(size_t passed) const { return passed > 0 ? m_jumps[passed - 1].offsetUs : 0; }
    size_t Closest(size_t least, size_t most, qint64 timeUs) const;

    std::vector<KxClockJump> m_jumps;
    size_t m_passed = 0;
    std::optional<qint64> m_lastUs;
};
