#pragma once

#include <Apps/AutoReframe/Backend/MediaBackend.h>

/// An export whose crops are found when its turn comes. A plain record.
struct PlannedExport {
    QString path;
    ReframePlan plan;
    QString outputPath;
    /// Of the video; for estimates.
    qint64 frames = 0;
};

/// One export of the queue. A plain record.
struct ExportItem {
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
    /// Of a planned export complete from Running on.
    ExportRequest request;
    /// Set if the crops are found when its turn comes.
    std::optional<ReframePlan> plan;
    /// How long the video is; for estimates.
    qint64 frames = 0;
    /// Of a planned export: the first frames of the doubtful shots that the person has not seen, ascending.
    QList<uint> shotsToLookAt;
    int progress = 0; ///< of the state, in ten-thousandths
    /// Of the state. Empty while there is too little progress for an estimate.
    std::optional<qint64> secondsLeft;
    bool isPaused = false;
    QString filePath;     ///< the requested path; once done, that of the written file
    qint64 fileBytes = 0; ///< once done
    QString message;      ///< why it failed, or a warning about the written file

    bool IsFinished() const { return state == State::Done || state == State::Failed || state == State::Cancelled; }
    bool IsActive() const { return !IsFinished() && state != State::Interrupted; }
    /// Whether the queue works on it.
    bool IsInWork() const { return state == State::Analyzing || state == State::Running || state == State::Cancelling; }
};
