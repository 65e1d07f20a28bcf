#pragma once

#include <KxCore/KxCancelToken.h>
#include <KxCore/KxExport.h>

#include <KxSubject/Decision/KxDecisionTask.h>
#include <KxSubject/Decision/KxShotSpan.h>
#include <KxSubject/KxSubjectFindings.h>

#include <vector>

/// What one shot does about people who talk.
struct KxSpeakerCentres {
    KxSpeech speech = KxSpeech::None;
    /// On the one who speaks, one a frame, in fractions of the free axis; empty where the crop need not or cannot
    /// follow.
    std::vector<double> centres = {};
    int changes = 0;         ///< between people
    float confidence = 0.0F; ///< KxSpeakerChoice::Confidence()
};

/// `silent`: the centres that were chosen without the sound, one a frame; they stay if they hold who speaks. Once
/// cancelled, returns soon, with unfinished centres.
KXSUBJECT_API KxSpeakerCentres KxSpeakerCentresOf(const KxDecisionTask& task, const KxShotSpan& shot,
                                                  const std::vector<double>& silent, const KxCancelToken& cancel);
