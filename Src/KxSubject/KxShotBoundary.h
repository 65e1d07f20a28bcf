#pragma once

#include <cstdint>

enum class KxShotBoundaryKind {
    Cut,
    Dissolve, ///< or a wipe
    Fade      ///< to a plain picture and out of it
};

/// The boundary between two shots.
struct KxShotBoundary {
    std::int64_t frame = 0; ///< the first of the new shot; the middle of a dissolve or fade
    std::int64_t first = 0; ///< where the old shot begins to fade out; `frame` for a cut
    std::int64_t last = 0;  ///< where the new shot is complete; `frame` for a cut
    KxShotBoundaryKind kind = KxShotBoundaryKind::Cut;
};
