#pragma once

#include <Apps/AutoReframe/Exports/ExportItem.h>

#include <vector>

/// The planned exports of the queue in numbers. A plain record.
struct QueueSummary {
    int planned = 0;
    int active = 0;
    int done = 0;
    int failed = 0;
    int cancelled = 0;
    /// Those of the done ones that have doubtful shots which the person has not seen.
    int toLookAt = 0;
    /// Those of the done ones that lack some of the person's edits (ExportJob::missingEdits).
    int withoutEdits = 0;
    /// Of all that the queue was given since it was idle, in ten-thousandths.
    int progress = 0;
    /// Empty while there is too little progress for an estimate.
    std::optional<qint64> secondsLeft;

    /// Without progress and time left, which the queue adds.
    static QueueSummary Of(const std::vector<ExportItem>& items);
};

/// How much of a queue's work is done, in frames.
struct QueueWork {
    double done = 0.0;
    double all = 0.0;

    /// Adds a waiting, running or done export.
    void Add(const ExportItem& item);
    /// The rest takes as long for each frame as `activeMs` for what is done.
    std::optional<qint64> SecondsLeft(qint64 activeMs) const;
    int Progress() const;
};
