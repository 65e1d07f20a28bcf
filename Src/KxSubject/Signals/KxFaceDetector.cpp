#include <KxSubject/Signals/KxFaceDetector.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace
{

constexpr float NmsThreshold = 0.3F;
constexpr int MostBoxes = 5000;
constexpr std::array<float, 2> Variances{0.1F, 0.2F};
constexpr int LocationsPerPrior = 14; ///< a box and five landmarks

struct FeatureMap {
    int stepPx;
    std::vector<float> sizesPx;
};

const std::vector<FeatureMap>& FeatureMaps()
{
    static const std::vector<FeatureMap> maps{
        {8, {10.0F, 16.0F, 24.0F}}, {16, {32.0F, 48.0F}}, {32, {64.0F, 96.0F}}, {64, {128.0F, 192.0F, 256.0F}}};
    return maps;
}

} // namespace

KxFaceDetector::KxFaceDetector(const std::string& onnx, cv::Size picturePx, double scoreThreshold)
    : m_net(cv::dnn::readNetFromONNX(onnx.data(), onnx.size()))
    , m_picturePx(picturePx)
    , m_scoreThreshold(static_cast<float>(scoreThreshold))
{
    m_net.setPreferableBackend(cv::dnn::DNN_BACKEND_DEFAULT);
    m_net.setPreferableTarget(cv::dnn::DNN_TARGET_CPU);
    MakePriors();
    Detect(cv::Mat(picturePx, CV_8UC3, cv::Scalar::all(0)));
}

void KxFaceDetector::MakePriors()
{
    const auto pictureWidth = static_cast<float>(m_picturePx.width);
    const auto pictureHeight = static_cast<float>(m_picturePx.height);
    int columns = (m_picturePx.width + 1) / 2 / 2;
    int rows = (m_picturePx.height + 1) / 2 / 2;
    for (const FeatureMap& map : FeatureMaps()) {
        columns /= 2;
        rows /= 2;
        const auto step = static_cast<float>(map.stepPx);
        for (int row = 0; row < rows; ++row) {
            for (int column = 0; column < columns; ++column) {
                for (const float size : map.sizesPx) {
                    m_priors.push_back({(static_cast<float>(column) + 0.5F) * step / pictureWidth,
                                        (static_cast<float>(row) + 0.5F) * step / pictureHeight, size / pictureWidth,
                                        size / pictureHeight});
                }
            }
        }
    }
}

void KxFaceDetector::Forward(const cv::Mat& picture, std::vector<cv::Mat>& outputs)
{
    m_net.setInput(cv::dnn::blobFromImage(picture));
    m_net.forward(outputs, std::vector<cv::String>{"loc", "conf", "iou"});
    const std::size_t priors = m_priors.size();
    CV_Assert(outputs.size() == 3 && outputs[0].total() == priors * LocationsPerPrior &&
              outputs[1].total() == priors * 2 && outputs[2].total() == priors);
}

std::vector<cv::Rect> KxFaceDetector::Detect(const cv::Mat& picture)
{
    std::vector<cv::Mat> outputs;
    Forward(picture, outputs);
    const auto* locations = outputs[0].ptr<float>();
    const auto* confidences = outputs[1].ptr<float>();
    const auto* overlaps = outputs[2].ptr<float>();
    std::vector<cv::Rect2f> boxes;
    std::vector<cv::Rect> wholeBoxes;
    std::vector<float> scores;
    for (std::size_t i = 0; i < m_priors.size(); ++i) {
        const Prior& prior = m_priors[i];
        const float* location = locations + i * LocationsPerPrior;
        const float score = std::sqrt(confidences[2 * i + 1] * std::clamp(overlaps[i], 0.0F, 1.0F));
        const auto pictureWidth = static_cast<float>(m_picturePx.width);
        const auto pictureHeight = static_cast<float>(m_picturePx.height);
        const float centreX = (prior.centreX + location[0] * Variances[0] * prior.width) * pictureWidth;
        const float centreY = (prior.centreY + location[1] * Variances[0] * prior.height) * pictureHeight;
        const float width = prior.width * std::exp(location[2] * Variances[0]) * pictureWidth;
        const float height = prior.height * std::exp(location[3] * Variances[1]) * pictureHeight;
        boxes.emplace_back(centreX - width / 2.0F, centreY - height / 2.0F, width, height);
        wholeBoxes.emplace_back(static_cast<int>(boxes.back().x), static_cast<int>(boxes.back().y),
                                static_cast<int>(width), static_cast<int>(height));
        scores.push_back(score);
    }
    std::vector<int> kept;
    cv::dnn::NMSBoxes(wholeBoxes, scores, m_scoreThreshold, NmsThreshold, kept, 1.0F, MostBoxes);
    std::vector<cv::Rect> faces;
    for (const int index : kept) {
        const cv::Rect2f& box = boxes[static_cast<std::size_t>(index)];
        faces.emplace_back(cvRound(box.x), cvRound(box.y), cvRound(box.width), cvRound(box.height));
    }
    return faces;
}
