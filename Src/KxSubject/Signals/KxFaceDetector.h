#pragma once

#include <KxCore/KxExport.h>

#include <opencv2/dnn/dnn.hpp>

#include <string>
#include <vector>

/// A YuNet face detector (the network of OpenCV's model zoo, 2022) in OpenCV's dnn module, run from the bytes of its
/// ONNX file. OpenCV 4.6 offers a class for it, which takes the path of a file only.
class KXSUBJECT_API KxFaceDetector
{
public:
    /// Throws what OpenCV throws if `onnx` is a different network: some of those load and then fail with their first
    /// picture.
    KxFaceDetector(const std::string& onnx, cv::Size picturePx, double scoreThreshold);

    /// `picture` is CV_8UC3 (BGR) of the size given at the start. Boxes may reach over the picture's edges; the highest
    /// score comes first.
    std::vector<cv::Rect> Detect(const cv::Mat& picture);

private:
    struct Prior {
        float centreX;
        float centreY;
        float width;
        float height;
    };
    void MakePriors();
    void Forward(const cv::Mat& picture, std::vector<cv::Mat>& outputs);

    cv::dnn::Net m_net;
    cv::Size m_picturePx;
    float m_scoreThreshold;
    std::vector<Prior> m_priors; ///< in fractions of the picture, in the order of the network's outputs
};
