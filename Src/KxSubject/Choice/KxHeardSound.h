#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/Choice/KxSeries.h>
#include <KxSubject/KxSubjectOptions.h>
#include <KxSubject/KxSubjectRecord.h>

#include <cstdint>

/// The sound of a part of a video: when it is loud enough for speech, and its ups and downs.
class KXSUBJECT_API KxHeardSound
{
public:
    /// From the level `first` up to, but without, `end`; some seconds around it are the measure of what is loud.
    /// What is not known counts as silence.
    KxHeardSound(const KxSubjectRecord& record, const KxSubjectOptions::Speech& options, std::int64_t first,
                 std::int64_t end);

    /// Whether there is sound in the part.
    bool IsKnown() const { return !m_scores.empty(); }
    /// KxSeries::LocalScores of the loudness, one a level.
    const KxSeries::Values& Scores() const { return m_scores; }
    /// Whether somebody may speak, at each level. Open in music, too.
    const std::vector<bool>& Gate() const { return m_gate; }

private:
    KxSeries::Values m_scores;
    std::vector<bool> m_gate;
};
