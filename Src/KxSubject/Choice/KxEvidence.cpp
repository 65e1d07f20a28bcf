#include <KxSubject/Choice/KxEvidence.h>

KxEvidence::KxEvidence(const KxSubjectRecord& record, const KxSubjectOptions& options, KxAxis axis)
    : m_record(record)
    , m_weights(options.evidence)
    , m_detectionOptions(options.detections)
    , m_axis(axis)
    , m_movers(record, options.movers)
    , m_faces(record, options)
{
}

KxSignalProfile KxEvidence::Parts::Sum() const
{
    KxSignalProfile sum = motion;
    sum.Add(movers, 1.0);
    sum.Add(saliency, 1.0);
    sum.Add(faces, 1.0);
    sum.Add(detections, 1.0);
    return sum;
}

KxSignalProfile KxEvidence::Parts::Detected(const KxSignalProfile& evidence) const
{
    const KxSignalProfile sum = Sum();
    KxSignalProfile detected;
    for (std::size_t bin = 0; bin < KxSignalProfile::Bins; ++bin) {
        if (detections.share[bin] > 0.0F) {
            detected.share[bin] = evidence.share[bin] * detections.share[bin] / sum.share[bin];
        }
    }
    return detected;
}

KxEvidence::InShot::InShot(const KxEvidence& whole, std::int64_t first, std::int64_t end)
    : m_whole(whole)
    , m_first(first)
    , m_end(end)
    , m_detections(whole.m_record, whole.m_detectionOptions, first, end)
{
}

KxEvidence::Parts KxEvidence::InShot::At(std::size_t sample) const
{
    const KxSignalSample& measured = m_whole.m_record.samples[sample];
    const KxSubjectOptions::Evidence& weights = m_whole.m_weights;
    const KxAxis axis = m_whole.m_axis;
    const auto side = static_cast<std::size_t>(axis);
    Parts parts;
    parts.motion.Add(measured.motion[side].Unpacked(), weights.motionWeight);
    parts.movers.Add(m_whole.m_movers.ProfileAt(sample, axis), weights.moverWeight);
    parts.saliency.Add(measured.saliency[side].Unpacked(), weights.saliencyWeight);
    parts.faces.Add(m_whole.m_faces.ProfileAt(sample, m_first, m_end, axis), weights.faceWeight);
    parts.detections.Add(m_detections.ProfileAt(m_whole.m_record.SecondsAt(measured.frame), axis),
                         weights.detectionWeight);
    return parts;
}
