#include <KrAutoReframe/Engine/KrEditSegment.h>

#include <algorithm>
#include <cmath>

namespace
{

float HalfWay(uint firstFrame, uint secondFrame)
{
    return static_cast<float>(firstFrame + secondFrame) * 0.5f;
}

} // namespace

bool KrEditSegment::Merge(const KrEditSegment& other)
{
    const bool isOtherLow = other.start <= start;
    const KrEditSegment& low = isOtherLow ? other : *this;
    const KrEditSegment& high = isOtherLow ? *this : other;
    const qint64 distance = static_cast<qint64>(high.start) - low.start;
    if (distance > low.length) {
        return false;
    }
    const qint64 mergedLength = std::max<qint64>(distance + high.length, low.length);
    start = low.start;
    length = static_cast<int>(mergedLength);
    for (const uint point : other.points) {
        const auto place = std::lower_bound(points.begin(), points.end(), point);
        if (place == points.end() || *place != point) {
            points.insert(place, point);
        }
    }
    return true;
}

bool KrEditSegment::RemovePoint(uint frame)
{
    if (frame < start || frame > End()) {
        return false;
    }
    const auto place = std::lower_bound(points.begin(), points.end(), frame);
    if (place == points.end() || *place != frame) {
        return false;
    }
    if (points.size() == 1) {
        start = 0;
        length = 0;
    } else if (place == points.begin()) {
        const uint end = End();
        start = static_cast<uint>(std::floor(HalfWay(frame, *std::next(place))));
        length = static_cast<int>(end - start);
    } else if (std::next(place) == points.end()) {
        length = static_cast<int>(static_cast<uint>(std::ceil(HalfWay(*std::prev(place), frame))) - start);
    }
    points.erase(place);
    return true;
}
