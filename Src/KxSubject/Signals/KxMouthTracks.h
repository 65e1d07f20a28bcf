#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxSubjectOptions.h>
#include <KxSubject/KxSubjectRecord.h>
#include <KxSubject/Signals/KxFaceTracks.h>
#include <KxSubject/Signals/KxMouthPatch.h>

#include <opencv2/core/mat.hpp>

#include <deque>
#include <map>
#include <optional>

/// The mouths of a video over time, while two or more faces are followed. Faces are looked at less often than mouths
/// move, so pictures are kept for a second, until the faces' places in them are known. Costs next to nothing
/// while there are fewer faces.
class KXSUBJECT_API KxMouthTracks
{
public:
    KxMouthTracks(const KxSubjectOptions::Mouths& options, double frameRate);

    /// `picture` is CV_8UC3 (BGR); `faces` were looked for in it already. Frames grow from call to call.
    void AddPicture(std::int64_t frame, const cv::Mat& picture, const KxFaceTracks& faces);

    /// Whether the next picture may be kept.
    bool IsWatching() const { return m_isWatching; }

    /// The mouths that were seen beside others for long enough, by face. Call once, after the last picture.
    std::vector<KxMouthTrack> Finish(const KxFaceTracks& faces);

    /// The box from brow to chin of a face at a time, smoothed; nothing if it is unknown there or too small.
    std::optional<cv::Rect2d> BoxAt(const KxFaceTrack& track, double seconds, bool isFromDetector) const;

private:
    struct Picture {
        std::int64_t frame;
        cv::Mat grey;
        std::size_t firstFace; ///< the first that can be in it
    };
    struct Last {
        std::int64_t frame;
        KxMouthPatch patch;
    };
    double SecondsAt(std::int64_t frame) const { return static_cast<double>(frame) / m_frameRate; }
    std::optional<cv::Rect2d> HitAt(const KxFaceTrack& track, double seconds) const;
    /// Of the boxes around a time.
    cv::Rect2d MeanBox(const KxFaceTrack& track, double seconds, double overSeconds) const;
    void Measure(const Picture& picture, const KxFaceTracks& faces);

    KxSubjectOptions::Mouths m_options;
    double m_frameRate;
    double m_lastSeveral = -1e9; ///< when more than one face was last followed
    bool m_isWatching = false;
    std::int64_t m_lastKept = -1;
    std::deque<Picture> m_pictures; ///< not measured yet
    std::map<std::size_t, Last> m_last;
    std::map<std::size_t, KxMouthTrack> m_mouths; ///< by face
};
