#include <KxEditList/KxPlacementKeys.h>

#include <KxCore/KxCropWindow.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace
{

using Span = std::pair<std::size_t, std::size_t>;

QRectF Between(const QRectF& a, const QRectF& b, double share)
{
    const auto mix = [share](double from, double to) { return from + (to - from) * share; };
    return {mix(a.x(), b.x()), mix(a.y(), b.y()), mix(a.width(), b.width()), mix(a.height(), b.height())};
}

double LargestDifference(const QRectF& a, const QRectF& b)
{
    return std::max({std::abs(a.left() - b.left()), std::abs(a.top() - b.top()),
                     std::abs(a.x() + a.width() - b.x() - b.width()),
                     std::abs(a.y() + a.height() - b.y() - b.height())});
}

/// The frame between the ends of `span` whose crop is farthest from the interpolated one, or the first end if all are
/// within the tolerance.
std::size_t WorstFrame(const KxCroppedClip& clip, const std::vector<QRectF>& places, const Span& span)
{
    std::size_t worst = span.first;
    double largest = KxPlacementKeys::TolerancePx;
    for (std::size_t frame = span.first + 1; frame < span.second; ++frame) {
        const double share = static_cast<double>(frame - span.first) / static_cast<double>(span.second - span.first);
        const QRectF place = Between(places[span.first], places[span.second], share);
        const double difference =
            LargestDifference(KxPlacementKeys::CropOf(clip, place), KxPlacementKeys::CropOf(clip, places[frame]));
        if (difference > largest) {
            largest = difference;
            worst = frame;
        }
    }
    return worst;
}

/// The frames that have a key whatever their crops are, growing.
std::vector<std::size_t> FixedFrames(const KxCroppedClip& clip)
{
    const qint64 count = clip.FrameCount();
    std::vector<std::size_t> fixed{0, static_cast<std::size_t>(count - 1)};
    const auto add = [&fixed, count](qint64 frame) {
        if (frame >= 0 && frame < count) {
            fixed.push_back(static_cast<std::size_t>(frame));
        }
    };
    for (const qint64 start : clip.shotStarts) {
        add(start - 1);
        add(start);
    }
    std::for_each(clip.edits.begin(), clip.edits.end(), add);
    std::sort(fixed.begin(), fixed.end());
    fixed.erase(std::unique(fixed.begin(), fixed.end()), fixed.end());
    return fixed;
}

} // namespace

QRectF KxPlacementKeys::PlaceOf(const KxCroppedClip& clip, const QRectF& crop)
{
    const QRectF window = KxCropWindow::Pixels(crop, clip.size);
    double scaleX = clip.outputSize.width() / window.width();
    double scaleY = clip.outputSize.height() / window.height();
    if (clip.fitsOtherShapes && !KxCropWindow::HasShapeOf(clip.outputSize, crop, clip.size)) {
        scaleX = scaleY = std::min(scaleX, scaleY);
    }
    const QPointF middle = window.center();
    return {clip.outputSize.width() / 2.0 - middle.x() * scaleX, clip.outputSize.height() / 2.0 - middle.y() * scaleY,
            clip.size.width() * scaleX, clip.size.height() * scaleY};
}

QRectF KxPlacementKeys::CropOf(const KxCroppedClip& clip, const QRectF& place)
{
    const double scaleX = clip.size.width() / place.width();
    const double scaleY = clip.size.height() / place.height();
    return {-place.x() * scaleX, -place.y() * scaleY, clip.outputSize.width() * scaleX,
            clip.outputSize.height() * scaleY};
}

std::vector<KxPlacementKey> KxPlacementKeys::Of(const KxCroppedClip& clip)
{
    std::vector<QRectF> places;
    places.reserve(clip.crops.size());
    for (const QRectF& crop : clip.crops) {
        places.push_back(PlaceOf(clip, crop));
    }
    std::vector<std::size_t> frames = FixedFrames(clip);
    std::vector<Span> open;
    for (std::size_t i = 1; i < frames.size(); ++i) {
        open.emplace_back(frames[i - 1], frames[i]);
    }
    while (!open.empty()) {
        const Span span = open.back();
        open.pop_back();
        const std::size_t worst = WorstFrame(clip, places, span);
        if (worst != span.first) {
            frames.push_back(worst);
            open.emplace_back(span.first, worst);
            open.emplace_back(worst, span.second);
        }
    }
    std::sort(frames.begin(), frames.end());
    std::vector<KxPlacementKey> keys;
    keys.reserve(frames.size());
    for (const std::size_t frame : frames) {
        const auto number = static_cast<qint64>(frame);
        keys.push_back(
            {number, places[frame], std::binary_search(clip.shotStarts.begin(), clip.shotStarts.end(), number + 1)});
    }
    return keys;
}
