#pragma once

#include <KxCore/KxExport.h>

#include <opencv2/core/mat.hpp>

#include <vector>

/// Which colours belong to a thing rather than to what is around it.
class KXSUBJECT_API KxColourModel
{
public:
    /// `patch` is CV_8UC3, `inside` the thing's box in it. `rate` as for KxCorrelationFilter::Learn().
    void Learn(const cv::Mat& patch, const cv::Rect& inside, double rate);

    /// CV_32FC1, one value a pixel: how likely its colour belongs to the thing; 0.5 for colours never seen.
    cv::Mat Likelihood(const cv::Mat& patch) const;

private:
    using Histogram = std::vector<float>;
    Histogram m_thing;
    Histogram m_around;
};
