#pragma once

#include "KxBarDetector.h"
#include "KxFaceTracks.h"
#include "KxMotionMap.h"
#include "KxSaliencyMap.h"

#include <deque>
#include <vector>

/// What was measured at one sampled picture, along both axes.
struct KxSignalSample {
    static constexpr std::int64_t NoMotion = -1; ///< no motion was measured

    std::int64_t frame = 0;
    std::int64_t motionSince = NoMotion;     ///< the earlier picture of the motion map
    std::array<KxPackedProfile, 2> motion;   ///< by axis
    std::array<KxPackedProfile, 2> saliency; ///< by axis
};

/// Runs the signals over a video's pictures as they come and keeps what they say: profiles of the samples, faces, bars.
/// Keeps no picture beyond the few that the next motion map needs.
class KXSUBJECT_API KxSignalTrack
{
public:
    KxSignalTrack(const KxSubjectOptions& options, cv::Size picturePx, double frameRate,
                  const std::string& faceModelPath);

    /// Makes room for the samples of so many frames at once: hours of them stay in one piece, which does not hold back
    /// the memory of pictures that come and go.
    void Reserve(std::int64_t frameCount);

    /// `picture` is CV_8UC3 (BGR) of the size given at the start; `frame` grows from call to call.
    void AddPicture(std::int64_t frame, const cv::Mat& picture);

    /// What all signals say at one sample, weighed, seen from the shot of frames `first` up to and without `end`.
    KxSignalProfile EvidenceAt(std::size_t sample, std::int64_t first, std::int64_t end, KxAxis axis) const;

    const std::vector<KxSignalSample>& Samples() const { return m_samples; }
    const KxFaceTracks& Faces() const { return m_faces; }
    cv::Rect Content() const { return m_bars.Content(); }

private:
    struct Picture {
        std::int64_t frame;
        cv::Mat grey;
    };
    double SecondsAt(std::int64_t frame) const { return static_cast<double>(frame) / m_frameRate; }
    void TakeSample(std::int64_t frame, const cv::Mat& picture, const cv::Mat& grey);
    const Picture* MotionPartner(std::int64_t frame) const;
    /// The nearest sample of the shot, later ones first, whose motion was measured inside the shot.
    const KxSignalSample* WithMotion(std::size_t sample, std::int64_t first, std::int64_t end) const;

    KxSubjectOptions m_options;
    cv::Size m_picturePx;
    double m_frameRate;
    KxBarDetector m_bars;
    KxMotionMap m_motion;
    KxSaliencyMap m_saliency;
    KxFaceTracks m_faces;
    std::vector<KxSignalSample> m_samples;
    std::deque<Picture> m_recent; ///< the newest last
    std::int64_t m_nextSlot = 0;  ///< samples are taken once in each slot of time
};
