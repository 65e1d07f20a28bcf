#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/Choice/KxSubjectTracker.h>

/// How sure the choice for one shot is, from
/// 1. the share of the evidence that the crop holds where the path puts it,
/// 2. the margin of the chosen sequence of positions over the best one that is clearly different: its crop is never
///    within half an extent of the chosen one, and
/// 3. how far from the crop each signal alone would put it: signals that agree are seldom wrong together. It includes
///    how far the path stays behind.
class KXSUBJECT_API KxShotConfidence
{
public:
    /// `score` must outlive this. `costPerPosition`: that of the tracker that chose.
    KxShotConfidence(const KxCentreScore& score, double halfExtent, double costPerPosition);

    struct Choice {
        double wanted; ///< the chosen centre
        double drawn;  ///< the path's centre
    };
    /// `combined`: the evidence that was scored.
    void Add(const Choice& choice, const KxSignalProfile& combined);
    /// The evidence of one signal, for a crop around `drawn`. A signal counts by its evidence.
    void AddSignal(double drawn, const KxSignalProfile& evidence);

    /// 0 to 1. `chosenTotal`: of the tracker that chose, over the same samples.
    float Value(double chosenTotal) const;

private:
    const KxCentreScore& m_score;
    double m_halfExtent;
    KxSubjectTracker m_others;
    double m_whole = 0.0;     ///< all evidence
    double m_inside = 0.0;    ///< that inside the crop
    double m_ofSignals = 0.0; ///< evidence of the single signals
    double m_apart = 0.0;     ///< the same times the distance of their own centres from the crop's, in half extents
};
