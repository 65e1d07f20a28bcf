#include <KxSubject/Choice/KxFaceEvidence.h>

#include <algorithm>

namespace
{

constexpr double WindowSeconds = 2.0; ///< each way: looks that count; in less, a face flickers

/// Of the picture's shorter side: faces of this width weigh nothing, and all they can.
constexpr double ZeroWeightShare = 0.05;
constexpr double FullWeightShare = 0.15;

} // namespace

KxFaceEvidence::KxFaceEvidence(const KxSubjectRecord& record, const KxSubjectOptions& options)
    : m_record(record)
    , m_agreeing(options.faces.agreeing)
    , m_emptyFloor(options.evidence.emptyFloor)
    , m_index(record.samples.size())
{
    const auto sampleAt = [&record](double seconds) {
        const auto at = std::lower_bound(
            record.samples.begin(), record.samples.end(), seconds,
            [&record](const KxSignalSample& sample, double time) { return record.SecondsAt(sample.frame) < time; });
        return static_cast<std::size_t>(at - record.samples.begin());
    };
    for (std::size_t i = 0; i < record.faces.size(); ++i) {
        const std::vector<KxFaceLook>& looks = record.faces[i].looks;
        m_index.Add(static_cast<std::uint32_t>(i), sampleAt(looks.front().timeSeconds - WindowSeconds),
                    sampleAt(looks.back().timeSeconds + WindowSeconds));
    }
}

double KxFaceEvidence::SizeWeight(const KxFaceLook& face) const
{
    const double share =
        static_cast<double>(face.width) / std::min(m_record.workingSizePx.width, m_record.workingSizePx.height);
    return std::clamp((share - ZeroWeightShare) / (FullWeightShare - ZeroWeightShare), 0.0, 1.0);
}

KxFaceEvidence::Detections KxFaceEvidence::DetectionsOf(const KxFaceTrack& track, double fromSeconds,
                                                        double toSeconds) const
{
    Detections detections;
    const auto isBefore = [](const KxFaceLook& look, double time) { return look.timeSeconds < time; };
    for (auto look = std::lower_bound(track.looks.begin(), track.looks.end(), fromSeconds, isBefore);
         look != track.looks.end() && look->timeSeconds <= toSeconds; ++look) {
        ++detections.looks;
        if (look->IsFace()) {
            ++detections.hits;
            const std::array<double, 4> box{static_cast<double>(look->x), static_cast<double>(look->y),
                                            static_cast<double>(look->width), static_cast<double>(look->height)};
            std::transform(box.begin(), box.end(), detections.sum.begin(), detections.sum.begin(), std::plus<>());
            detections.weight += SizeWeight(*look);
        }
    }
    return detections;
}

KxSignalProfile KxFaceEvidence::ProfileAt(std::size_t sample, std::int64_t first, std::int64_t end, KxAxis axis) const
{
    const double time = m_record.SecondsAt(m_record.samples[sample].frame);
    const double from = std::max(m_record.SecondsAt(first), time - WindowSeconds);
    const double to = std::min(m_record.SecondsAt(end - 1), time + WindowSeconds);
    const bool across = axis == KxAxis::Across;
    const KxIntSize picturePx = m_record.workingSizePx;
    const int lengthPx = across ? picturePx.width : picturePx.height;
    const int areaPx = picturePx.width * picturePx.height;
    KxSignalProfile faces;
    for (const std::uint32_t i : m_index.Near(sample)) {
        const KxFaceTrack& track = m_record.faces[i];
        if (track.looks.front().timeSeconds > to || track.looks.back().timeSeconds < from) {
            continue;
        }
        const Detections detections = DetectionsOf(track, from, to);
        if (detections.hits <= m_agreeing) {
            continue;
        }
        std::array<double, 4> face = detections.sum;
        std::for_each(face.begin(), face.end(), [&detections](double& side) { side /= detections.hits; });
        const double area = face[2] * face[3] / areaPx;
        const double begin = (across ? face[0] : face[1]) / lengthPx;
        faces.Add(begin, begin + (across ? face[2] : face[3]) / lengthPx, detections.weight / detections.looks * area);
    }
    KxSignalProfile scaled;
    scaled.Add(faces, 1.0 / (static_cast<double>(faces.Sum()) + m_emptyFloor));
    return scaled;
}
