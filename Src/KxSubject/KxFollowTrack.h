#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxSubjectChoices.h>

#include <cstdint>
#include <vector>

struct KxSubjectOptions;

/// Where the tracker saw the thing that a choice points at.
struct KXSUBJECT_API KxFollowTrack {
    struct Point {
        std::int32_t frame = 0;
        KxSubjectBox box;
        float confidence = 0.0F; ///< 0 to 1, the tracker's own
        bool isDoubted = false;  ///< it may have drifted to something else, although it is confident
        /// After it met another one of its kind, it may be that one, although it rarely is: nothing is shown.
        bool isAmbiguous = false;
    };
    std::vector<Point> points; ///< growing by frame; some 15 a second in the shots that the choice applies to

    /// Frames, both included, through which the tracker did not see the thing.
    struct Loss {
        std::int32_t first = 0;
        std::int32_t last = 0;
    };
    /// Those that last so long that a person should point at the thing again.
    std::vector<Loss> Losses(double frameRate, const KxSubjectOptions& options) const;
    /// Those that are doubted for as long, in which the tracker may see the thing all the same.
    std::vector<Loss> Doubts(double frameRate) const;
};
