#pragma once

#include <KxCore/KxExport.h>

#include <opencv2/core/mat.hpp>
#include <opencv2/core/types.hpp>

/// How a face's mouth moves from one picture to the next. A face is cut out at a fixed size; the head's translation is
/// found by phase correlation of eyes and nose, and undone; what then differs around the mouth is the mouth's own
/// movement.
class KXSUBJECT_API KxMouthPatch
{
public:
    /// `face` reaches from brow to chin and from ear to ear. `grey` is CV_8UC1.
    KxMouthPatch(const cv::Mat& grey, const cv::Rect2d& face);

    struct Movement {
        double mouth = 0.0;   ///< mean difference around the mouth, in standard deviations of the face
        double head = 0.0;    ///< the same around eyes and nose
        double opening = 0.0; ///< pixels of the patch that the lower lip moved down, less the forehead
    };
    /// Since `before`. A translation of more than `mostShiftPx` is taken for an error and not undone.
    Movement Since(const KxMouthPatch& before, double mostShiftPx) const;

private:
    cv::Mat m_patch; ///< CV_32FC1
};
