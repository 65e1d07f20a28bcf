#pragma once

#include <opencv2/core/mat.hpp>

#include <cstdint>

/// Pictures with known contents.
namespace MadePictures
{

/// Smooth random texture, CV_8UC3, the same for the same seed; mean about `level`.
cv::Mat Texture(cv::Size size, std::uint64_t seed, double level = 110.0);

/// CV_8UC1 of CV_8UC3.
cv::Mat Grey(const cv::Mat& picture);

/// The part of a wide texture that a camera sees when it has moved by `shift` (sub-pixel).
cv::Mat View(const cv::Mat& scene, cv::Point2d shift, cv::Size size);

/// A sharp checkered patch that differs from any texture.
void PaintObject(cv::Mat& picture, const cv::Rect& place);

/// A photograph of one person from OpenCV's documentation (548 x 342); empty if the package is missing.
cv::Mat Photograph();

/// A photograph of a chicken from there (512 x 512); empty if the package is missing.
cv::Mat PhotographOfAnAnimal();

/// The first picture of a video of pedestrians from there (768 x 576); empty if the package is missing.
cv::Mat Pedestrians();

} // namespace MadePictures
