#pragma once

#include "KxSubjectOptions.h"

/// What moves by itself between two pictures, the camera's own movement taken out. Keeps no picture.
class KXSUBJECT_API KxMotionMap
{
public:
    explicit KxMotionMap(const KxSubjectOptions::Motion& options);

    /// CV_32FC1 of the size of `now`, 0 where nothing moves and about 1 for a pixel of movement at an edge. `before`
    /// and `now` are CV_8UC1 of one size.
    cv::Mat Between(const cv::Mat& before, const cv::Mat& now) const;

private:
    /// Maps `before` onto `now`; the identity where too little can be followed.
    cv::Matx33d CameraMovement(const cv::Mat& before, const cv::Mat& now) const;
    void ClearBorder(cv::Mat& map, const cv::Matx33d& movement) const;

    KxSubjectOptions::Motion m_options;
};
