#pragma once

#include <KxSubject/KxMotionSpeed.h>

#include <cstdint>

/// What is to be analysed.
struct KxSubjectRequest {
    int pictureWidthPx = 0;  ///< of the upright source picture, square pixels
    int pictureHeightPx = 0; ///< of the upright source picture, square pixels
    double frameRate = 0.0;  ///< frames a second, positive
    std::int64_t frameCount = 0;
    int aspectWidth = 9;
    int aspectHeight = 16;
    KxMotionSpeed speed = KxMotionSpeed::Auto;
    bool wantsFindings = false; ///< costs a little time and some 30 bytes a frame
};
