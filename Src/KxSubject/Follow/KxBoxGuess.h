#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxSubjectOptions.h>

#include <opencv2/core/mat.hpp>

/// What a person means who points at one place.
namespace KxBoxGuess
{
/// The box, in pixels of the picture (CV_8UC3), around the thing at `point`: the region that differs from what is
/// around it, or a box of usual size where none is found.
KXSUBJECT_API cv::Rect2d Around(const cv::Mat& picture, const cv::Point2d& point,
                                const KxSubjectOptions::Follow& options);
} // namespace KxBoxGuess
