#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxSubjectOptions.h>
#include <KxSubject/KxSubjectRecord.h>

#include <cstdint>
#include <optional>
#include <vector>

/// When the object detector looks: at the start of each scene and from time to time. A look is expensive, so looks are
/// rarer while the large things stay where they are. A second person who moves needs as many looks as the first: what
/// follows one of them is corrected by them.
class KXSUBJECT_API KxLookSchedule
{
public:
    KxLookSchedule(const KxSubjectOptions::Detections& options, double frameRate);

    /// `isNewScene`: the sample at `frame` starts a scene. Frames grow from call to call.
    bool IsDue(std::int64_t frame, bool isNewScene) const;
    /// What the look found that was due.
    void Add(const KxDetectionLook& look, bool isNewScene);

private:
    KxSubjectOptions::Detections m_options;
    double m_frameRate;
    std::optional<std::int64_t> m_lastFrame;
    std::vector<KxDetection> m_found; ///< by the last look
    bool m_isSettled = false;         ///< two successive looks found the large things in the same places
};
