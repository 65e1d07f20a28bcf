#include <KxSubject/Shots/KxBarDetector.h>

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace
{

constexpr double MaximumShare = 0.4; ///< of the side: more is a dark picture rather than a bar
/// Of the side: opposite bars differ by no more (a dark floor or sky has no counterpart).
constexpr double AsymmetryShare = 0.02;
constexpr int InsetPx = 1; ///< the row at a bar's edge is half bar, half picture

/// First and end of what is not bars along one side.
std::pair<int, int> Inside(const std::vector<int>& lit, int lengthAcross, const KxSubjectOptions::Bars& options)
{
    const int length = static_cast<int>(lit.size());
    const double limit = options.brightShare * lengthAcross;
    const auto isLit = [limit](int count) { return count > limit; };
    const auto first = std::find_if(lit.begin(), lit.end(), isLit);
    if (first == lit.end()) {
        return {0, length};
    }
    const int before = static_cast<int>(first - lit.begin());
    const int after = static_cast<int>(std::find_if(lit.rbegin(), lit.rend(), isLit) - lit.rbegin());
    const bool bothThere = before >= options.minimumShare * length && after >= options.minimumShare * length;
    const bool tooLarge = before > MaximumShare * length || after > MaximumShare * length;
    const bool alike = std::abs(before - after) <= AsymmetryShare * length + 1.0;
    if (!bothThere || tooLarge || !alike) {
        return {0, length};
    }
    return {before + InsetPx, length - after - InsetPx};
}

} // namespace

KxBarDetector::KxBarDetector(const KxSubjectOptions::Bars& options, cv::Size picturePx)
    : m_options(options)
    , m_litInRow(static_cast<std::size_t>(picturePx.height))
    , m_litInColumn(static_cast<std::size_t>(picturePx.width))
{
}

void KxBarDetector::AddPicture(const cv::Mat& grey)
{
    cv::Mat lit;
    cv::threshold(grey, lit, m_options.blackLevel, 1.0, cv::THRESH_BINARY);
    cv::Mat rows;
    cv::Mat columns;
    cv::reduce(lit, rows, 1, cv::REDUCE_SUM, CV_32S);
    cv::reduce(lit, columns, 0, cv::REDUCE_SUM, CV_32S);
    for (std::size_t y = 0; y < m_litInRow.size(); ++y) {
        m_litInRow[y] = std::max(m_litInRow[y], rows.at<int>(static_cast<int>(y), 0));
    }
    for (std::size_t x = 0; x < m_litInColumn.size(); ++x) {
        m_litInColumn[x] = std::max(m_litInColumn[x], columns.at<int>(0, static_cast<int>(x)));
    }
}

cv::Rect KxBarDetector::Content() const
{
    const int width = static_cast<int>(m_litInColumn.size());
    const int height = static_cast<int>(m_litInRow.size());
    const auto [left, right] = Inside(m_litInColumn, height, m_options);
    const auto [top, bottom] = Inside(m_litInRow, width, m_options);
    return {left, top, right - left, bottom - top};
}
