#include <KxSubject/Signals/KxSignalRecorder.h>

#include <KxSubject/Signals/KxMapProfile.h>

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <cmath>

namespace
{

constexpr double LongestGapSeconds = 0.6; ///< between two samples: beyond it a scene has changed too much to compare

/// The same movement for pixels that are counted from another corner.
cv::Matx33d From(cv::Point origin, const cv::Matx33d& movement)
{
    const cv::Matx33d there(1, 0, origin.x, 0, 1, origin.y, 0, 0, 1);
    const cv::Matx33d back(1, 0, -origin.x, 0, 1, -origin.y, 0, 0, 1);
    return back * movement * there;
}

} // namespace

KxSignalRecorder::KxSignalRecorder(const KxSubjectOptions& options, cv::Size picturePx, double frameRate,
                                   const KxSubjectModels& models)
    : m_options(options)
    , m_picturePx(picturePx)
    , m_frameRate(frameRate)
    , m_bars(options.bars, picturePx)
    , m_camera(options.camera)
    , m_scenes(options.scenes, picturePx)
    , m_motion(options.motion)
    , m_movers(options.movers)
    , m_saliency(options.saliency)
    , m_faces(options.faces, KxFaceFinder(options.faces, models.faces, picturePx))
    , m_objects(KxObjectDetector::Load(models.objectDetector))
    , m_schedule(options.detections, frameRate)
    , m_isObjectDetectorRefused(!m_objects && !models.objectDetector.empty())
{
}

void KxSignalRecorder::Reserve(std::int64_t frameCount)
{
    // A header may claim any length: beyond four hours, memory grows with the pictures.
    constexpr double mostSamples = 160000.0;
    const double samples = SecondsAt(frameCount) * m_options.sampling.samplesPerSecond + 1.0;
    const auto reserved = static_cast<std::size_t>(std::min(samples, mostSamples));
    m_samples.reserve(reserved);
    m_movers.Reserve(reserved);
}

std::array<KxPackedProfile, 2> KxSignalRecorder::Profiles(const cv::Mat& map, const cv::Rect& region) const
{
    const double emptyFloor = m_options.evidence.emptyFloor;
    return {KxPackedProfile(KxProfileOfMap(map, region, m_picturePx, KxAxis::Across, emptyFloor)),
            KxPackedProfile(KxProfileOfMap(map, region, m_picturePx, KxAxis::UpDown, emptyFloor))};
}

void KxSignalRecorder::AddPicture(std::int64_t frame, const cv::Mat& picture)
{
    Picture now{frame, {}, std::nullopt};
    cv::cvtColor(picture, now.grey, cv::COLOR_BGR2GRAY);
    m_bars.AddPicture(now.grey);
    now.cameraHere = CameraTo(now);
    m_scenes.AddSample(frame, now.grey, now.cameraHere);
    MeasureMotion(&now);

    const cv::Rect content = m_bars.Content();
    KxSignalSample sample;
    sample.frame = static_cast<std::int32_t>(frame);
    sample.saliency = Profiles(m_saliency.Of(now.grey(content)), content);
    m_samples.push_back(sample);
    if (!now.cameraHere) {
        m_faces.BeginScene();
    }
    m_faces.AddPicture(SecondsAt(frame), picture, now.grey);
    DetectObjects(frame, picture, !now.cameraHere);
    m_before = std::move(m_newest);
    m_newest = std::move(now);
}

void KxSignalRecorder::DetectObjects(std::int64_t frame, const cv::Mat& picture, bool isNewScene)
{
    if (!m_objects) {
        return;
    }
    if (m_schedule.IsDue(frame, isNewScene)) {
        m_looks.push_back({static_cast<std::int32_t>(frame), m_objects->Detect(picture)});
        m_schedule.Add(m_looks.back(), isNewScene);
    }
}

std::optional<cv::Matx33d> KxSignalRecorder::CameraTo(const Picture& now) const
{
    if (!m_newest || SecondsAt(now.frame - m_newest->frame) > LongestGapSeconds) {
        return std::nullopt;
    }
    const cv::Rect content = m_bars.Content();
    const std::optional<cv::Matx33d> movement = m_camera.Between(m_newest->grey(content), now.grey(content));
    return movement ? std::optional(From(-content.tl(), *movement)) : std::nullopt;
}

void KxSignalRecorder::MeasureMotion(const Picture* after)
{
    if (!m_newest) {
        return;
    }
    const cv::Rect content = m_bars.Content();
    std::vector<KxNeighbourPicture> neighbours;
    if (m_before && m_newest->cameraHere) {
        neighbours.push_back({m_before->grey(content), From(content.tl(), *m_newest->cameraHere)});
    }
    if (after != nullptr && after->cameraHere) {
        neighbours.push_back({after->grey(content), From(content.tl(), after->cameraHere->inv())});
    }
    const cv::Mat inside = m_motion.Of(m_newest->grey(content), neighbours);
    m_samples.back().motion = Profiles(inside, content);
    cv::Mat map(KxMotionMap::HalfOf(m_picturePx), CV_32FC1, cv::Scalar(0.0));
    inside.copyTo(map(cv::Rect(content.tl() / 2, inside.size())));
    m_movers.AddMap(SecondsAt(m_newest->frame), map, m_newest->cameraHere);
}

KxCropRect KxSignalRecorder::ContentShare() const
{
    const cv::Rect content = m_bars.Content();
    const auto width = static_cast<double>(m_picturePx.width);
    const auto height = static_cast<double>(m_picturePx.height);
    return {content.x / width, content.y / height, content.width / width, content.height / height};
}

void KxSignalRecorder::Finish(KxSubjectRecord& record)
{
    MeasureMotion(nullptr);
    m_before.reset();
    m_newest.reset();
    record.content = ContentShare();
    record.samples = std::move(m_samples);
    record.movers = m_movers.Finish();
    record.faces = m_faces.Finish();
    record.looks = std::move(m_looks);
}
