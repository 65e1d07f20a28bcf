#pragma once

#include <Apps/AutoReframe/Library/MediaFinder.h>
#include <Apps/AutoReframe/Library/MediaLibraryModel.h>
#include <Apps/AutoReframe/Store/LibraryContents.h>

#include <QHash>
#include <QMap>
#include <QSet>

class LibraryStore;
class MediaBackendLoader;
class MediaLoader;

/// The videos behind the cards: imports files, removes them, finds those that were moved, and saves all of it.
/// User-interface thread.
class MediaLibrary : public QObject
{
    Q_OBJECT
public:
    /// Both are borrowed; files wait until the backend is loaded.
    MediaLibrary(MediaBackendLoader& backend, LibraryStore& store, QObject* parent);
    ~MediaLibrary() override;

    MediaLibraryModel& Model();

    /// Each file appears at once and is opened in the background; a file that the library already has is not added
    /// again. Of a folder, the videos in it and below it are imported, and its other files are only counted. Files that
    /// cannot be opened are removed and, unless a folder was asked for, reported together after the last one was tried.
    /// Until the store is open, files wait.
    void Import(const QStringList& paths);
    void Remove(const QModelIndexList& videos);
    /// Opens a stored video; sigOpened or sigCannotOpen follows.
    void Open(int id);
    /// Looks again for a missing video: at `path`, which the person has chosen. sigFileFound or sigOtherFile follows.
    void FindAt(int id, const QString& path);
    /// The video's file is at `path`, whatever it holds. Other missing videos are looked for in that folder.
    void MoveTo(int id, const QString& path);

    /// The list of videos used last, newest first.
    const QStringList& Recent() const { return m_recent; }
    /// The folders imported last, newest first.
    const QStringList& RecentFolders() const { return m_recentFolders; }
    void MarkUsed(const QString& path);
    VideoEdits EditsOf(const QString& path) const { return m_edits.value(path); }
    void SaveEdits(const QString& path, const VideoEdits& edits);

Q_SIGNALS:
    /// Each with the name and the reason.
    void sigRefused(const QStringList& messages);
    /// All videos that were passed to Import(), new or not.
    void sigImported(const QModelIndexList& videos);
    void sigOpened(int id);
    /// So many files of the folders that were imported last are no videos.
    void sigSkipped(int files);
    /// A stored video cannot be opened; it stays in the library.
    void sigCannotOpen(int id);
    /// The videos of the last run are in the model.
    void sigRestored(const StoredContents& contents);
    /// The file that the person has chosen for a missing video has another content.
    void sigOtherFile(int id, const QString& path);

private:
    void Restore(const StoredContents& contents);
    void StartLoading();
    void LookForFiles(const QList<int>& ids, const QString& folder = {});
    void HandleFound(const QList<MediaFinder::Found>& found);
    void HandleOpened(int id, const KxResult<MediaFile>& media);
    void HandleCannotOpen(int id, const QString& message);
    void HandleThumbnailWanted(int id);
    void RequestThumbnail(int id);
    void ReportRefused();
    void StartOpening(int id);
    int AddNew(const QString& path);
    void ForgetUse(const QString& path);
    enum class Origin { Files, Folder };
    void ImportFiles(const QStringList& paths, Origin origin);
    void ImportFolders();
    void Skip(int files);
    void AddFolder(const QString& path);
    /// Offers the folder again, if there are videos in it.
    void NoteFolder(const QString& folder, bool hasVideos);
    MediaFinder::Wanted WantedOf(int id) const;
    static QSize ThumbnailRoomPx();

    MediaBackendLoader& m_backend;
    LibraryStore& m_store;
    MediaLibraryModel m_model;
    MediaLoader* m_loader = nullptr;
    MediaFinder* m_finder = nullptr;
    bool m_isRestored = false;
    /// Given to Import() before the videos of the last run were there.
    QStringList m_waiting;
    /// Given to Import() and not listed yet.
    QStringList m_folders;
    QSet<int> m_opening;
    /// Those of m_opening that leave the library if they cannot be opened.
    QSet<int> m_new;
    /// Those of m_new that nobody asked for by name.
    QSet<int> m_ofFolders;
    int m_skipped = 0;
    QMap<int, quint64> m_thumbnails;
    /// Their thumbnails wait for the backend.
    QSet<int> m_wantThumbnails;
    QStringList m_refused;
    QStringList m_recent;
    QStringList m_recentFolders;
    QHash<QString, VideoEdits> m_edits;
};
