#pragma once

#include <KxSubject/KxCropGeometry.h>
#include <KxSubject/KxSubjectOptions.h>
#include <KxSubject/KxSubjectRecord.h>
#include <KxSubject/KxSubjectRequest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>

/// What one decision is about, for all of its steps. The references must outlive it.
struct KxDecisionTask {
    const KxSubjectRecord& record;
    const KxSubjectRequest& request;
    const KxSubjectOptions& options;
    KxCropGeometry geometry{{record.source.pictureWidthPx, record.source.pictureHeightPx},
                            {request.aspectWidth, request.aspectHeight},
                            record.content};

    /// How far the crop is held, at no cost, beyond the first and the last sample of a shot.
    std::int64_t LongestHoldFrames() const
    {
        // At a very low rate every picture is held for long.
        constexpr double leastFrames = 4.0;
        return std::llround(std::max(options.path.longestHoldSeconds * record.source.frameRate, leastFrames));
    }
};
