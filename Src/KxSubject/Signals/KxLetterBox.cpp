#include <KxSubject/Signals/KxLetterBox.h>

#include <opencv2/imgproc.hpp>

#include <algorithm>

namespace
{

double ScaleInto(cv::Size picture, cv::Size input)
{
    return std::min(static_cast<double>(input.width) / picture.width,
                    static_cast<double>(input.height) / picture.height);
}

cv::Size LargestInput(cv::Size picture, int mostInputPx)
{
    const int mostCells = std::max(1, mostInputPx / (KxLetterBox::StepPx * KxLetterBox::StepPx));
    cv::Size best;
    double bestScale = 0.0;
    for (int columns = 1; columns <= mostCells; ++columns) {
        for (int rows = 1; rows * columns <= mostCells; ++rows) {
            const cv::Size input(columns * KxLetterBox::StepPx, rows * KxLetterBox::StepPx);
            const double scale = ScaleInto(picture, input);
            if (scale > bestScale || (scale == bestScale && input.area() < best.area())) {
                best = input;
                bestScale = scale;
            }
        }
    }
    return best;
}

} // namespace

KxLetterBox::KxLetterBox(cv::Size picturePx, int mostInputPx)
    : m_inputPx(LargestInput(picturePx, mostInputPx))
{
    const double scale = ScaleInto(picturePx, m_inputPx);
    m_scaledPx = cv::Size(std::clamp(cvRound(picturePx.width * scale), 1, m_inputPx.width),
                          std::clamp(cvRound(picturePx.height * scale), 1, m_inputPx.height));
}

cv::Mat KxLetterBox::Fill(const cv::Mat& picture) const
{
    cv::Mat input = cv::Mat::zeros(m_inputPx, picture.type());
    cv::Mat scaled = input(cv::Rect(cv::Point(), m_scaledPx));
    cv::resize(picture, scaled, m_scaledPx, 0.0, 0.0,
               m_scaledPx.width < picture.cols ? cv::INTER_AREA : cv::INTER_LINEAR);
    return input;
}

cv::Rect2d KxLetterBox::ToPicture(const cv::Rect2d& inputBox) const
{
    const cv::Rect2d box(inputBox.x / m_scaledPx.width, inputBox.y / m_scaledPx.height,
                         inputBox.width / m_scaledPx.width, inputBox.height / m_scaledPx.height);
    return box & cv::Rect2d(0.0, 0.0, 1.0, 1.0);
}
