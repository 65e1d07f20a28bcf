#include <KxSubject/Choice/KxEvidence.h>

KxEvidence::KxEvidence(const KxSubjectRecord& record, const KxSubjectOptions& options, KxAxis axis)
    : m_record(record)
    , m_weights(options.evidence)
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
    return sum;
}

KxEvidence::Parts KxEvidence::At(std::size_t sample, std::int64_t first, std::int64_t end) const
{
    const KxSignalSample& measured = m_record.samples[sample];
    const auto side = static_cast<std::size_t>(m_axis);
    Parts parts;
    parts.motion.Add(measured.motion[side].Unpacked(), m_weights.motionWeight);
    parts.movers.Add(m_movers.ProfileAt(sample, m_axis), m_weights.moverWeight);
    parts.saliency.Add(measured.saliency[side].Unpacked(),
                       m_axis == KxAxis::Across ? m_weights.saliencyWeightAcross : m_weights.saliencyWeightUpDown);
    parts.faces.Add(m_faces.ProfileAt(sample, first, end, m_axis), m_weights.faceWeight);
    return parts;
}
