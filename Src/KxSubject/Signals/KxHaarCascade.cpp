#include <KxSubject/Signals/KxHaarCascade.h>

#include <algorithm>

namespace
{

constexpr int SmallestWindowPx = 4;
constexpr int LargestWindowPx = 128;
constexpr std::size_t NumbersInNode = 4;
constexpr std::size_t NumbersInArea = 5;
/// OpenCV lets a window pass that misses the threshold by a rounding error.
constexpr float Tolerance = 1e-5F;

std::vector<double> NumbersOf(const cv::FileNode& node)
{
    std::vector<double> numbers;
    for (const cv::FileNode& number : node) {
        numbers.push_back(number.real());
    }
    return numbers;
}

bool ReadFeature(const cv::FileNode& node, const cv::Rect& window, KxHaarCascade::Feature& feature)
{
    const cv::FileNode areas = node["rects"];
    feature.count = static_cast<int>(areas.size());
    if (static_cast<int>(node["tilted"]) != 0 || feature.count < 2 || areas.size() > feature.areas.size()) {
        return false;
    }
    std::size_t i = 0;
    for (const cv::FileNode& area : areas) {
        const std::vector<double> numbers = NumbersOf(area);
        if (numbers.size() != NumbersInArea) {
            return false;
        }
        const cv::Rect place(cv::saturate_cast<int>(numbers[0]), cv::saturate_cast<int>(numbers[1]),
                             cv::saturate_cast<int>(numbers[2]), cv::saturate_cast<int>(numbers[3]));
        if (place.empty() || (place & window) != place) {
            return false;
        }
        feature.areas[i++] = {place, static_cast<float>(numbers[4])};
    }
    return true;
}

bool IsSound(const KxHaarCascade::Tree& tree, std::size_t features)
{
    for (int i = 0; i < tree.count; ++i) {
        const KxHaarCascade::Node& node = tree.nodes[static_cast<std::size_t>(i)];
        const auto leadsSomewhere = [&tree, i](int to) {
            return to >= -tree.count && (to <= 0 || (i == 0 && to < tree.count));
        };
        if (!leadsSomewhere(node.below) || !leadsSomewhere(node.otherwise) ||
            static_cast<std::size_t>(node.feature) >= features) {
            return false;
        }
    }
    return true;
}

bool ReadTree(const cv::FileNode& node, std::size_t features, KxHaarCascade::Tree& tree)
{
    const std::vector<double> numbers = NumbersOf(node["internalNodes"]);
    const std::vector<double> leaves = NumbersOf(node["leafValues"]);
    const std::size_t count = numbers.size() / NumbersInNode;
    if (count < 1 || count > tree.nodes.size() || numbers.size() != count * NumbersInNode ||
        leaves.size() != count + 1) {
        return false;
    }
    tree.count = static_cast<int>(count);
    for (std::size_t i = 0; i < count; ++i) {
        const double* const number = &numbers[i * NumbersInNode];
        tree.nodes[i] = {cv::saturate_cast<int>(number[0]), cv::saturate_cast<int>(number[1]),
                         cv::saturate_cast<int>(number[2]), static_cast<float>(number[3])};
    }
    std::transform(leaves.begin(), leaves.end(), tree.leaves.begin(),
                   [](double leaf) { return static_cast<float>(leaf); });
    return IsSound(tree, features);
}

bool ReadStage(const cv::FileNode& node, std::size_t features, KxHaarCascade::Stage& stage)
{
    stage.threshold = static_cast<float>(node["stageThreshold"]) - Tolerance;
    for (const cv::FileNode& weak : node["weakClassifiers"]) {
        if (!ReadTree(weak, features, stage.trees.emplace_back())) {
            return false;
        }
    }
    return !stage.trees.empty();
}

} // namespace

std::optional<KxHaarCascade> KxHaarCascade::Read(const std::string& xml)
{
    if (xml.empty()) {
        return std::nullopt;
    }
    const cv::FileStorage storage(xml, cv::FileStorage::READ | cv::FileStorage::MEMORY);
    const cv::FileNode root = storage.getFirstTopLevelNode();
    KxHaarCascade cascade;
    cascade.windowPx = {static_cast<int>(root["width"]), static_cast<int>(root["height"])};
    const auto [smaller, larger] = std::minmax(cascade.windowPx.width, cascade.windowPx.height);
    if (static_cast<std::string>(root["featureType"]) != "HAAR" || smaller < SmallestWindowPx ||
        larger > LargestWindowPx) {
        return std::nullopt;
    }
    for (const cv::FileNode& node : root["features"]) {
        if (!ReadFeature(node, {{0, 0}, cascade.windowPx}, cascade.features.emplace_back())) {
            return std::nullopt;
        }
    }
    for (const cv::FileNode& node : root["stages"]) {
        if (!ReadStage(node, cascade.features.size(), cascade.stages.emplace_back())) {
            return std::nullopt;
        }
    }
    return cascade.stages.empty() ? std::nullopt : std::optional(std::move(cascade));
}
