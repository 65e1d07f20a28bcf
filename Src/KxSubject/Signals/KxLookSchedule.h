#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxSubjectOptions.h>
#include <KxSubject/KxSubjectRecord.h>

#include <cstdint>
#include <optional>

/// When the object detector looks: at the start of each scene and from time to time. A look is expensive, so looks are
/// rarer while the largest subject stays where it is.
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
    std::optional<KxDetection> m_largest; ///< subject that the last look found in this scene
    bool m_isSettled = false;             ///< two successive looks found it in one place
};
