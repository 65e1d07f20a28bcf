#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxSubjectChoices.h>
#include <KxSubject/KxSubjectOptions.h>
#include <KxSubject/KxSubjectRecord.h>

#include <cstdint>
#include <optional>
#include <vector>

/// Corrects a tracked box by what the object detector saw, so that a box that drifts off the thing returns to it.
/// Follows one thing in one direction of time.
class KXSUBJECT_API KxDetectionAnchor
{
public:
    /// `record` must outlive this.
    KxDetectionAnchor(const KxSubjectRecord& record, const KxSubjectOptions& options);

    struct Tracked {
        std::int64_t frame = 0;
        KxSubjectBox box;
        double confidence = 0.0;
    };
    /// 1. The detection that overlaps the tracked box most is the thing; at first by a half, later by less, since the
    ///    box may have drifted. What is much smaller or larger than a detection (a face) is never taken for one.
    /// 2. Where there is none, the tracker has lost it or stays on the background: it is the nearest detection of
    ///    about its size. If the look before did not find it, either, a confident tracker knows better.
    /// 3. What was beside the thing at the look before is neither.
    /// The correction is to the detection what the followed box was to the first one that it overlapped since it was
    /// drawn: a person may have drawn more or less. If these were nearly the same, the person meant the whole thing and
    /// the rest is the hand's error, so the correction is the detection itself. Nothing if there was no look at this
    /// frame, or no such detection.
    std::optional<KxSubjectBox> Correct(const Tracked& tracked);
    /// Whether the last correction may be another one of its kind: one more detection overlaps the tracked box as much
    /// as the thing's must, or the place of the thing at the look before as much, and more than what was taken for it.
    bool IsAmbiguous() const { return m_isAmbiguous; }
    /// The person has drawn the same thing again.
    void DrawAgain() { m_isRelated = false; }

    /// Whether two boxes overlap so much that correcting one by the other gains nothing.
    static bool AreSame(const KxSubjectBox& a, const KxSubjectBox& b, const KxSubjectOptions::Follow& options);

private:
    const KxDetectionLook* LookAt(std::int64_t frame) const;
    /// Whether a detection is rather one of what was beside the thing at the last look.
    bool WasBeside(const KxDetection& detection) const;
    const KxDetection* Overlapping(const KxDetectionLook& look, const KxSubjectBox& box) const;
    const KxDetection* FoundAgain(const KxDetectionLook& look) const;
    /// Whether what was tracked may be this one instead of `thing`.
    bool IsRival(const KxDetection& other, const KxDetection& thing, const KxSubjectBox& box) const;
    /// The box that is to a detection what the followed box was to the first one.
    KxSubjectBox Mapped(const KxDetection& detection) const;

    const KxSubjectRecord& m_record;
    KxSubjectOptions::Follow m_options;
    KxSubjectOptions::Detections m_linking;
    std::optional<KxDetection> m_thing; ///< as it was detected last
    std::int64_t m_frame = 0;           ///< when that was
    bool m_wasMissed = false;           ///< by the look before
    bool m_isAmbiguous = false;
    KxSubjectBox m_relation{0.0, 0.0, 1.0, 1.0}; ///< of the followed box to the detection, in its sides
    bool m_isRelated = false;                    ///< that is so of the box that was drawn last
    std::vector<KxDetection> m_bystanders;       ///< beside it at that time
};
