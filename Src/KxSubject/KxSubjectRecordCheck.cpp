#include <KxSubject/KxSubjectRecordCheck.h>

#include <cmath>

namespace
{

constexpr int MostPx = 1 << 20;

bool IsShare(double from, double length)
{
    constexpr double rounding = 1e-9;
    return from >= 0.0 && length > 0.0 && from + length <= 1.0 + rounding;
}

template<typename Item>
bool GrowsInside(const std::vector<Item>& items, const KxSubjectSource& source)
{
    std::int64_t last = -1;
    for (const Item& item : items) {
        if (item.frame <= last || item.frame >= source.frameCount) {
            return false;
        }
        last = item.frame;
    }
    return true;
}

bool AreMouthsConsistent(const KxSubjectRecord& record)
{
    std::int32_t lastFace = -1;
    for (const KxMouthTrack& mouth : record.mouths) {
        if (mouth.face <= lastFace || static_cast<std::size_t>(mouth.face) >= record.faces.size() ||
            !GrowsInside(mouth.looks, record.source)) {
            return false;
        }
        lastFace = mouth.face;
    }
    std::int64_t end = 0;
    for (const KxSoundSpan& span : record.sound) {
        if (span.first < end) {
            return false;
        }
        end = span.first + static_cast<std::int64_t>(span.levels.size());
    }
    return true;
}

} // namespace

bool KxSubjectRecordCheck::HasPossibleSource(const KxSubjectRecord& record)
{
    const KxSubjectSource& source = record.source;
    const auto isSide = [](int px) { return px > 0 && px <= MostPx; };
    return isSide(source.pictureWidthPx) && isSide(source.pictureHeightPx) && isSide(record.workingSizePx.width) &&
           isSide(record.workingSizePx.height) && std::isfinite(source.frameRate) && source.frameRate > 0.0 &&
           source.frameCount >= 0;
}

bool KxSubjectRecordCheck::IsConsistent(const KxSubjectRecord& record)
{
    std::int64_t last = 0;
    for (const KxShotBoundary& boundary : record.boundaries) {
        if (boundary.frame <= last || boundary.frame >= record.source.frameCount || boundary.first < 0 ||
            boundary.first > boundary.last || boundary.last > record.source.frameCount) {
            return false;
        }
        last = boundary.frame;
    }
    if (!GrowsInside(record.prints, record.source) || !GrowsInside(record.samples, record.source) ||
        !GrowsInside(record.looks, record.source)) {
        return false;
    }
    std::int64_t firstSample = 0;
    for (const KxMover& mover : record.movers) {
        if (mover.firstSample < firstSample ||
            static_cast<std::size_t>(mover.firstSample) + mover.boxes.size() > record.samples.size()) {
            return false;
        }
        firstSample = mover.firstSample;
    }
    return AreMouthsConsistent(record) && IsShare(record.content.x, record.content.width) &&
           IsShare(record.content.y, record.content.height);
}
