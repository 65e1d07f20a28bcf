#pragma once

#include <Apps/AutoReframe/Store/LibraryConnection.h>
#include <Apps/AutoReframe/Store/LibraryContents.h>
#include <Apps/AutoReframe/Store/LibraryRun.h>

/// The desktop program's library in a file: videos, what was decided about them, and the export queue. Used and
/// destroyed by the thread that opened it. Several programs may have the same file open.
///
/// The reason of a failure is a clause, for the end of a message.
class LibraryDatabase
{
public:
    /// Opens the file, or makes it and its folder. A file of an older version is copied ("library-version-1.db") and
    /// migrated. A damaged file is set aside and a new one begun, which Notice() says. Fails with a message for the
    /// person if the file cannot be used and is left as it is: no permission, not a regular file, a newer version.
    static KxResult<std::unique_ptr<LibraryDatabase>> Open(const QString& filePath);
    ~LibraryDatabase();
    LibraryDatabase(const LibraryDatabase&) = delete;
    LibraryDatabase& operator=(const LibraryDatabase&) = delete;

    /// What the person must know about the opening; empty if there is nothing.
    const QString& Notice() const { return m_notice; }
    LibraryConnection& Connection() { return m_connection; }

    /// Everything that a run begins with. Unfinished exports of a run that has ended become this run's and are
    /// Interrupted; those of a program that is still running are left out. Videos that were removed long ago are
    /// forgotten.
    KxResult<StoredContents> ReadContents();

    /// Adds the video after the others, or updates it.
    KxError SaveVideo(const StoredVideo& video);
    /// The video leaves the library; what was decided about it is kept for a while, in case it is imported again.
    KxError RemoveVideo(const QString& path);
    /// The video's file is now at `to`. What the library has at `to` is replaced.
    KxError MoveVideo(const QString& from, const QString& to);
    /// For the list of videos used last.
    KxError MarkUsed(const QString& path);
    KxError ForgetUse(const QString& path);
    KxError SaveThumbnail(const QString& path, const QByteArray& jpeg);
    /// Empty if there is none.
    KxResult<QByteArray> ReadThumbnail(const QString& path);
    /// Also for a video that is not in the library; it is then kept like one that was removed.
    KxError SaveEdits(const QString& path, const VideoEdits& edits);

    /// Adds the export after the others, or updates it.
    KxError SaveExport(const StoredExport& item);
    /// Updates everything but what is to be rendered. A waiting export is the last one from now on.
    KxError SaveExportState(const StoredExport& item);
    KxError RemoveExport(qint64 key);

    KxError SaveState(const QString& name, const QString& value);

    /// How many videos the list of those used last holds.
    static constexpr int MostRecent = 10;

private:
    LibraryDatabase(const QString& filePath, const QString& notice);
    KxError ReadVideos(StoredContents& contents);
    /// Writes only those that have changed: there may be thousands, and one changes at a time.
    KxError SaveEditPoints(const QString& path, const VideoEdits& edits);
    KxError ReadEdits(StoredContents& contents);
    KxError ReadRecent(StoredContents& contents);
    KxError ReadState(StoredContents& contents);
    KxError ReadExports(StoredContents& contents);
    KxError ClaimInterruptedExports();
    /// Those that this run, which has ended, rendered to the end but could not mark as done.
    KxError FinishCommittedExports(const QString& run);
    KxError ForgetRemovedVideos();

    const QString m_folder;
    const QString m_notice;
    LibraryConnection m_connection;
    LibraryRun m_run;
};
