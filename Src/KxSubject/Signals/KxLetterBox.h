#pragma once

#include <KxCore/KxExport.h>

#include <opencv2/core.hpp>

/// A picture inside the input of a network: scaled without distortion into the upper left corner, black elsewhere.
class KXSUBJECT_API KxLetterBox
{
public:
    /// The sides of an input are multiples of this.
    static constexpr int StepPx = 32;

    /// Of all inputs with at most `mostInputPx` pixels, takes the one in which the picture is largest; of equal ones
    /// the smallest. Neither side of `picturePx` is 0.
    KxLetterBox(cv::Size picturePx, int mostInputPx);

    cv::Size InputPx() const { return m_inputPx; }
    /// What the picture covers of the input.
    cv::Size ScaledPx() const { return m_scaledPx; }

    /// `picture` has the size given at the start.
    cv::Mat Fill(const cv::Mat& picture) const;

    /// A box of the input in fractions of the picture, without what lies outside it; empty if all of it does.
    cv::Rect2d ToPicture(const cv::Rect2d& inputBox) const;

private:
    cv::Size m_inputPx;
    cv::Size m_scaledPx;
};
