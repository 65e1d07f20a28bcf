#pragma once

#include <Apps/AutoReframe/Backend/ExportJob.h>

/// An export whose crops are found when its turn comes. A plain record.
struct PlannedExport {
    QString path;
    ReframePlan plan;
    QString outputPath;
    /// Of the video; for estimates.
    qint64 frames = 0;
};

/// One export of the queue. A plain record.
struct ExportItem : ExportJob {
    enum class State {
        Waiting,
        Analyzing, ///< of a planned export: its crops are being found
        Running,   ///< being rendered
        Cancelling,
        Done,
        Failed,
        Cancelled,
        Interrupted, ///< of an earlier run, which ended before the export did
    };

    int id = 0;
    State state = State::Waiting;
    int progress = 0; ///< of the state, in ten-thousandths
    /// Of the rendering. Empty while there is too little progress for an estimate, and during the analysis: the
    /// rendering follows, so that its own time would contradict that of all exports.
    std::optional<qint64> secondsLeft;
    bool isPaused = false;

    bool IsFinished() const { return state == State::Done || state == State::Failed || state == State::Cancelled; }
    bool IsActive() const { return !IsFinished() && state != State::Interrupted; }
    /// Whether the queue works on it.
    bool IsInWork() const { return state == State::Analyzing || state == State::Running || state == State::Cancelling; }
};
