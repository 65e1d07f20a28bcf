#pragma once

#include <KxCore/KxCancelToken.h>
#include <KxCore/KxExport.h>

#include <KxSubject/Choice/KxCentreScore.h>
#include <KxSubject/Choice/KxChosenEvidence.h>
#include <KxSubject/Choice/KxEvidence.h>
#include <KxSubject/Decision/KxDecisionTask.h>
#include <KxSubject/Decision/KxShotSpan.h>
#include <KxSubject/Path/KxCropPath.h>

#include <optional>
#include <vector>

/// The evidence in one shot: the signals, and what the person makes of them.
struct KxShotEvidence {
    KxEvidence::InShot signals;
    KxChosenEvidence chosen;
};

/// Where the evidence puts the crop in a shot: scores of each sample, the best run through them, and a smooth path.
class KXSUBJECT_API KxEvidenceCentres
{
public:
    /// `task` must outlive this. `shots`: all of them.
    KxEvidenceCentres(const KxDecisionTask& task, const std::vector<KxShotSpan>& shots);
    KxEvidenceCentres(const KxEvidenceCentres&) = delete;
    KxEvidenceCentres& operator=(const KxEvidenceCentres&) = delete;

    /// Of the choices that apply to the shot, those remain that move the crop for the better (KxChosenEvidence).
    KxShotEvidence EvidenceIn(const KxShotSpan& shot, const KxChoiceRanges& choices, const KxCancelToken& cancel) const;
    /// The centre that the evidence asks for at each sample of the shot.
    std::vector<KxPathPoint> Wanted(const KxShotSpan& shot, const KxShotEvidence& evidence,
                                    const KxCancelToken& cancel) const;
    /// The centre at each frame of the shot, on a path along the wanted centres.
    std::vector<double> Drawn(const KxShotSpan& shot, const KxShotEvidence& evidence,
                              const std::vector<KxPathPoint>& wanted, const KxCancelToken& cancel) const;

    /// The evidence of all signals at a sample of the record, its peaks amplified, so that one subject outweighs what
    /// is spread wide.
    KxSignalProfile Combined(const KxEvidence::Parts& parts, const KxShotEvidence& evidence, std::size_t sample) const;
    const KxCentreScore& Score() const { return m_score; }

private:
    KxChosenEvidence ChosenIn(const KxChoiceRanges& choices) const;
    /// The record less what the person wants to avoid; nothing if there is no such choice.
    std::optional<KxSubjectRecord> WithoutAvoidedThings(const std::vector<KxShotSpan>& shots) const;
    KxCentreScore::Scores ScoresAt(const KxShotEvidence& evidence, std::size_t sample) const;
    /// The tracker's cost of a move by one width: where pictures are missing, fewer samples have to pay for a move.
    double MoveCost(const KxShotSpan& shot) const;
    KxSubjectOptions::Reaction ReactionIn(const KxShotEvidence& evidence) const;

    const KxDecisionTask& m_task;
    KxCentreScore m_score;
    std::optional<KxSubjectRecord> m_withoutAvoided;
    KxEvidence m_evidence;
};
