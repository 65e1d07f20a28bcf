#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/Choice/KxSpanIndex.h>
#include <KxSubject/KxCropGeometry.h>
#include <KxSubject/KxSubjectOptions.h>
#include <KxSubject/KxSubjectRecord.h>

/// Where the faces of a sample lie along an axis. Only a face on which several looks agree counts.
class KXSUBJECT_API KxFaceEvidence
{
public:
    /// `record` must outlive this.
    KxFaceEvidence(const KxSubjectRecord& record, const KxSubjectOptions& options);

    /// Only looks in the shot from frame `first` up to, but without, `end` count.
    KxSignalProfile ProfileAt(std::size_t sample, std::int64_t first, std::int64_t end, KxAxis axis) const;

private:
    /// Sums over the looks for one face between two times.
    struct Detections {
        int looks = 0;
        int hits = 0;
        std::array<double, 4> sum{}; ///< of the boxes: x, y, width, height
        double weight = 0.0;
    };
    Detections DetectionsOf(const KxFaceTrack& track, double fromSeconds, double toSeconds) const;
    double SizeWeight(const KxFaceLook& face) const;

    const KxSubjectRecord& m_record;
    int m_agreeing;
    double m_emptyFloor;
    KxSpanIndex m_index;
};
