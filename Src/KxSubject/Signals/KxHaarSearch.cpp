#include <KxSubject/Signals/KxHaarSearch.h>

#include <opencv2/core/hal/intrin.hpp>
#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace
{

using Ints = cv::v_int32x4;
using Floats = cv::v_float32x4;
using Doubles = cv::v_float64x2;

constexpr int Lanes = Ints::nlanes;
constexpr int AllLanes = (1 << Lanes) - 1;
/// From this scale on, a step of one pixel of the shrunken picture is two of the picture.
constexpr float ScaleForSmallSteps = 2.0F;
/// The inverse of the standard deviation in a window: a flatter one shows nothing.
constexpr double MostInverseDeviation = 0.1;

Ints SumOf(const int* window, const std::array<int, 4>& corners)
{
    return cv::v_load(window + corners[0]) - cv::v_load(window + corners[1]) - cv::v_load(window + corners[2]) +
           cv::v_load(window + corners[3]);
}

/// The rows of windows that cv::CascadeClassifier examines. It divides them into as many parts as the first level is 32
/// windows wide, and sometimes drops the last row.
int ExaminedRows(int rows, int step, int widthOfFirstLevel)
{
    constexpr int windowsInPart = 32;
    const int parts = std::max((widthOfFirstLevel + windowsInPart - 1) / windowsInPart, 1);
    return std::min(rows, std::max((rows / step + parts - 1) / parts, 1) * parts * step);
}

template<typename Scale>
cv::Size Scaled(cv::Size size, Scale scale)
{
    return {cvRound(static_cast<Scale>(size.width) * scale), cvRound(static_cast<Scale>(size.height) * scale)};
}

} // namespace

KxHaarSearch::KxHaarSearch(KxHaarCascade cascade)
    : m_cascade(std::move(cascade))
{
}

KxHaarSearch::~KxHaarSearch() = default;
KxHaarSearch::KxHaarSearch(KxHaarSearch&& other) noexcept = default;
KxHaarSearch& KxHaarSearch::operator=(KxHaarSearch&& other) noexcept = default;

std::vector<float> KxHaarSearch::ScalesFor(cv::Size picturePx, const Sizes& sizes) const
{
    std::vector<float> all;
    for (double scale = 1.0;; scale *= sizes.factor) {
        const cv::Size window = Scaled(m_cascade.windowPx, scale);
        if (window.width > picturePx.width || window.height > picturePx.height) {
            break;
        }
        all.push_back(static_cast<float>(scale));
    }
    std::vector<float> wanted;
    const auto isWanted = [this, &sizes](float scale) {
        const cv::Size window = Scaled(m_cascade.windowPx, scale);
        return std::min(window.width, window.height) >= sizes.smallestPx &&
               std::max(window.width, window.height) <= sizes.largestPx;
    };
    std::copy_if(all.begin(), all.end(), std::back_inserter(wanted), isWanted);
    if (wanted.empty() && !all.empty()) {
        const auto missing = [this, &sizes](float scale) {
            const cv::Size window = Scaled(m_cascade.windowPx, scale);
            return std::hypot(window.width - sizes.smallestPx, window.height - sizes.smallestPx);
        };
        wanted.push_back(*std::min_element(all.begin(), all.end(),
                                           [&missing](float a, float b) { return missing(a) < missing(b); }));
    }
    return wanted;
}

int KxHaarSearch::PlaceOf(int x, int y, int step) const
{
    return y * m_stride + x % step * (m_stride / step) + x / step;
}

std::array<int, 4> KxHaarSearch::CornersOf(const cv::Rect& area, int step) const
{
    return {PlaceOf(area.x, area.y, step), PlaceOf(area.br().x, area.y, step), PlaceOf(area.x, area.br().y, step),
            PlaceOf(area.br().x, area.br().y, step)};
}

