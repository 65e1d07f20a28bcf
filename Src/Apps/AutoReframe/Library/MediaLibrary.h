#pragma once

#include <Apps/AutoReframe/Library/MediaLibraryModel.h>

#include <QMap>
#include <QSet>

class MediaLoader;
class MediaBackendLoader;

/// The videos behind the cards: imports files and removes them. User-interface thread.
class MediaLibrary : public QObject
{
    Q_OBJECT
public:
    /// `backend` is borrowed; files wait until it is loaded.
    MediaLibrary(MediaBackendLoader& backend, QObject* parent);
    ~MediaLibrary() override;

    MediaLibraryModel& Model();

    /// Each file appears at once and is opened in the background; a file that the library already has is not added
    /// again. Files that cannot be opened are removed and reported together, after the last one was tried.
    void Import(const QStringList& paths);
    void Remove(const QModelIndexList& videos);

Q_SIGNALS:
    /// Each with the name and the reason.
    void sigRefused(const QStringList& messages);
    /// All videos that were passed to Import(), new or not.
    void sigImported(const QModelIndexList& videos);
    void sigOpened(int id);

private:
    void StartLoading();
    void HandleOpened(int id, const KxResult<MediaFile>& media);
    void RequestThumbnail(int id, const QString& path);
    void ReportRefused();

    MediaBackendLoader& m_backend;
    MediaLibraryModel m_model;
    MediaLoader* m_loader = nullptr;
    QSet<int> m_opening;
    QMap<int, quint64> m_thumbnails;
    QStringList m_refused;
};
