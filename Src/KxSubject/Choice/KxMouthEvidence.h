#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/Choice/KxHeardSound.h>
#include <KxSubject/KxSubjectOptions.h>
#include <KxSubject/KxSubjectRecord.h>

#include <cstdint>
#include <vector>

/// Whether one person's mouth moves with the sound, at each level of a part of a video.
class KXSUBJECT_API KxMouthEvidence
{
public:
    /// From the level `first` on, as long as `sound`. `faces` are the person's, indices of KxSubjectRecord::faces.
    KxMouthEvidence(const KxSubjectRecord& record, const KxSubjectOptions::Speech& options, const KxHeardSound& sound,
                    std::int64_t first, const std::vector<std::size_t>& faces);

    /// Seconds in which the mouth was measured.
    double MeasuredSeconds() const;
    /// Whether the mouth was measured, at each level.
    const std::vector<bool>& Measured() const { return m_measured; }
    /// How much the mouth's ups and downs are those of the sound; positive: alike.
    const KxSeries::Values& Correlation() const { return m_correlation; }
    /// The logarithm of the mouth's movement. Not relative to the head's: who talks moves both.
    const KxSeries::Values& Activity() const { return m_activity; }
    /// For Viterbi: what speaks for this person at each level; 0 where the gate is shut.
    KxSeries::Values Emissions(const std::vector<bool>& gate) const;

private:
    /// Growing by frame, one a frame.
    std::vector<const KxMouthLook*> LooksOf(const KxSubjectRecord& record, std::int64_t first,
                                            const std::vector<std::size_t>& faces) const;
    void Sample(const std::vector<const KxMouthLook*>& looks, std::int64_t first, double frameRate);
    /// The ups and downs of the mouth, in local scores.
    KxSeries::Values Movement() const;
    void Correlate(const KxHeardSound& sound);
    /// The mouth's activity while nothing is heard; if there is always sound, its lowest activity. A chewing mouth has
    /// no other level.
    double ActivityAtRest(const std::vector<bool>& gate) const;

    KxSubjectOptions::Speech m_options;
    std::vector<bool> m_measured;
    KxSeries::Values m_mouth;
    KxSeries::Values m_head;
    KxSeries::Values m_opening; ///< summed up
    KxSeries::Values m_correlation;
    KxSeries::Values m_activity;
};
