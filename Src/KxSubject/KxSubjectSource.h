#pragma once

#include <cstdint>

/// The video that is observed.
struct KxSubjectSource {
    int pictureWidthPx = 0;  ///< of the upright source picture, square pixels
    int pictureHeightPx = 0; ///< of the upright source picture, square pixels
    double frameRate = 0.0;  ///< frames a second, positive
    std::int64_t frameCount = 0;
};
