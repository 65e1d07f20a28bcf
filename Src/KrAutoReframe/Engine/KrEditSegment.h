#pragma once

#include <QtGlobal>

#include <vector>

/// A range of frames that edit points have taken over from the analysis. A plain record; its operations are pure.
struct KrEditSegment {
    /// First frame of the range.
    uint start = 0;
    /// The range is `start` to `start + length`, both ends included.
    int length = 0;
    /// Frames of the edit points inside the range, ascending, each once.
    std::vector<uint> points;

    /// Last frame of the range.
    uint End() const { return start + static_cast<uint>(length); }

    /// Takes the range and the points of `other` in when the two ranges overlap or touch; else changes nothing and
    /// returns false. Where both start at one frame, `other` counts as the lower of the two.
    bool Merge(const KrEditSegment& other);

    /// Takes the edit point at `frame` out; false when the range has none there. What is left of the range:
    /// 1. the only point: frame 0 alone, without points;
    /// 2. the first of several: the range starts half way to the next point, rounded down, and ends where it did;
    /// 3. the last of several: the range ends half way from the previous point, rounded up, and starts where it did;
    /// 4. any other: the range stays.
    /// Half ways are found in single precision, as exact as a clip of up to 16 million frames needs.
    bool RemovePoint(uint frame);
};
