#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/Path/KxCropPath.h>

#include <cstdint>
#include <vector>

/// The frames, from `first` up to, but without, `end`, in which the crop has to be at one centre.
struct KxHeldRange {
    std::int64_t first = 0;
    std::int64_t end = 0;
    double centre = 0.5; ///< in fractions of the free axis
};

/// Puts the crop of one shot exactly at its centre in each range. What the path lacks there is made up for within
/// `easeSeconds` before and after, so that the crop does not jump.
/// `centres` has one value for each frame of `shot`; `held` grows by frame and lies in it.
KXSUBJECT_API void KxHoldRanges(std::vector<double>& centres, const KxFrameSpan& shot,
                                const std::vector<KxHeldRange>& held, double easeSeconds);
