#pragma once

#include <KxCore/KxCancelToken.h>
#include <KxCore/KxExport.h>

#include <KxSubject/KxCropGeometry.h>
#include <KxSubject/KxSubjectOptions.h>

#include <cstdint>
#include <optional>
#include <vector>

/// The centre that the subject asks of the crop at one frame.
struct KxPathPoint {
    std::int64_t frame = 0;
    double centre = 0.0; ///< in fractions of the free axis
};

/// The frames from `first` up to, but without, `end`.
struct KxFrameSpan {
    std::int64_t first = 0;
    std::int64_t end = 0;
    double frameRate = 25.0;
};

/// Draws the camera's path through one shot, at every frame: still where the subject's range allows it, otherwise still
/// spans, constant pans and eased ends. Looks at nothing outside the shot.
class KXSUBJECT_API KxCropPath
{
public:
    KxCropPath(const KxSubjectOptions::Path& options, const KxSubjectOptions::Reaction& reaction,
               const KxCropGeometry& geometry);

    /// The centre at each frame of `shot`. `points` grow by frame and lie in it; without any, the crop stays at
    /// `fallback`. Far before the first point and far after the last one (Path::longestHoldSeconds) the centre is held,
    /// at no cost. Once cancelled, returns soon, with an unfinished path.
    std::vector<double> Draw(const std::vector<KxPathPoint>& points, const KxFrameSpan& shot, double fallback,
                             const KxCancelToken& cancel) const;

private:
    /// The crop's extent, at most that of a 9:16 crop.
    double NarrowExtent() const { return m_geometry.Extent() * m_geometry.NarrowShare(); }
    /// Where the crop can stay through the whole shot; nothing if the subject's range is too large.
    std::optional<double> StillCentre(const std::vector<KxPathPoint>& points) const;
    /// The part of the shot that is drawn rather than held.
    KxFrameSpan DrawnSpan(const std::vector<KxPathPoint>& points, const KxFrameSpan& shot) const;
    std::vector<double> DrawSmooth(const std::vector<KxPathPoint>& points, const KxFrameSpan& span,
                                   const KxCancelToken& cancel) const;

    KxSubjectOptions::Path m_options;
    KxSubjectOptions::Reaction m_reaction;
    KxCropGeometry m_geometry;
};
