#pragma once

#include <KxSubject/KxSubjectChoices.h>

#include <cstdint>
#include <vector>

/// Where the tracker saw the thing that a choice points at.
struct KxFollowTrack {
    struct Point {
        std::int32_t frame = 0;
        KxSubjectBox box;
        float confidence = 0.0F; ///< 0 to 1, the tracker's own
    };
    std::vector<Point> points; ///< growing by frame; some 15 a second in the shots that the choice applies to
};
