#pragma once

#include <KxSubject/Choice/KxDetectionTracks.h>
#include <KxSubject/Choice/KxFaceEvidence.h>
#include <KxSubject/Choice/KxMoverEvidence.h>

/// The weighted evidence of every signal in a record, along one axis.
class KXSUBJECT_API KxEvidence
{
public:
    /// `record` must outlive this.
    KxEvidence(const KxSubjectRecord& record, const KxSubjectOptions& options, KxAxis axis);

    struct KXSUBJECT_API Parts {
        KxSignalProfile motion;
        KxSignalProfile movers;
        KxSignalProfile saliency;
        KxSignalProfile faces;
        KxSignalProfile detections;
        KxSignalProfile Sum() const;
        /// The part of `evidence` that is due to detections where `evidence` is made of the sum bin by bin.
        KxSignalProfile Detected(const KxSignalProfile& evidence) const;
    };

    /// The evidence in one shot: faces and detections of another one say nothing about it. Refers to this.
    class InShot
    {
    public:
        Parts At(std::size_t sample) const;

    private:
        friend class KxEvidence;
        InShot(const KxEvidence& whole, std::int64_t first, std::int64_t end);

        const KxEvidence& m_whole;
        std::int64_t m_first;
        std::int64_t m_end;
        KxDetectionTracks m_detections;
    };
    /// From frame `first` up to, but without, `end`.
    InShot Of(std::int64_t first, std::int64_t end) const { return {*this, first, end}; }

private:
    const KxSubjectRecord& m_record;
    KxSubjectOptions::Evidence m_weights;
    KxSubjectOptions::Detections m_detectionOptions;
    KxAxis m_axis;
    KxMoverEvidence m_movers;
    KxFaceEvidence m_faces;
};
