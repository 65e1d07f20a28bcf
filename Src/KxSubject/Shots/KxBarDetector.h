#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxSubjectOptions.h>

#include <opencv2/core/mat.hpp>

#include <vector>

/// Finds black bars that stay through the whole video: rows or columns at opposite sides that no picture has lit. Dark
/// pictures (a fade) change nothing, because the brightest state of a row counts.
class KXSUBJECT_API KxBarDetector
{
public:
    KxBarDetector(const KxSubjectOptions::Bars& options, cv::Size picturePx);

    /// `grey` is CV_8UC1 of the size given at the start.
    void AddPicture(const cv::Mat& grey);

    /// What remains of the picture without bars, after the pictures so far; the whole picture when there are none.
    cv::Rect Content() const;

private:
    KxSubjectOptions::Bars m_options;
    std::vector<int> m_litInRow;    ///< the largest number of lit pixels seen in each row
    std::vector<int> m_litInColumn; ///< the same for columns
};
