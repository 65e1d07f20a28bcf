#pragma once

#include <KxCore/KxExport.h>

#include <opencv2/core/mat.hpp>

#include <vector>

/// What a correlation filter sees of a patch: for each cell of 4 x 4 pixels, gradient orientations in 18 directions and
/// in 9 without their sign, both relative to the local contrast, and the colour.
class KXSUBJECT_API KxPatchFeatures
{
public:
    static constexpr int CellPx = 4;
    static constexpr int Directions = 18;
    static constexpr int Orientations = Directions / 2;
    static constexpr int Channels = Directions + Orientations + 3;

    /// `cells`: of the patches that are measured.
    explicit KxPatchFeatures(cv::Size cells);

    cv::Size PatchPx() const { return {m_cells.width * CellPx, m_cells.height * CellPx}; }
    /// One CV_32FC1 a channel, one value a cell, faded out towards the edges. `patch` is CV_8UC3 and has PatchPx().
    const std::vector<cv::Mat>& Of(const cv::Mat& patch);

private:
    void AddGradients(const cv::Mat& light);
    void Normalise();

    cv::Size m_cells;
    cv::Mat m_fade;                ///< CV_32FC1
    std::vector<float> m_gradient; ///< by cell and direction
    std::vector<cv::Mat> m_channels;
};
