#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxDetection.h>

#include <opencv2/dnn/dnn.hpp>

#include <optional>
#include <string>
#include <vector>

/// Finds people, animals and vehicles in single pictures with NanoDet-g (as Packaging/convert-nanodet converts it) in
/// OpenCV's dnn module. Keeps no state between pictures. One thread at a time.
class KXSUBJECT_API KxObjectDetector
{
public:
    struct Options {
        /// 50000 to 173056 (416 x 416): the pixels that a look examines. Its cost is proportional to them: a processor
        /// of 2020 takes about 60 ms at 416 x 256; trial.
        int mostInputPx = 416 * 256;
        float scoreThreshold = 0.35F;  ///< 0.25 to 0.5; trial
        float overlapThreshold = 0.6F; ///< 0.4 to 0.7, intersection over union of two boxes of one thing; trial
    };

    /// Nothing if OpenCV cannot run the bytes of `onnx` or if they are a different network. Throws std::bad_alloc.
    static std::optional<KxObjectDetector> Load(const std::string& onnx, const Options& options);
    static std::optional<KxObjectDetector> Load(const std::string& onnx) { return Load(onnx, Options()); }

    /// `picture` is CV_8UC3 (BGR) of any size but empty; 416 pixels or more along the longer side are best. The highest
    /// score comes first.
    std::vector<KxDetection> Detect(const cv::Mat& picture);

private:
    KxObjectDetector(const std::string& onnx, const Options& options);
    std::vector<cv::Mat> Forward(const cv::Mat& input);

    cv::dnn::Net m_net;
    Options m_options;
};
