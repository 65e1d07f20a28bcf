#include <KxSubject/KxPointedBox.h>

#include <KxSubject/Follow/KxBoxGuess.h>
#include <KxSubject/KxSubjectOptions.h>
#include <KxSubject/KxSubjectRecord.h>
#include <KxSubject/Signals/KxOpenCvError.h>

#include <opencv2/core.hpp>

#include <algorithm>
#include <cmath>

namespace
{

constexpr double NearbySeconds = 0.5;

/// A place in fractions of the picture.
struct Place {
    double x = 0.0;
    double y = 0.0;
    double widthToHeight = 1.0; ///< of the picture

    bool IsNear(double left, double top, double width, double height) const
    {
        constexpr double near = 0.1;
        const double beside = std::max({left - x, x - (left + width), 0.0});
        const double above = std::max({top - y, y - (top + height), 0.0}) / widthToHeight;
        return std::hypot(beside, above) <= near;
    }
};

bool SawMover(const KxSubjectRecord& record, double seconds, const Place& place)
{
    for (std::size_t sample = 0; sample < record.samples.size(); ++sample) {
        if (std::abs(record.SecondsAt(record.samples[sample].frame) - seconds) > NearbySeconds) {
            continue;
        }
        for (const KxMover& mover : record.movers) {
            if (mover.Covers(sample)) {
                const KxMover::Box box = mover.At(sample);
                if (place.IsNear(box.x, box.y, box.width, box.height)) {
                    return true;
                }
            }
        }
    }
    return false;
}

bool SawFace(const KxSubjectRecord& record, double seconds, const Place& place)
{
    const double widthPx = record.workingSizePx.width;
    const double heightPx = record.workingSizePx.height;
    const auto isHere = [&](const KxFaceLook& look) {
        return look.IsFace() && std::abs(look.timeSeconds - seconds) <= NearbySeconds &&
               place.IsNear(look.x / widthPx, look.y / heightPx, look.width / widthPx, look.height / heightPx);
    };
    return std::any_of(record.faces.begin(), record.faces.end(), [&isHere](const KxFaceTrack& track) {
        return std::any_of(track.looks.begin(), track.looks.end(), isHere);
    });
}

bool SawDetection(const KxSubjectRecord& record, double seconds, const Place& place)
{
    const auto isHere = [&place](const KxDetection& found) {
        return place.IsNear(static_cast<double>(found.x), static_cast<double>(found.y),
                            static_cast<double>(found.width), static_cast<double>(found.height));
    };
    return std::any_of(record.looks.begin(), record.looks.end(), [&](const KxDetectionLook& look) {
        return std::abs(record.SecondsAt(look.frame) - seconds) <= NearbySeconds &&
               std::any_of(look.found.begin(), look.found.end(), isHere);
    });
}

} // namespace

KxGuessedBox KxGuessBoxAt(const KxPictureView& picture, double x, double y)
{
    const KxSubjectOptions::Follow options;
    KxGuessedBox guess{
        {x - options.pointWidth / 2.0, y - options.pointHeight / 2.0, options.pointWidth, options.pointHeight}};
    try {
        const cv::Mat pixels(picture.sizePx.height, picture.sizePx.width, CV_8UC3,
                             const_cast<std::uint8_t*>(picture.data), picture.bytesPerRow);
        const KxBoxGuess::Guess found = KxBoxGuess::Around(pixels, {x * pixels.cols, y * pixels.rows}, options);
        guess.box = {found.box.x / pixels.cols, found.box.y / pixels.rows, found.box.width / pixels.cols,
                     found.box.height / pixels.rows};
        guess.isOutlined = found.isOutlined;
    } catch (const cv::Exception& problem) {
        KxThrowIfOutOfMemory(problem);
    }
    return guess;
}

bool KxSawSomethingAt(const KxSubjectRecord& record, double seconds, double x, double y)
{
    const Place place{x, y, static_cast<double>(record.source.pictureWidthPx) / record.source.pictureHeightPx};
    return SawMover(record, seconds, place) || SawFace(record, seconds, place) || SawDetection(record, seconds, place);
}
