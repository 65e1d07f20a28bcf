#pragma once

#include <KxSubject/Choice/KxFaceEvidence.h>
#include <KxSubject/Choice/KxMoverEvidence.h>

/// The weighted evidence of every signal in a record, along one axis.
class KXSUBJECT_API KxEvidence
{
public:
    /// `record` must outlive this.
    KxEvidence(const KxSubjectRecord& record, const KxSubjectOptions& options, KxAxis axis);

    struct Parts {
        KxSignalProfile motion;
        KxSignalProfile movers;
        KxSignalProfile saliency;
        KxSignalProfile faces;
        KxSignalProfile Sum() const;
    };
    /// For faces, looks in the shot from frame `first` up to, but without, `end` count.
    Parts At(std::size_t sample, std::int64_t first, std::int64_t end) const;

private:
    const KxSubjectRecord& m_record;
    KxSubjectOptions::Evidence m_weights;
    KxAxis m_axis;
    KxMoverEvidence m_movers;
    KxFaceEvidence m_faces;
};
