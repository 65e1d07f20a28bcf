#pragma once

#include <Apps/AutoReframe/Store/LibraryContents.h>
#include <KxCore/KxWorker.h>

#include <QObject>

#include <mutex>

class LibraryDatabase;
class QTimer;

/// The library's database behind a thread of its own. Changes are written in the order of the calls, at once, those
/// that have come meanwhile in one transaction. While the disk is full or another program holds the file, they are
/// kept and written again later. User-interface thread.
class LibraryStore : public QObject
{
    Q_OBJECT
public:
    /// Nothing is saved if `filePath` is empty.
    LibraryStore(QString filePath, QObject* parent);
    /// Waits until everything is written.
    ~LibraryStore() override;

    /// A program's choice of a file: in the folder that the environment variable KX_DATA names, otherwise in
    /// auto-reframe in the person's folder of data. Empty for "none".
    static QString ChooseFile();

    /// Starts to open the file; only the first call has an effect. sigOpened follows, for an empty path at once.
    void Open();
    /// Whether anything is saved.
    bool IsFile() const { return !m_filePath.isEmpty(); }
    bool IsOpen() const { return m_isOpen; }

    void SaveVideo(const StoredVideo& video);
    void RemoveVideo(const QString& path);
    void MoveVideo(const QString& from, const QString& to);
    void MarkUsed(const QString& path);
    /// The video is none of those used last any more.
    void ForgetUse(const QString& path);
    /// Encodes on the store's thread.
    void SaveThumbnail(const QString& path, const QImage& picture);
    void SaveEdits(const QString& path, const VideoEdits& edits);
    void SaveExport(const StoredExport& item);
    void SaveExportState(const StoredExport& item);
    void RemoveExport(qint64 key);
    void SaveSelection(const QStringList& paths);
    void SaveRecentFolders(const QStringList& paths);
    void SaveScroll(int scrollPx);
    void SaveBatchSettings(const QByteArray& settings);

    /// Calls back later, with a null picture if there is none; without a file at once.
    void ReadThumbnail(const QString& path, const std::function<void(const QImage& picture)>& ready);

Q_SIGNALS:
    /// Once. Empty contents if there is no file or it cannot be opened.
    void sigOpened(const StoredContents& contents);
    /// What the person must know: the file was damaged, cannot be opened or cannot be written.
    void sigNotice(const QString& message);
    /// Everything that was saved so far is in the file.
    void sigWritten();

private:
    using Change = std::function<KxError(LibraryDatabase& database)>;

    void Save(Change change);
    void SavePaths(const QString& name, const QStringList& paths);
    void ScheduleWriting();

    // On the store's thread.
    /// Returns what the person should know; empty if nothing.
    QString OpenDatabase(StoredContents& contents);
    void Write();
    KxError WriteAll(const std::vector<Change>& changes);
    void ReportWriting(const KxError& failure);

    KxWorker& Worker();
    void FinishOpening(const StoredContents& contents, const QString& notice);
    void FinishWriting(const KxError& failure);

    const QString m_filePath;
    bool m_isOpen = false;
    bool m_isStarted = false;
    bool m_isFailureReported = false;
    QTimer* const m_retry;
    // Of the store's thread.
    std::unique_ptr<LibraryDatabase> m_database;
    std::mutex m_mutex;
    // Guarded by the mutex.
    std::vector<Change> m_changes;
    bool m_isWritingScheduled = false;
    bool m_isWriting = false;
    // Null until the first job: starting a thread delays the first painting. Last: its thread uses the others.
    std::unique_ptr<KxWorker> m_worker;
};
