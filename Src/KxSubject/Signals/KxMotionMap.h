#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxSubjectOptions.h>

#include <opencv2/core/mat.hpp>
#include <opencv2/core/matx.hpp>

#include <vector>

/// A picture near in time, and the camera's movement that maps it onto the one looked at.
struct KxNeighbourPicture {
    cv::Mat grey;
    cv::Matx33d movement;
};

/// What moves by itself in a picture, the camera's own movement taken out. Seen from a picture before and from one
/// after, only the mover itself differs from both; the background that it covered or lays bare differs from one alone
/// and is not taken for it. Keeps no picture.
class KXSUBJECT_API KxMotionMap
{
public:
    explicit KxMotionMap(const KxSubjectOptions::Motion& options);

    /// CV_32FC1 of the size of `now`, 0 where nothing moves and about 1 for a pixel of movement at an edge. All
    /// pictures are CV_8UC1 of one size. Nothing moves without neighbours.
    cv::Mat Of(const cv::Mat& now, const std::vector<KxNeighbourPicture>& neighbours) const;

private:
    /// `slope` is how much `now` changes in a pixel.
    cv::Mat Difference(const cv::Mat& now, const cv::Mat& slope, const KxNeighbourPicture& other) const;
    void ClearBorder(cv::Mat& map, const cv::Matx33d& movement) const;

    KxSubjectOptions::Motion m_options;
};
