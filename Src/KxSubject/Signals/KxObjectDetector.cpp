#include <KxSubject/Signals/KxObjectDetector.h>

#include <KxSubject/Signals/KxLetterBox.h>
#include <KxSubject/Signals/KxNanoDetGrid.h>
#include <KxSubject/Signals/KxOpenCvError.h>

#include <array>
#include <new>

namespace
{

constexpr std::array<int, 3> StridesPx{8, 16, 32};

/// Of the pictures that the network was trained on, in 255ths; blue, green, red.
const cv::Scalar Mean(103.53, 116.28, 123.675);
const cv::Scalar Deviation(57.375, 57.12, 58.395);

/// Scores and sides of each stride.
const std::vector<cv::String>& OutputNames()
{
    static const std::vector<cv::String> names{"scores_8", "boxes_8", "scores_16", "boxes_16", "scores_32", "boxes_32"};
    return names;
}

bool IsOfSize(const cv::Mat& output, int places, int values)
{
    return output.type() == CV_32F && output.isContinuous() &&
           output.total() == static_cast<std::size_t>(places) * static_cast<std::size_t>(values);
}

} // namespace

KxObjectDetector::KxObjectDetector(const std::string& onnx, const Options& options)
    : m_net(cv::dnn::readNetFromONNX(onnx.data(), onnx.size()))
    , m_options(options)
{
    m_net.setPreferableBackend(cv::dnn::DNN_BACKEND_DEFAULT);
    m_net.setPreferableTarget(cv::dnn::DNN_TARGET_CPU);
    // Some other networks load and then fail with their first picture.
    Forward(cv::Mat::zeros(64, 64, CV_8UC3));
}

std::optional<KxObjectDetector> KxObjectDetector::Load(const std::string& onnx, const Options& options)
{
    try {
        return KxObjectDetector(onnx, options);
    } catch (const cv::Exception& problem) {
        KxThrowIfOutOfMemory(problem);
    } catch (const std::bad_alloc&) {
        throw;
    } catch (const std::exception&) {
        // Some damaged models make OpenCV throw what the standard library throws.
    }
    return std::nullopt;
}

std::vector<cv::Mat> KxObjectDetector::Forward(const cv::Mat& input)
{
    cv::Mat normalised;
    input.convertTo(normalised, CV_32F);
    cv::subtract(normalised, Mean, normalised);
    cv::divide(normalised, Deviation, normalised);
    m_net.setInput(cv::dnn::blobFromImage(normalised));
    std::vector<cv::Mat> outputs;
    m_net.forward(outputs, OutputNames());
    CV_Assert(outputs.size() == OutputNames().size());
    for (std::size_t i = 0; i < StridesPx.size(); ++i) {
        const int places = KxNanoDetPlaces(input.size(), StridesPx[i]);
        CV_Assert(IsOfSize(outputs[2 * i], places, KxNanoDetGrid::Classes) &&
                  IsOfSize(outputs[2 * i + 1], places, KxNanoDetGrid::Sides));
    }
    return outputs;
}

std::vector<KxDetection> KxObjectDetector::Detect(const cv::Mat& picture)
{
    const KxLetterBox letterBox(picture.size(), m_options.mostInputPx);
    const std::vector<cv::Mat> outputs = Forward(letterBox.Fill(picture));
    std::vector<KxNanoDetBox> boxes;
    for (std::size_t i = 0; i < StridesPx.size(); ++i) {
        KxReadNanoDetGrid({outputs[2 * i], outputs[2 * i + 1], StridesPx[i]}, letterBox.InputPx(),
                          m_options.scoreThreshold, boxes);
    }
    std::vector<KxDetection> detections;
    for (const KxNanoDetBox& found : KxSuppressOverlaps(boxes, m_options.overlapThreshold)) {
        const cv::Rect2f box(letterBox.ToPicture(found.box));
        // Damaged weights can give a box that is not a number.
        if (box.width > 0.0F && box.height > 0.0F) {
            detections.push_back({box.x, box.y, box.width, box.height, found.score, found.kind});
        }
    }
    return detections;
}
