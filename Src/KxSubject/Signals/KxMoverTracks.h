#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxCropGeometry.h>
#include <KxSubject/KxSignalProfile.h>
#include <KxSubject/KxSubjectOptions.h>

#include <opencv2/core/mat.hpp>
#include <opencv2/core/matx.hpp>

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

/// Associates what moves from sample to sample: the parts of each motion map are followed from where the camera and
/// their own speed carry them. What lasts and travels before its background is a subject, however small; noise, leaves
/// and parallax do neither, however large. What one part is hangs on the height at which the map is cut: it is cut at
/// several levels, the parts of each are followed by themselves, and each level has its share of the say.
class KXSUBJECT_API KxMoverTracks
{
public:
    explicit KxMoverTracks(const KxSubjectOptions::Movers& options);

    /// The next sample's motion map (CV_32FC1, of the size that the first one had) and its time. `camera` maps the
    /// sample before onto this one; none ends every track, for the scene is another.
    void AddMap(double timeSeconds, const cv::Mat& map, const std::optional<cv::Matx33d>& camera);

    /// Ends the tracks still open. Call once, after the last map.
    void Finish();

    /// In fractions of the map.
    struct Box {
        double x = 0.0;
        double y = 0.0;
        double width = 0.0;
        double height = 0.0;
    };
    /// A mover that was followed long enough to count.
    struct Mover {
        /// A box in 255ths of the map: hours of them are kept.
        using PackedBox = std::array<std::uint8_t, 4>;

        std::int32_t firstSample = 0;
        float confidence = 0.0F;      ///< 0 to 1, of being a subject
        std::vector<PackedBox> boxes; ///< one a sample; left, top, right, bottom

        Box At(std::size_t sample) const;
        bool Covers(std::size_t sample) const;
    };

    /// In the order of their first samples; whole only after Finish.
    const std::vector<Mover>& Movers() const { return m_movers; }

    /// Where the movers of a sample lie along an axis of the map. Valid after Finish.
    KxSignalProfile ProfileAt(std::size_t sample, KxAxis axis) const;

private:
    struct Blob {
        cv::Point2d centre;
        double area;
        cv::Rect box;
    };
    struct Track {
        cv::Point2d place;      ///< in the newest map: where it was seen, or where it is thought to be
        cv::Point2d background; ///< where its last place would lie, had it moved with the background alone
        cv::Point2d velocity;   ///< before the background, a sample
        cv::Point2d travel;     ///< before the background, since it began
        double area = 0.0;
        double firstSeconds = 0.0;
        double lastSeconds = 0.0; ///< when it was seen last
        int hits = 1;
        int misses = 0;
        Mover mover;
    };
    struct Peak {
        float value;
        cv::Point place;
    };
    std::vector<Peak> PeaksOf(const cv::Mat& map) const;
    /// The parts of the map that lie above one level's share of their peaks.
    std::vector<Blob> BlobsAt(int level, const cv::Mat& map, const std::vector<Peak>& peaks) const;
    void Carry(const cv::Matx33d& camera);
    /// Goes on with the tracks of one level.
    void Join(std::vector<Track>& open, const std::vector<Blob>& blobs);
    void Extend(Track& track, const Blob& blob) const;
    /// What speaks against their being one, least first; none where it is out of the question.
    std::optional<double> AssociationCost(const Track& track, const Blob& blob) const;
    Mover::PackedBox Packed(const cv::Rect& box) const;
    void End(Track& track);
    void EndAll();

    KxSubjectOptions::Movers m_options;
    cv::Size m_mapPx; ///< of the halved map
    std::int32_t m_sample = -1;
    double m_nowSeconds = 0.0;
    double m_gapSeconds = 0.0;              ///< since the sample before
    std::vector<std::vector<Track>> m_open; ///< by level
    std::vector<Mover> m_movers;
    std::int32_t m_longest = 0; ///< samples, of all movers
};
