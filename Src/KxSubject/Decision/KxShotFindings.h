#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/Decision/KxEvidenceCentres.h>
#include <KxSubject/Decision/KxSpeakerCentres.h>
#include <KxSubject/KxSubjectFindings.h>

#include <vector>

/// What was decided in one shot.
struct KxDecidedShot {
    const KxShotSpan& span;
    const KxShotEvidence& evidence;
    const std::vector<KxPathPoint>& wanted; ///< the centre at each sample
    const std::vector<double>& path;        ///< the centre at each frame, as the evidence wants it
    const KxSpeakerCentres& speaker;
};

/// Appends the shot and its samples to what explains the decision.
KXSUBJECT_API void KxAddFindings(KxSubjectFindings& findings, const KxDecidedShot& shot,
                                 const KxEvidenceCentres& centres, const KxCropGeometry& geometry);
