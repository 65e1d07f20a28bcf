#include <KxSubject/Signals/KxNanoDetGrid.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace
{

constexpr int PersonClass = 0;
constexpr int FirstVehicleClass = 1; ///< bicycle
constexpr int LastVehicleClass = 8;  ///< boat
constexpr int FirstAnimalClass = 14; ///< bird
constexpr int LastAnimalClass = 23;  ///< giraffe

/// The expected bin of a distribution that is given before softmax.
double MeanBin(const float* bins)
{
    const float largest = *std::max_element(bins, bins + KxNanoDetGrid::Bins);
    double sum = 0.0;
    double weighted = 0.0;
    for (int bin = 0; bin < KxNanoDetGrid::Bins; ++bin) {
        const double weight = std::exp(static_cast<double>(bins[bin] - largest));
        sum += weight;
        weighted += weight * bin;
    }
    return weighted / sum;
}

cv::Rect2d BoxAround(cv::Point2d centre, const float* sides, int stridePx)
{
    std::array<double, 4> distances{};
    for (std::size_t side = 0; side < distances.size(); ++side) {
        distances[side] = MeanBin(sides + side * KxNanoDetGrid::Bins) * stridePx;
    }
    return {centre.x - distances[0], centre.y - distances[1], distances[0] + distances[2], distances[1] + distances[3]};
}

double IntersectionOverUnion(const cv::Rect2d& a, const cv::Rect2d& b)
{
    const double common = (a & b).area();
    return common > 0.0 ? common / (a.area() + b.area() - common) : 0.0;
}

} // namespace

int KxNanoDetPlaces(cv::Size inputPx, int stridePx)
{
    return (inputPx.width / stridePx) * (inputPx.height / stridePx);
}

void KxReadNanoDetGrid(const KxNanoDetGrid& grid, cv::Size inputPx, float threshold, std::vector<KxNanoDetBox>& boxes)
{
    const int columns = inputPx.width / grid.stridePx;
    const int places = KxNanoDetPlaces(inputPx, grid.stridePx);
    const auto* scores = grid.scores.ptr<float>();
    const auto* sides = grid.sides.ptr<float>();
    for (int place = 0; place < places; ++place, scores += KxNanoDetGrid::Classes, sides += KxNanoDetGrid::Sides) {
        const float person = scores[PersonClass];
        const float animal = *std::max_element(scores + FirstAnimalClass, scores + LastAnimalClass + 1);
        const float vehicle = *std::max_element(scores + FirstVehicleClass, scores + LastVehicleClass + 1);
        const cv::Point2d centre((place % columns + 0.5) * grid.stridePx, (place / columns + 0.5) * grid.stridePx);
        const auto add = [&](float score, KxDetectionKind kind) {
            if (score >= threshold) {
                boxes.push_back({BoxAround(centre, sides, grid.stridePx), score, kind});
            }
        };
        add(std::max(person, animal), person >= animal ? KxDetectionKind::Person : KxDetectionKind::Animal);
        add(vehicle, KxDetectionKind::Vehicle);
    }
}

std::vector<KxNanoDetBox> KxSuppressOverlaps(const std::vector<KxNanoDetBox>& boxes, float threshold)
{
    std::vector<KxNanoDetBox> sorted = boxes;
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const KxNanoDetBox& a, const KxNanoDetBox& b) { return a.score > b.score; });
    std::vector<KxNanoDetBox> kept;
    for (const KxNanoDetBox& box : sorted) {
        const bool isOverlap = std::any_of(kept.begin(), kept.end(), [&box, threshold](const KxNanoDetBox& other) {
            return other.kind == box.kind && IntersectionOverUnion(other.box, box.box) > static_cast<double>(threshold);
        });
        if (!isOverlap) {
            kept.push_back(box);
        }
    }
    return kept;
}
