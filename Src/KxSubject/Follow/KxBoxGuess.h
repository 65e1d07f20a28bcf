#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxSubjectOptions.h>

#include <opencv2/core/mat.hpp>

/// What a person means who points at one place.
namespace KxBoxGuess
{
struct Guess {
    cv::Rect2d box;          ///< in pixels
    bool isOutlined = false; ///< around the region that differs from what is around it; otherwise of usual size
};

/// The thing at `point` of the picture (CV_8UC3).
KXSUBJECT_API Guess Around(const cv::Mat& picture, const cv::Point2d& point, const KxSubjectOptions::Follow& options);
} // namespace KxBoxGuess
