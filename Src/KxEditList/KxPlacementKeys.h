#pragma once

#include <KxCore/KxExport.h>
#include <KxEditList/KxCroppedClip.h>

#include <QRectF>

#include <vector>

/// Where the whole picture lies while its crop fills the output.
struct KxPlacementKey {
    qint64 frame = 0;
    QRectF place;       ///< in pixels of the output; may reach beyond it
    bool holds = false; ///< until the next key, which begins another shot
};

/// Keys between which the picture moves linearly. Other programs interpolate the place and the size of the picture, not
/// the crop, so the keys are chosen in these terms.
namespace KxPlacementKeys
{
/// In pixels of the source: how far an edge of the interpolated crop may lie from that of a frame's own crop.
constexpr double TolerancePx = 0.25;

KXEDITLIST_API QRectF PlaceOf(const KxCroppedClip& clip, const QRectF& crop);
/// What fills the output, in pixels of the source: the crop, or more than the picture where it is fitted.
KXEDITLIST_API QRectF CropOf(const KxCroppedClip& clip, const QRectF& place);

/// As few keys as recursive division (Douglas and Peucker, "Algorithms for the reduction of the number of points
/// required to represent a digitized line", 1973) finds; the first and the last frame of each shot and every edited
/// frame have one. Growing by frame.
KXEDITLIST_API std::vector<KxPlacementKey> Of(const KxCroppedClip& clip);
} // namespace KxPlacementKeys
