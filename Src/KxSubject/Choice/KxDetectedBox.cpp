#include <KxSubject/Choice/KxDetectedBox.h>

#include <KxSubject/Choice/KxDetectionTracks.h>

#include <algorithm>
#include <cmath>

namespace
{

constexpr double MostWidth = 0.6;          ///< of the picture: what is wider is not one thing alone
constexpr double BesideTrackSeconds = 0.5; ///< before the first and after the last look at a thing it is still there
constexpr double LinkedSeconds = 3.0;      ///< each way: looks at one thing are less far apart

bool IsThere(const KxDetectionTracks::Track& track, double seconds)
{
    return seconds >= track.points.front().seconds - BesideTrackSeconds &&
           seconds <= track.points.back().seconds + BesideTrackSeconds;
}

} // namespace

std::optional<KxSubjectBox> KxDetectedBoxAt(const KxSubjectRecord& record, const KxSubjectOptions::Detections& options,
                                            std::int64_t frame, double x, double y)
{
    const KxSubjectRecord::Shot shot = record.ShotAt(frame);
    const auto around = static_cast<std::int64_t>(LinkedSeconds * record.source.frameRate);
    const KxDetectionTracks tracks(record, options, std::max(shot.first, frame - around),
                                   std::min(shot.end, frame + around + 1), KxDetectionTracks::Kinds::All);
    const double seconds = record.SecondsAt(frame);
    double nearest = 0.5;
    std::optional<KxSubjectBox> best;
    for (const KxDetectionTracks::Track& track : tracks.Tracks()) {
        const KxDetection found = track.At(seconds);
        const KxSubjectBox box{static_cast<double>(found.x), static_cast<double>(found.y),
                               static_cast<double>(found.width), static_cast<double>(found.height)};
        const double off = std::max(std::abs((x - box.x) / box.width - 0.5), std::abs((y - box.y) / box.height - 0.5));
        if (IsThere(track, seconds) && off <= nearest && box.width <= MostWidth) {
            nearest = off;
            best = box;
        }
    }
    return best;
}
