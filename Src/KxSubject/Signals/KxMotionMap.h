#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxSubjectOptions.h>

#include <opencv2/core/mat.hpp>
#include <opencv2/core/matx.hpp>

#include <vector>

/// A picture close in time, and the camera's movement that maps it onto the picture under examination.
struct KxNeighbourPicture {
    cv::Mat grey;
    cv::Matx33d movement;
};

/// The objects that move in a picture, with the camera's own movement removed. A mover differs from the picture before
/// and from the one after; the background that it covers or uncovers differs from only one of them, so it does not
/// count. Keeps no picture.
class KXSUBJECT_API KxMotionMap
{
public:
    explicit KxMotionMap(const KxSubjectOptions::Motion& options);

    /// The size of the map of a picture: it is smooth, so half of the resolution loses nothing and costs a quarter.
    static cv::Size HalfOf(cv::Size picturePx);

    /// CV_32FC1 of half the size of `now`, 0 where nothing moves and about 1 for a pixel of movement at an edge. All
    /// pictures are CV_8UC1 of one size. Nothing moves without neighbours.
    cv::Mat Of(const cv::Mat& now, const std::vector<KxNeighbourPicture>& neighbours) const;

private:
    /// `slope` is how much `now` changes in a pixel.
    cv::Mat Difference(const cv::Mat& now, const cv::Mat& slope, const KxNeighbourPicture& other) const;
    void ClearBorder(cv::Mat& map, cv::Size picturePx, const cv::Matx33d& movement) const;

    KxSubjectOptions::Motion m_options;
};
