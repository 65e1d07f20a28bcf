#pragma once

#include <Apps/AutoReframe/Backend/ExportJob.h>

#include <QHash>
#include <QStringList>

/// A video of the library as it is saved. A plain record.
struct StoredVideo {
    QString path;
    qint64 fileBytes = 0;
    /// MediaBackend::ContentHash(); empty until the file was opened once.
    QByteArray contentHash;
    QSize resolution;
    KxRational frameRate;
    qint64 frameCount = 0;
};

/// An export of the queue as it is saved. A plain record.
struct StoredExport : ExportJob {
    enum class State {
        Waiting,
        Running,
        Done,
        Failed,
        Cancelled,
        Interrupted, ///< its run ended before the export did
    };

    /// Identifies the export in all runs; 0 in none.
    qint64 key = 0;
    State state = State::Waiting;
};

/// What a run begins with. A plain record.
struct StoredContents {
    /// In the order of the library.
    QList<StoredVideo> videos;
    /// By path, also of videos that are not in the library.
    QHash<QString, VideoEdits> edits;
    /// In the order of the queue.
    QList<StoredExport> exports;
    /// Paths of videos, the one that was used last first; some may have been removed from the library.
    QStringList recent;
    /// Folders that were imported, the one that was used last first.
    QStringList recentFolders;
    QStringList selection;
    int scrollPx = 0;
    /// What "Reframe All…" was asked for last; empty before the first time.
    QByteArray batchSettings;
};
