#include <KxSubject/Follow/KxColourModel.h>

#include <opencv2/core.hpp>

namespace
{

/// 16 levels of each of three colours.
constexpr std::size_t Bins = 4096;
constexpr float LeastShare = 1e-5F;

std::size_t BinOf(const cv::Vec3b& colour)
{
    return static_cast<std::size_t>((colour[0] >> 4) << 8 | (colour[1] >> 4) << 4 | colour[2] >> 4);
}

void Replace(std::vector<float>& known, const std::vector<float>& seen, float rate)
{
    float sum = 0.0F;
    for (const float count : seen) {
        sum += count;
    }
    if (known.empty()) {
        known.assign(Bins, 0.0F);
        rate = 1.0F;
    }
    for (std::size_t i = 0; i < Bins && sum > 0.0F; ++i) {
        known[i] += rate * (seen[i] / sum - known[i]);
    }
}

} // namespace

void KxColourModel::Learn(const cv::Mat& patch, const cv::Rect& inside, double rate)
{
    Histogram thing(Bins, 0.0F);
    Histogram around(Bins, 0.0F);
    for (int y = 0; y < patch.rows; ++y) {
        const auto* const row = patch.ptr<cv::Vec3b>(y);
        for (int x = 0; x < patch.cols; ++x) {
            ++(inside.contains({x, y}) ? thing : around)[BinOf(row[x])];
        }
    }
    Replace(m_thing, thing, static_cast<float>(rate));
    Replace(m_around, around, static_cast<float>(rate));
}

cv::Mat KxColourModel::Likelihood(const cv::Mat& patch) const
{
    cv::Mat likelihood(patch.size(), CV_32FC1);
    for (int y = 0; y < patch.rows; ++y) {
        const auto* const row = patch.ptr<cv::Vec3b>(y);
        auto* const to = likelihood.ptr<float>(y);
        for (int x = 0; x < patch.cols; ++x) {
            const std::size_t bin = BinOf(row[x]);
            to[x] = (m_thing[bin] + LeastShare) / (m_thing[bin] + m_around[bin] + 2.0F * LeastShare);
        }
    }
    return likelihood;
}
