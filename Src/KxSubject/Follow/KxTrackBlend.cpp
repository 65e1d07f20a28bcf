#include <KxSubject/Follow/KxTrackBlend.h>

#include <algorithm>
#include <cmath>
#include <map>

namespace
{

constexpr double AgreeingShare = 0.6; ///< of the box's width: tracks nearer than this agree

using Point = KxFollowTrack::Point;

KxSubjectBox Mix(const KxSubjectBox& a, const KxSubjectBox& b, double part)
{
    const auto mix = [part](double from, double to) { return from + part * (to - from); };
    return {mix(a.x, b.x), mix(a.y, b.y), mix(a.width, b.width), mix(a.height, b.height)};
}

double Distance(const KxSubjectBox& a, const KxSubjectBox& b)
{
    return std::hypot(a.x + a.width / 2.0 - b.x - b.width / 2.0, a.y + a.height / 2.0 - b.y - b.height / 2.0);
}

/// Whether the points, away from one seed, end on the other one: then they were on the thing all the way.
bool Arrives(const std::vector<Point>& points, const Point& seed, const KxSubjectOptions::Follow& options)
{
    return !points.empty() && static_cast<double>(points.back().confidence) >= options.goodConfidence &&
           Distance(points.back().box, seed.box) < AgreeingShare * seed.box.width;
}

/// Puts the points without confidence on the line between the nearest ones that have some. The first and the last one
/// have.
void BridgeLost(std::vector<Point>& points, const KxSubjectOptions::Follow& options)
{
    std::size_t seen = 0;
    for (std::size_t i = 1; i < points.size(); ++i) {
        if (points[i].confidence == 0.0F) {
            continue;
        }
        const Point before = points[seen];
        for (std::size_t lost = seen + 1; lost < i; ++lost) {
            const double part = static_cast<double>(points[lost].frame - before.frame) /
                                static_cast<double>(points[i].frame - before.frame);
            points[lost].box = Mix(before.box, points[i].box, part);
            points[lost].confidence = static_cast<float>(options.goodConfidence);
        }
        seen = i;
    }
}

/// A frame's point on each side; null where that side has none.
struct Pair {
    const Point* left = nullptr;
    const Point* right = nullptr;
};

} // namespace

std::vector<Point> KxTrackBlend::Between(const Side& left, const Side& right, const KxSubjectOptions::Follow& options)
{
    const std::int32_t first = left.seed.frame;
    const std::int32_t last = right.seed.frame;
    const bool leftArrives = Arrives(left.points, right.seed, options);
    const bool rightArrives = Arrives(right.points, left.seed, options);
    std::map<std::int32_t, Pair> frames;
    for (const Point& point : left.points) {
        frames[point.frame].left = leftArrives || !rightArrives ? &point : nullptr;
    }
    for (const Point& point : right.points) {
        frames[point.frame].right = rightArrives || !leftArrives ? &point : nullptr;
    }
    std::vector<Point> blended{left.seed};
    for (const auto& [frame, pair] : frames) {
        if (frame <= first || frame >= last) {
            continue;
        }
        const double part = static_cast<double>(frame - first) / static_cast<double>(last - first);
        const double leftConfidence = pair.left != nullptr ? static_cast<double>(pair.left->confidence) : 0.0;
        const double rightConfidence = pair.right != nullptr ? static_cast<double>(pair.right->confidence) : 0.0;
        if (std::max(leftConfidence, rightConfidence) < options.goodConfidence) {
            blended.push_back({frame, {}, 0.0F});
            continue;
        }
        const bool agrees = pair.left != nullptr && pair.right != nullptr &&
                            Distance(pair.left->box, pair.right->box) <
                                AgreeingShare * std::min(pair.left->box.width, pair.right->box.width);
        if (agrees) {
            blended.push_back({frame, Mix(pair.left->box, pair.right->box, part),
                               std::max(pair.left->confidence, pair.right->confidence)});
        } else {
            blended.push_back((1.0 - part) * leftConfidence >= part * rightConfidence ? *pair.left : *pair.right);
        }
    }
    blended.push_back(right.seed);
    BridgeLost(blended, options);
    for (Point& point : blended) {
        point.isDoubted = point.isDoubted && !leftArrives && !rightArrives;
        point.isAmbiguous = point.isAmbiguous && !leftArrives && !rightArrives;
    }
    return {blended.begin() + 1, blended.end() - 1};
}
