#pragma once

#include <KxMedia/Read/KxClockJumps.h>

#include <optional>
#include <vector>

/// The clock of a file, as its pictures show it: what sound is placed against.
struct KxMediaClock {
    /// Time zero on the file's own clock; nothing makes it the time of the first sound.
    std::optional<qint64> zeroUs;
    /// Nothing when they are not known: then the clock is joined where the sound itself jumps.
    std::optional<std::vector<KxClockJump>> jumps = std::vector<KxClockJump>();
};
