#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/Choice/KxSpanIndex.h>
#include <KxSubject/KxCropGeometry.h>
#include <KxSubject/KxSubjectOptions.h>
#include <KxSubject/KxSubjectRecord.h>

/// Where the movers of a sample lie along an axis. Every mover weighs as the side of its box.
class KXSUBJECT_API KxMoverEvidence
{
public:
    /// `record` must outlive this.
    KxMoverEvidence(const KxSubjectRecord& record, const KxSubjectOptions::Movers& options);

    /// 0 to 1, of being a subject: noise, leaves and parallax neither last nor travel.
    static double ConfidenceIn(const KxMover& mover);
    KxSignalProfile ProfileAt(std::size_t sample, KxAxis axis) const;

private:
    const std::vector<KxMover>& m_movers;
    int m_levels;
    KxSpanIndex m_index;
};
