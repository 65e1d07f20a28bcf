#pragma once

#include <Apps/AutoReframe/Library/MediaLibraryModel.h>

#include <QMap>
#include <QSet>

class MediaLoader;
class MediaBackendLoader;

/// The library behind the cards: takes files in and lets them go. User-interface thread.
class MediaLibrary : public QObject
{
    Q_OBJECT
public:
    /// `backend` is borrowed; files wait until it is there.
    MediaLibrary(MediaBackendLoader& backend, QObject* parent);
    ~MediaLibrary() override;

    MediaLibraryModel& Model();

    /// Takes files in; each appears at once and is opened in the background. One that is there already is not taken
    /// again. Files that cannot be opened go away again and are told together, once none of them is left to try.
    void Import(const QStringList& paths);
    void Remove(const QModelIndexList& videos);

Q_SIGNALS:
    /// Each with the name and the reason.
    void sigRefused(const QStringList& messages);
    /// The videos that an import named, whether new or not.
    void sigImported(const QModelIndexList& videos);
    /// A video was opened.
    void sigOpened(int id);

private:
    void StartLoading();
    void HandleOpened(int id, const KxResult<MediaFile>& media);
    void RequestThumbnail(int id, const QString& path);
    void TellRefused();

    MediaBackendLoader& m_backend;
    MediaLibraryModel m_model;
    MediaLoader* m_loader = nullptr;
    QSet<int> m_opening;
    QMap<int, quint64> m_thumbnails;
    QStringList m_refused;
};
