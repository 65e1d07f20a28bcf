#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxSubjectOptions.h>

#include <opencv2/core/mat.hpp>
#include <opencv2/core/matx.hpp>

#include <optional>
#include <vector>

/// The camera's own movement between two pictures, from corners followed by pyramidal Lucas-Kanade and a homography
/// fitted by a RANSAC (the framework of Raguram et al. 2013). Every part of the picture gives a similar number of
/// corners: otherwise one large, richly textured subject in front of a plain background would be taken for the scene,
/// and the scene for what moves. Corners are followed in pictures of half the size, to a part of a pixel: the rest of
/// the analysis needs no better, and it costs half as much.
class KXSUBJECT_API KxCameraMovement
{
public:
    explicit KxCameraMovement(const KxSubjectOptions::Camera& options);

    /// Maps `before` onto `now`, both CV_8UC1 of one size. The identity if there are too few corners to
    /// follow; nothing if there are many and hardly any agree: the pictures show different scenes.
    std::optional<cv::Matx33d> Between(const cv::Mat& before, const cv::Mat& now) const;

private:
    std::optional<cv::Matx33d> BetweenHalves(const cv::Mat& before, const cv::Mat& now) const;
    std::vector<cv::Point2f> Corners(const cv::Mat& grey) const;

    KxSubjectOptions::Camera m_options;
};
