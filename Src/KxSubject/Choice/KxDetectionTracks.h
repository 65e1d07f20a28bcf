#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxCropGeometry.h>
#include <KxSubject/KxSubjectOptions.h>
#include <KxSubject/KxSubjectRecord.h>

#include <vector>

/// The things of one shot: detections of successive looks that are one thing. Who is worth the crop is weighed over the
/// whole shot, so that it does not change from look to look.
class KXSUBJECT_API KxDetectionTracks
{
public:
    enum class Kinds {
        Subjects, ///< what the crop follows by itself
        All
    };

    /// Of the looks from frame `first` up to, but without, `end`.
    KxDetectionTracks(const KxSubjectRecord& record, const KxSubjectOptions::Detections& options, std::int64_t first,
                      std::int64_t end, Kinds kinds = Kinds::Subjects);

    struct Track {
        struct Point {
            double seconds = 0.0;
            KxDetection box;
        };
        /// On the line from one look to the next; before the first and after the last one as there.
        KxDetection At(double seconds) const;

        std::vector<Point> points; ///< growing in time
        double weight = 0.0;       ///< its mean over the shot's looks, by score, size and place; 0 to about 0.25
    };
    const std::vector<Track>& Tracks() const { return m_tracks; }

    /// Where they are at a time, between looks on the line from one to the next. Weights count squared, so that one
    /// thing outweighs several lesser ones.
    KxSignalProfile ProfileAt(double seconds, KxAxis axis) const;

private:
    void Link(const KxDetectionLook& look, double seconds);
    void AddTrack(const Track& track, double seconds, KxAxis axis, KxSignalProfile& profile) const;

    KxSubjectOptions::Detections m_options;
    std::vector<Track> m_tracks;
};
