#pragma once

#include <KxSubject/KxCropGeometry.h>
#include <KxSubject/KxSubjectOptions.h>

#include <optional>

/// Where the subject asks a crop's centre to be at one frame.
struct KxPathPoint {
    std::int64_t frame = 0;
    double centre = 0.0; ///< in fractions of the free axis
};

/// Draws the camera's path through one shot, at every frame: still where the subject's range allows it, otherwise still
/// spans, constant pans and eased ends. Knows nothing of what lies beyond the shot.
class KXSUBJECT_API KxCropPath
{
public:
    KxCropPath(const KxSubjectOptions::Path& options, const KxSubjectOptions::Reaction& reaction,
               const KxCropGeometry& geometry);

    /// The centre at each frame from `first` up to and without `end`. `points` grow by frame and lie between these;
    /// none asks for `fallback`.
    std::vector<double> Draw(const std::vector<KxPathPoint>& points, std::int64_t first, std::int64_t end,
                             double frameRate, double fallback) const;

private:
    /// Where the crop can stand through the whole shot; nothing when the subject's range is too large.
    std::optional<double> StandingPlace(const std::vector<KxPathPoint>& points) const;
    std::vector<double> Nodes(const std::vector<KxPathPoint>& points, std::int64_t first, std::int64_t end,
                              double frameRate) const;

    KxSubjectOptions::Path m_options;
    KxSubjectOptions::Reaction m_reaction;
    KxCropGeometry m_geometry;
};
