#include <KxSubject/Signals/KxSaliencyMap.h>

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <limits>

namespace
{

constexpr double FlatRange = 4.0; ///< of 255 from darkest to brightest: less shows nothing

} // namespace

KxSaliencyMap::KxSaliencyMap(const KxSubjectOptions::Saliency& options)
    : m_options(options)
{
}

cv::Mat KxSaliencyMap::Of(const cv::Mat& grey) const
{
    const cv::Size square(m_options.sidePx, m_options.sidePx);
    cv::Mat small;
    cv::resize(grey, small, square, 0.0, 0.0, cv::INTER_AREA);
    double darkest = 0.0;
    double brightest = 0.0;
    cv::minMaxLoc(small, &darkest, &brightest);
    if (brightest - darkest < FlatRange) {
        return cv::Mat::zeros(square, CV_32F);
    }
    small.convertTo(small, CV_32F);
    cv::Mat planes[] = {small, cv::Mat::zeros(square, CV_32F)};
    cv::Mat spectrum;
    cv::merge(planes, 2, spectrum);
    cv::dft(spectrum, spectrum);
    cv::split(spectrum, planes);

    cv::Mat magnitude;
    cv::magnitude(planes[0], planes[1], magnitude);
    magnitude += 1e-3F;
    cv::Mat logarithm;
    cv::log(magnitude, logarithm);
    cv::Mat smooth;
    cv::blur(logarithm, smooth, cv::Size(3, 3));
    cv::Mat scale;
    cv::exp(-smooth, scale);
    planes[0] = planes[0].mul(scale);
    planes[1] = planes[1].mul(scale);
    cv::merge(planes, 2, spectrum);
    cv::idft(spectrum, spectrum, cv::DFT_SCALE);
    cv::split(spectrum, planes);

    cv::Mat map = planes[0].mul(planes[0]) + planes[1].mul(planes[1]);
    cv::GaussianBlur(map, map, cv::Size(), m_options.blurSigmaPx);
    double largest = 0.0;
    cv::minMaxLoc(map, nullptr, &largest);
    return map / std::max(largest, std::numeric_limits<double>::min());
}
