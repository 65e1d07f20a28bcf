#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxSubjectOptions.h>

#include <opencv2/core/mat.hpp>

/// The spectral residual of one picture: the part of its spectrum that the smoothed spectrum does not explain.
class KXSUBJECT_API KxSaliencyMap
{
public:
    explicit KxSaliencyMap(const KxSubjectOptions::Saliency& options);

    /// CV_32FC1, a square of the side in the options that covers all of `grey` (CV_8UC1), 0 to 1.
    cv::Mat Of(const cv::Mat& grey) const;

private:
    KxSubjectOptions::Saliency m_options;
};
