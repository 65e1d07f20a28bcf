#pragma once

#include <KxCore/KxExport.h>

#include <opencv2/core/mat.hpp>

#include <vector>

/// A filter over several channels that answers with a peak where a patch shows what it has learned: the discriminative
/// correlation filter, learned and applied by Fourier transforms.
class KXSUBJECT_API KxCorrelationFilter
{
public:
    /// `sigmaCells`: the width of the peak that is learned.
    KxCorrelationFilter(cv::Size cells, double sigmaCells);

    /// `rate` from 0 to 1: how much of what was known is replaced. The first call replaces all.
    void Learn(const std::vector<cv::Mat>& channels, double rate);
    /// CV_32FC1: the answer for each displacement in cells, none in the middle of the map, where it is about 1 for what
    /// was learned.
    cv::Mat Respond(const std::vector<cv::Mat>& channels) const;

private:
    cv::Mat m_wanted;                 ///< CV_32FC2, the transform of the peak
    std::vector<cv::Mat> m_numerator; ///< CV_32FC2, for each channel
    cv::Mat m_denominator;            ///< CV_32FC1
};
