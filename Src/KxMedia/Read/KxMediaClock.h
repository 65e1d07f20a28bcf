#pragma once

#include <KxMedia/Read/KxClockJumps.h>

#include <optional>
#include <vector>

/// The clock of a file according to its pictures; positions sound in time.
struct KxMediaClock {
    /// Time zero on the file's own clock; if empty, time zero is the first sound.
    std::optional<qint64> zeroUs;
    /// Empty if unknown: then jumps are detected in the sound itself.
    std::optional<std::vector<KxClockJump>> jumps = std::vector<KxClockJump>();
};
