#pragma once

#include <Apps/AutoReframe/Backend/MediaBackend.h>

/// What the queue and the library's file know about an export. A plain record.
struct ExportJob {
    /// Of a planned export complete once its crops are found.
    ExportRequest request;
    /// Set if the crops are found when its turn comes.
    std::optional<ReframePlan> plan;
    /// How long the video is; for estimates.
    qint64 frames = 0;
    /// Of a planned export: the first frames of the doubtful shots that the person has not seen, ascending.
    QList<uint> shotsToLookAt;
    int missingEdits = 0; ///< of a planned export: see FoundCrops
    /// When the work on it began last, in milliseconds since 1970 UTC; 0 before.
    qint64 begunAtMs = 0;
    QString filePath;     ///< the requested path; once done, that of the written file
    qint64 fileBytes = 0; ///< once done
    QString message;      ///< why it failed, or a warning about the written file
};
