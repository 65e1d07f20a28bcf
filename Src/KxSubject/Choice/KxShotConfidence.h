#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/Choice/KxCentreScore.h>

/// How sure the choice for one shot is: 1 less the mean of two doubts, each between 0 and 1:
/// 1. the rival: the tallest evidence outside of the crop, relative to the tallest inside, and
/// 2. the disagreement: how far from the crop each signal alone would put it. Signals that agree are seldom wrong
///    together. From half an extent on it is another crop, and farther away is no worse.
/// Both are of the crop where the path puts it, so a path that stays behind is in doubt.
class KXSUBJECT_API KxShotConfidence
{
public:
    /// `score` must outlive this. `halfExtent`: of the crop.
    KxShotConfidence(const KxCentreScore& score, double halfExtent);

    /// The evidence that was scored in one sample, for a crop around `drawn`.
    void Add(double drawn, const KxSignalProfile& combined);
    /// The evidence of one signal, for a crop around `drawn`. A signal counts by its evidence.
    void AddSignal(double drawn, const KxSignalProfile& evidence);

    /// 0 to 1; 0 without evidence.
    float Value() const;

private:
    const KxCentreScore& m_score;
    double m_halfExtent;
    double m_inside = 0.0;    ///< the sum of the samples' tallest evidence inside the crop
    double m_outside = 0.0;   ///< the same outside
    double m_ofSignals = 0.0; ///< evidence of the single signals
    double m_apart = 0.0;     ///< the same times the distance of their own centres from the crop's, in half extents
};
