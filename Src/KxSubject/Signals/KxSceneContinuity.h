#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxSubjectOptions.h>

#include <opencv2/core/mat.hpp>
#include <opencv2/core/matx.hpp>

#include <cstdint>
#include <deque>
#include <optional>

/// Whether two pictures of a video show one scene although they differ: because the camera moved, the light changed,
/// or something large moved in front of the background. The earlier picture is moved as the camera was, or not at all;
/// then enough of its textured blocks are found in the later one, in nearly the same place. Their brightness and
/// contrast do not matter, so neither does a light that reaches only a part of the scene. The two ends of a dissolve
/// have no more blocks in common than chance gives. Keeps the small pictures of the last seconds.
class KXSUBJECT_API KxSceneContinuity
{
public:
    KxSceneContinuity(const KxSubjectOptions::Scenes& options, cv::Size picturePx);

    /// `grey` is CV_8UC1 of the size given at the start. `camera` maps the sample before onto this one; nothing if it
    /// is unknown. `frame` grows from call to call.
    void AddSample(std::int64_t frame, const cv::Mat& grey, const std::optional<cv::Matx33d>& camera);

    /// 0 to 1: the part of the textured blocks that the samples around these two frames have in common; 0 if the first
    /// one is no longer kept. `content` is the part of the picture inside black bars.
    double InCommon(std::int64_t first, std::int64_t last, const cv::Rect& content) const;

private:
    struct Sample {
        std::int64_t frame;
        cv::Mat grey;                      ///< reduced
        std::optional<cv::Matx33d> camera; ///< in the reduced picture's pixels
    };
    std::optional<cv::Matx33d> Camera(std::size_t first, std::size_t last) const;
    double PartFound(std::size_t first, std::size_t last, const cv::Matx33d& movement, const cv::Rect& content) const;

    KxSubjectOptions::Scenes m_options;
    cv::Size m_sizePx; ///< of the reduced pictures
    double m_scale;
    std::deque<Sample> m_samples; ///< the newest last
};
