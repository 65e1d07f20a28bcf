#include <KxSubject/Follow/KxCorrelationFilter.h>

#include <opencv2/core.hpp>

#include <algorithm>
#include <cmath>

namespace
{

/// Of the mean power: more makes the filter less sharp, less makes it learn noise.
constexpr float Regularisation = 0.01F;

cv::Mat Transform(const cv::Mat& real)
{
    cv::Mat transformed;
    cv::dft(real, transformed, cv::DFT_COMPLEX_OUTPUT);
    return transformed;
}

cv::Mat MiddleFirst(const cv::Mat& map)
{
    cv::Mat moved(map.size(), map.type());
    for (int y = 0; y < map.rows; ++y) {
        for (int x = 0; x < map.cols; ++x) {
            moved.at<float>((y + map.rows / 2) % map.rows, (x + map.cols / 2) % map.cols) = map.at<float>(y, x);
        }
    }
    return moved;
}

} // namespace

KxCorrelationFilter::KxCorrelationFilter(cv::Size cells, double sigmaCells)
{
    cv::Mat peak(cells, CV_32FC1);
    for (int y = 0; y < cells.height; ++y) {
        for (int x = 0; x < cells.width; ++x) {
            const double dx = std::min(x, cells.width - x);
            const double dy = std::min(y, cells.height - y);
            peak.at<float>(y, x) = static_cast<float>(std::exp(-(dx * dx + dy * dy) / (2.0 * sigmaCells * sigmaCells)));
        }
    }
    m_wanted = Transform(peak);
}

void KxCorrelationFilter::Learn(const std::vector<cv::Mat>& channels, double rate)
{
    const bool isFirst = m_numerator.empty();
    const auto gain = static_cast<float>(isFirst ? 1.0 : rate);
    if (isFirst) {
        m_numerator.assign(channels.size(), cv::Mat());
        for (cv::Mat& numerator : m_numerator) {
            numerator = cv::Mat::zeros(m_wanted.size(), CV_32FC2);
        }
        m_denominator = cv::Mat::zeros(m_wanted.size(), CV_32FC1);
    }
    m_denominator *= 1.0F - gain;
    for (std::size_t i = 0; i < channels.size(); ++i) {
        const cv::Mat seen = Transform(channels[i]);
        for (int y = 0; y < seen.rows; ++y) {
            const auto* const wanted = m_wanted.ptr<cv::Vec2f>(y);
            const auto* const from = seen.ptr<cv::Vec2f>(y);
            auto* const numerator = m_numerator[i].ptr<cv::Vec2f>(y);
            auto* const denominator = m_denominator.ptr<float>(y);
            for (int x = 0; x < seen.cols; ++x) {
                // The wanted transform times the complex conjugate of what is seen.
                const float real = wanted[x][0] * from[x][0] + wanted[x][1] * from[x][1];
                const float imaginary = wanted[x][1] * from[x][0] - wanted[x][0] * from[x][1];
                numerator[x][0] += gain * (real - numerator[x][0]);
                numerator[x][1] += gain * (imaginary - numerator[x][1]);
                denominator[x] += gain * (from[x][0] * from[x][0] + from[x][1] * from[x][1]);
            }
        }
    }
}

cv::Mat KxCorrelationFilter::Respond(const std::vector<cv::Mat>& channels) const
{
    cv::Mat sum = cv::Mat::zeros(m_wanted.size(), CV_32FC2);
    for (std::size_t i = 0; i < channels.size(); ++i) {
        const cv::Mat seen = Transform(channels[i]);
        for (int y = 0; y < seen.rows; ++y) {
            const auto* const from = seen.ptr<cv::Vec2f>(y);
            const auto* const numerator = m_numerator[i].ptr<cv::Vec2f>(y);
            auto* const to = sum.ptr<cv::Vec2f>(y);
            for (int x = 0; x < seen.cols; ++x) {
                to[x][0] += numerator[x][0] * from[x][0] - numerator[x][1] * from[x][1];
                to[x][1] += numerator[x][0] * from[x][1] + numerator[x][1] * from[x][0];
            }
        }
    }
    const auto floor = Regularisation * static_cast<float>(cv::mean(m_denominator)[0]) + 1e-6F;
    for (int y = 0; y < sum.rows; ++y) {
        const auto* const denominator = m_denominator.ptr<float>(y);
        auto* const to = sum.ptr<cv::Vec2f>(y);
        for (int x = 0; x < sum.cols; ++x) {
            to[x] *= 1.0F / (denominator[x] + floor);
        }
    }
    cv::Mat response;
    cv::dft(sum, response, cv::DFT_INVERSE | cv::DFT_SCALE | cv::DFT_REAL_OUTPUT);
    return MiddleFirst(response);
}
