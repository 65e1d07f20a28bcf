#pragma once

#include <QtGlobal>

/// Consecutive frames of a video.
struct KxFrameRange {
    qint64 first = 0;
    qint64 end = 0; ///< after the last one

    qint64 Count() const { return end - first; }
};
