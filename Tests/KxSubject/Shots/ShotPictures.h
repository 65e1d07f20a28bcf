#pragma once

#include <Tests/KxSubject/MadePictures.h>

#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

/// Shots that differ as those of films do, for the tests of shot boundaries.
namespace ShotPictures
{

inline const cv::Size Size(160, 90);

/// Twice as wide and high as a picture: coarse, of high contrast, the same for the same seed.
inline cv::Mat Scene(std::uint64_t seed)
{
    constexpr double level = 110.0;
    cv::Mat scene;
    cv::resize(MadePictures::Texture({Size.width / 4, Size.height / 4}, seed, level), scene, Size * 2, 0.0, 0.0,
               cv::INTER_CUBIC);
    cv::Mat strong;
    scene.convertTo(strong, CV_8UC3, 2.0, -level);
    return strong;
}

/// A picture of it by a slowly moving camera.
inline cv::Mat Shot(const cv::Mat& scene, int frame)
{
    return MadePictures::View(scene, {frame * 0.3, 0.0}, Size);
}

inline cv::Mat Mixed(const cv::Mat& first, const cv::Mat& second, double share)
{
    cv::Mat mixed;
    cv::addWeighted(first, 1.0 - share, second, share, 0.0, mixed);
    return mixed;
}

inline cv::Mat Plain(double level)
{
    return cv::Mat(Size, CV_8UC3, cv::Scalar::all(level));
}

} // namespace ShotPictures
