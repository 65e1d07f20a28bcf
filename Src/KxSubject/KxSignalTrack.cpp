#include "KxSignalTrack.h"

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <cmath>

KxSignalTrack::KxSignalTrack(const KxSubjectOptions& options, cv::Size picturePx, double frameRate,
                             const std::string& faceModelPath)
    : m_options(options)
    , m_picturePx(picturePx)
    , m_frameRate(frameRate)
    , m_bars(options.bars, picturePx)
    , m_motion(options.motion)
    , m_saliency(options.saliency)
    , m_faces(options.faces, KxFaceFinder(options.faces, faceModelPath, picturePx))
{
}

void KxSignalTrack::Reserve(std::int64_t frameCount)
{
    // A header may claim anything: more than four hours grow as they come.
    constexpr double mostSamples = 160000.0;
    const double samples = SecondsAt(frameCount) * m_options.sampling.samplesPerSecond + 1.0;
    m_samples.reserve(static_cast<std::size_t>(std::min(samples, mostSamples)));
}

void KxSignalTrack::AddPicture(std::int64_t frame, const cv::Mat& picture)
{
    cv::Mat grey;
    cv::cvtColor(picture, grey, cv::COLOR_BGR2GRAY);
    while (!m_recent.empty() && SecondsAt(frame - m_recent.front().frame) > m_options.motion.gapMaximumSeconds) {
        m_recent.pop_front();
    }
    const double tolerance = 0.25 / m_frameRate;
    const auto slot =
        static_cast<std::int64_t>(std::floor((SecondsAt(frame) + tolerance) * m_options.sampling.samplesPerSecond));
    if (slot >= m_nextSlot) {
        m_nextSlot = slot + 1;
        TakeSample(frame, picture, grey);
    }
    m_recent.push_back({frame, grey});
}

const KxSignalTrack::Picture* KxSignalTrack::MotionPartner(std::int64_t frame) const
{
    const auto off = [this, frame](const Picture& picture) {
        return std::abs(SecondsAt(frame - picture.frame) - m_options.motion.gapSeconds);
    };
    const auto best = std::min_element(m_recent.begin(), m_recent.end(),
                                       [&off](const Picture& a, const Picture& b) { return off(a) < off(b); });
    return best == m_recent.end() ? nullptr : &*best;
}

void KxSignalTrack::TakeSample(std::int64_t frame, const cv::Mat& picture, const cv::Mat& grey)
{
    m_bars.AddPicture(grey);
    const cv::Rect content = m_bars.Content();
    const double emptyFloor = m_options.evidence.emptyFloor;
    KxSignalSample sample;
    sample.frame = frame;
    const auto profiles = [&](const cv::Mat& map) {
        return std::array<KxPackedProfile, 2>{
            KxPackedProfile(KxSignalProfile::Of(map, content, m_picturePx, KxAxis::Across, emptyFloor)),
            KxPackedProfile(KxSignalProfile::Of(map, content, m_picturePx, KxAxis::UpDown, emptyFloor))};
    };
    sample.saliency = profiles(m_saliency.Of(grey(content)));
    if (const Picture* partner = MotionPartner(frame)) {
        sample.motion = profiles(m_motion.Between(partner->grey(content), grey(content)));
        sample.motionSince = partner->frame;
    }
    m_faces.AddPicture(SecondsAt(frame), picture, grey);
    m_samples.push_back(sample);
}

const KxSignalSample* KxSignalTrack::WithMotion(std::size_t sample, std::int64_t first, std::int64_t end) const
{
    const auto isGood = [first](const KxSignalSample& other) {
        return other.motionSince != KxSignalSample::NoMotion && other.motionSince >= first;
    };
    for (std::size_t i = sample; i < m_samples.size() && m_samples[i].frame < end; ++i) {
        if (isGood(m_samples[i])) {
            return &m_samples[i];
        }
    }
    for (std::size_t i = sample; i > 0 && m_samples[i - 1].frame >= first; --i) {
        if (isGood(m_samples[i - 1])) {
            return &m_samples[i - 1];
        }
    }
    return nullptr;
}

KxSignalProfile KxSignalTrack::EvidenceAt(std::size_t sample, std::int64_t first, std::int64_t end, KxAxis axis) const
{
    const KxSubjectOptions::Evidence& weights = m_options.evidence;
    const auto side = static_cast<std::size_t>(axis);
    KxSignalProfile evidence;
    if (const KxSignalSample* moving = WithMotion(sample, first, end)) {
        evidence.Add(moving->motion[side].Unpacked(), weights.motionWeight);
    }
    evidence.Add(m_samples[sample].saliency[side].Unpacked(), weights.saliencyWeight);
    evidence.Add(m_faces.ProfileAt(SecondsAt(m_samples[sample].frame), SecondsAt(first), SecondsAt(end - 1), axis,
                                   weights.emptyFloor, m_picturePx),
                 weights.faceWeight);
    return evidence;
}
