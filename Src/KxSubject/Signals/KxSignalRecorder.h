#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxSubjectModels.h>
#include <KxSubject/KxSubjectRecord.h>
#include <KxSubject/Shots/KxBarDetector.h>
#include <KxSubject/Signals/KxCameraMovement.h>
#include <KxSubject/Signals/KxFaceTracks.h>
#include <KxSubject/Signals/KxLookSchedule.h>
#include <KxSubject/Signals/KxMotionMap.h>
#include <KxSubject/Signals/KxMoverTracks.h>
#include <KxSubject/Signals/KxObjectDetector.h>
#include <KxSubject/Signals/KxSaliencyMap.h>
#include <KxSubject/Signals/KxSceneContinuity.h>

#include <optional>
#include <vector>

/// Runs the signals over a video's samples as they come and records their evidence: profiles of the samples, movers,
/// faces, bars. The motion of a sample is measured against both of its neighbours, so it is known one sample later.
/// Keeps two pictures, and small ones of the last seconds.
class KXSUBJECT_API KxSignalRecorder
{
public:
    KxSignalRecorder(const KxSubjectOptions& options, cv::Size picturePx, double frameRate,
                     const KxSubjectModels& models);

    /// Reserves memory for the samples of so many frames: one block, allocated early, does not fragment the memory in
    /// which pictures are allocated and freed.
    void Reserve(std::int64_t frameCount);

    /// The next sample. `picture` is CV_8UC3 (BGR) of the size given at the start; `frame` grows from call to call.
    void AddPicture(std::int64_t frame, const cv::Mat& picture);

    /// Measures the motion of the last sample and puts everything that was seen into the record. Call once, after the
    /// last picture.
    void Finish(KxSubjectRecord& record);

    /// See KxSceneContinuity; about the pictures so far.
    double InCommon(std::int64_t first, std::int64_t last) const
    {
        return m_scenes.InCommon(first, last, m_bars.Content());
    }

    bool IsObjectDetectorRefused() const { return m_isObjectDetectorRefused; }
    const KxFaceTracks& Faces() const { return m_faces; }

private:
    struct Picture {
        std::int64_t frame;
        cv::Mat grey;
        std::optional<cv::Matx33d> cameraHere; ///< from the picture before, in the whole picture's pixels
    };
    double SecondsAt(std::int64_t frame) const { return static_cast<double>(frame) / m_frameRate; }
    std::array<KxPackedProfile, 2> Profiles(const cv::Mat& map, const cv::Rect& region) const;
    std::optional<cv::Matx33d> CameraTo(const Picture& now) const;
    KxCropRect ContentShare() const;
    /// Looks for people and animals when it is due.
    void DetectObjects(std::int64_t frame, const cv::Mat& picture, bool isNewScene);
    /// `after` may be missing.
    void MeasureMotion(const Picture* after);

    KxSubjectOptions m_options;
    cv::Size m_picturePx;
    double m_frameRate;
    KxBarDetector m_bars;
    KxCameraMovement m_camera;
    KxSceneContinuity m_scenes;
    KxMotionMap m_motion;
    KxMoverTracks m_movers;
    KxSaliencyMap m_saliency;
    KxFaceTracks m_faces;
    std::optional<KxObjectDetector> m_objects;
    KxLookSchedule m_schedule;
    bool m_isObjectDetectorRefused;
    std::vector<KxDetectionLook> m_looks;
    std::vector<KxSignalSample> m_samples;
    std::optional<Picture> m_before; ///< the sample before the newest
    std::optional<Picture> m_newest;
};