void KxHaarSearch::SetStride(int stride)
{
    m_stride = stride;
    for (int step = 1; step <= MostStep; ++step) {
        std::vector<Corners>& corners = m_corners[static_cast<std::size_t>(step - 1)];
        corners.clear();
        for (const KxHaarCascade::Feature& feature : m_cascade.features) {
            Corners& made = corners.emplace_back();
            made.count = feature.count;
            for (std::size_t i = 0; i < feature.areas.size(); ++i) {
                made.at[i] = CornersOf(feature.areas[i].place, step);
                made.weights[i] = feature.areas[i].weight;
            }
        }
    }
}

void KxHaarSearch::Arrange(const cv::Mat& sums, int step, std::vector<int>& arranged) const
{
    // The last windows of the last row are examined together with what lies behind them.
    arranged.resize(static_cast<std::size_t>(m_stride) * static_cast<std::size_t>(sums.rows + 1));
    for (int y = 0; y < sums.rows; ++y) {
        const auto* const from = sums.ptr<int>(y);
        for (int first = 0; first < step; ++first) {
            int* to = &arranged[static_cast<std::size_t>(PlaceOf(first, y, step))];
            for (int x = first; x < sums.cols; x += step) {
                *to++ = from[x];
            }
        }
    }
}

KxHaarSearch::Level KxHaarSearch::MakeLevel(const cv::Mat& grey, float scale)
{
    const cv::Size size(cvRound(static_cast<float>(grey.cols) / scale), cvRound(static_cast<float>(grey.rows) / scale));
    cv::resize(grey, m_small, size, 0.0, 0.0, cv::INTER_LINEAR_EXACT);
    cv::integral(m_small, m_rawSums, m_rawSquares, CV_32S, CV_32S);
    const int step = scale >= ScaleForSmallSteps ? 1 : MostStep;
    Arrange(m_rawSums, step, m_sums);
    Arrange(m_rawSquares, step, m_squares);
    const cv::Size window = m_cascade.windowPx;
    const cv::Rect inside(1, 1, window.width - 2, window.height - 2);
    return {{size.width + 1 - window.width, size.height + 1 - window.height},
            step,
            static_cast<double>(inside.area()),
            CornersOf(inside, step)};
}

int KxHaarSearch::MeasureContrast(const Level& level, std::size_t first, float* gains) const
{
    const Ints sums = SumOf(&m_sums[first], level.inside);
    const Ints squares = SumOf(&m_squares[first], level.inside);
    const Doubles area = cv::v_setall_f64(level.area);
    const Doubles one = cv::v_setall_f64(1.0);
    const auto measure = [&](const Doubles& sum, const Doubles& square, Doubles& gain) {
        const Doubles spread = area * square - sum * sum;
        gain = one / cv::v_sqrt(cv::v_max(spread, one));
        const Doubles rounded = cv::v_cvt_f64(cv::v_cvt_f32(gain));
        return cv::v_signmask((spread >= one) & (area * rounded < cv::v_setall_f64(MostInverseDeviation)));
    };
    Doubles left;
    Doubles right;
    const int leftBits = measure(cv::v_cvt_f64(sums), cv::v_cvt_f64(squares), left);
    const int rightBits = measure(cv::v_cvt_f64_high(sums), cv::v_cvt_f64_high(squares), right);
    cv::v_store(gains, cv::v_cvt_f32(left, right));
    return leftBits | (rightBits << Doubles::nlanes);
}

