#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/Choice/KxSeries.h>
#include <KxSubject/KxSubjectOptions.h>

#include <cstddef>
#include <vector>

/// A person speaks from the step `first` up to, but without, `end`, or spoke last.
struct KxSpeakerRun {
    std::size_t person = 0;
    std::size_t first = 0;
    std::size_t end = 0;
};

/// Who speaks when, with as few changes as the evidence allows.
struct KXSUBJECT_API KxSpeakerRuns {
    /// `emissions` are each person's evidence at each step, where `gate` is open. The best sequence (Viterbi) of the
    /// people and of nobody among them; while nobody speaks, the one before stays, before the first one the first.
    /// Short runs are dropped. No runs if nobody speaks at all.
    KxSpeakerRuns(const std::vector<KxSeries::Values>& emissions, const std::vector<bool>& gate,
                  const KxSubjectOptions::Speech& options);

    std::vector<KxSpeakerRun> runs; ///< one after the other, from the first step to the last
    double margin = 0.0;            ///< mean evidence of who speaks, less that of the best other one
    double speechSeconds = 0.0;     ///< in which one of them speaks
};
