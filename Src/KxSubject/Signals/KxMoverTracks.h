#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxSubjectOptions.h>
#include <KxSubject/KxSubjectRecord.h>

#include <opencv2/core/mat.hpp>
#include <opencv2/core/matx.hpp>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

/// Associates movers from sample to sample: segments of the motion maps are tracked, with positions predicted from the
/// camera's movement and their own. A track that lasts and travels relative to its background is a subject, however
/// small; noise, leaves and parallax do not, however large. Segmentation depends on the threshold, so each map is
/// segmented at several levels; every level tracks its own segments and has an equal weight in the evidence.
class KXSUBJECT_API KxMoverTracks
{
public:
    explicit KxMoverTracks(const KxSubjectOptions::Movers& options);

    /// Reserves address space for what so many samples can hold; see KxSignalRecorder::Reserve().
    void Reserve(std::size_t samples);

    /// The next sample's motion map (of KxMotionMap, all of one size) and its time. `camera` maps the previous sample
    /// onto this one, in pixels of the picture; without it every track ends, because the scene is another.
    void AddMap(double timeSeconds, const cv::Mat& map, const std::optional<cv::Matx33d>& camera);

    /// Ends the open tracks. The movers that were tracked long enough to count, in the order of their first samples.
    /// Call once, after the last map.
    std::vector<KxMover> Finish();

private:
    struct Blob {
        cv::Point2d centre;
        double area;
        cv::Rect box;
    };
    struct Track {
        cv::Point2d place;      ///< in the newest map: where it was detected or, if missed, predicted
        cv::Point2d background; ///< its last place, moved with the background alone
        cv::Point2d velocity;   ///< relative to the background, a sample
        cv::Point2d travel;     ///< relative to the background, since it began
        double area = 0.0;
        double firstSeconds = 0.0;
        double lastSeconds = 0.0; ///< of the last detection
        int hits = 1;
        int misses = 0;
        KxMover mover;
    };
    /// A mover that counts. A vector of boxes for each of them would take much more memory than the boxes, in hours of
    /// video.
    struct Ended {
        std::int32_t firstSample;
        float seconds;
        float travel;
        std::uint32_t boxes; ///< so many of m_endedBoxes, after those of the movers before
    };
    struct Peak {
        float value;
        cv::Point place;
    };
    std::vector<Peak> PeaksOf(const cv::Mat& map) const;
    /// The parts of the map that lie above one level's share of their peaks.
    std::vector<Blob> BlobsAt(int level, const cv::Mat& map, const std::vector<Peak>& peaks) const;
    void Predict(const cv::Matx33d& camera);
    /// Continues the tracks of one level.
    void Associate(std::vector<Track>& open, const std::vector<Blob>& blobs);
    void Extend(Track& track, const Blob& blob) const;
    /// Lower is better; nothing if the two cannot match.
    std::optional<double> AssociationCost(const Track& track, const Blob& blob) const;
    KxMover::PackedBox Packed(const cv::Rect& box) const;
    void End(Track& track);
    void EndAll();

    KxSubjectOptions::Movers m_options;
    cv::Size m_mapPx;
    std::int32_t m_sample = -1;
    double m_nowSeconds = 0.0;
    double m_gapSeconds = 0.0;              ///< since the sample before
    std::vector<std::vector<Track>> m_open; ///< by level
    std::vector<Ended> m_ended;
    std::vector<KxMover::PackedBox> m_endedBoxes;
};