int KxHaarSearch::RejectedBy(const KxHaarCascade::Stage& stage, const Corners* corners, const int* first,
                             const float* gains)
{
    const Floats gain = cv::v_load(gains);
    const auto valueOf = [&](const Corners& feature) {
        const auto weighted = [&](std::size_t i) {
            return cv::v_setall_f32(feature.weights[i]) * cv::v_cvt_f32(SumOf(first, feature.at[i]));
        };
        const Floats value = weighted(0) + weighted(1);
        return (feature.count > 2 ? value + weighted(2) : value) * gain;
    };
    const auto chosen = [&](const KxHaarCascade::Node& node, const Floats& below, const Floats& otherwise) {
        return cv::v_select(valueOf(corners[node.feature]) < cv::v_setall_f32(node.threshold), below, otherwise);
    };
    Doubles left = cv::v_setzero_f64();
    Doubles right = left;
    for (const KxHaarCascade::Tree& tree : stage.trees) {
        const auto leaf = [&tree](int to) { return cv::v_setall_f32(tree.leaves[static_cast<std::size_t>(-to)]); };
        const auto& [root, child] = tree.nodes;
        Floats second = cv::v_setzero_f32();
        if (tree.count > 1) {
            second = chosen(child, leaf(child.below), leaf(child.otherwise));
        }
        const Floats result = chosen(root, root.below > 0 ? second : leaf(root.below),
                                     root.otherwise > 0 ? second : leaf(root.otherwise));
        left += cv::v_cvt_f64(result);
        right += cv::v_cvt_f64_high(result);
    }
    const Doubles threshold = cv::v_setall_f64(static_cast<double>(stage.threshold));
    return cv::v_signmask(left < threshold) | (cv::v_signmask(right < threshold) << Doubles::nlanes);
}

void KxHaarSearch::FindInRow(const Level& level, int y, std::vector<int>& found) const
{
    const Corners* const corners = m_corners[static_cast<std::size_t>(level.step - 1)].data();
    const int windows = (level.places.width + level.step - 1) / level.step;
    std::array<float, Lanes> gains{};
    bool isLeftOut = false;
    for (int x = 0; x < windows; x += Lanes) {
        const auto first = static_cast<std::size_t>(PlaceOf(0, y, level.step)) + static_cast<std::size_t>(x);
        const int* const sums = &m_sums[first];
        const int there = AllLanes >> std::max(0, x + Lanes - windows);
        const int contrasty = MeasureContrast(level, first, gains.data()) & there;
        const int rejected =
            contrasty != 0 ? contrasty & RejectedBy(m_cascade.stages.front(), corners, sums, gains.data()) : 0;
        int passing = 0;
        for (int bit = 1; bit <= there; bit <<= 1) {
            // The neighbour of a window that the first stage rejects is not examined.
            passing |= isLeftOut ? 0 : contrasty & ~rejected & bit;
            isLeftOut = !isLeftOut && (rejected & bit) != 0;
        }
        for (std::size_t stage = 1; stage < m_cascade.stages.size() && passing != 0; ++stage) {
            passing &= ~RejectedBy(m_cascade.stages[stage], corners, sums, gains.data());
        }
        for (int lane = 0; lane < Lanes; ++lane) {
            if ((passing & (1 << lane)) != 0) {
                found.push_back((x + lane) * level.step);
            }
        }
    }
}

std::vector<cv::Rect> KxHaarSearch::Find(const cv::Mat& grey, const Sizes& sizes)
{
    const int padded = (grey.cols + 1 + MostStep * Lanes) / MostStep * MostStep;
    if (padded > m_stride) {
        SetStride(padded);
    }
    std::vector<cv::Rect> hits;
    std::vector<int> found;
    int widthOfFirstLevel = 0;
    for (const float scale : ScalesFor(grey.size(), sizes)) {
        const Level level = MakeLevel(grey, scale);
        const cv::Size window = Scaled(m_cascade.windowPx, scale);
        widthOfFirstLevel = widthOfFirstLevel > 0 ? widthOfFirstLevel : level.places.width;
        const int rows = ExaminedRows(level.places.height, level.step, widthOfFirstLevel);
        for (int y = 0; y < rows; y += level.step) {
            found.clear();
            FindInRow(level, y, found);
            for (const int x : found) {
                const cv::Point corner(cvRound(static_cast<float>(x) * scale), cvRound(static_cast<float>(y) * scale));
                hits.push_back(cv::Rect(corner, window) & cv::Rect({0, 0}, grey.size()));
            }
        }
    }
    return hits;
}
