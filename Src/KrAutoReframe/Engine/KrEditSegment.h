#pragma once

#include <QtGlobal>

#include <vector>

/// A range of frames in which edit points replace the analysis. A plain record; its operations are pure.
struct KrEditSegment {
    /// First frame of the range.
    uint start = 0;
    /// The range is `start` to `start + length`, both ends included.
    int length = 0;
    /// Frames of the edit points inside the range, ascending, each once.
    std::vector<uint> points;

    /// Last frame of the range.
    uint End() const { return start + static_cast<uint>(length); }

    /// Adds the range and the points of `other` if the two ranges overlap or touch; otherwise changes nothing and
    /// returns false. If both start at the same frame, `other` counts as the lower of the two.
    bool Merge(const KrEditSegment& other);

    /// Removes the edit point at `frame`; false when the range has none there. The remaining range:
    /// 1. the only point: frame 0 alone, without points;
    /// 2. the first of several: the range starts halfway to the next point, rounded down, and its end stays;
    /// 3. the last of several: the range ends halfway from the previous point, rounded up, and its start stays;
    /// 4. any other: the range stays.
    /// Midpoints are computed in single precision, which is exact for clips of up to 16 million frames.
    bool RemovePoint(uint frame);

    bool operator==(const KrEditSegment& other) const
    {
        return start == other.start && length == other.length && points == other.points;
    }
};
