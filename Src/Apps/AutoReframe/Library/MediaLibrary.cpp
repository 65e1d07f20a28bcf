#include <Apps/AutoReframe/Library/MediaLibrary.h>

#include <Apps/AutoReframe/Backend/MediaBackendLoader.h>
#include <Apps/AutoReframe/Library/MediaCardDelegate.h>
#include <Apps/AutoReframe/Library/MediaLoader.h>
#include <Apps/AutoReframe/Store/LibraryStore.h>

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>

namespace
{

using State = MediaLibraryModel::State;

constexpr int MostRecent = 10;
constexpr int MostRecentFolders = 5;

StoredVideo ToStored(const MediaFile& media)
{
    return {media.path, media.fileBytes, media.contentHash, media.resolution, media.frameRate, media.frameCount};
}

MediaFile FromStored(const StoredVideo& video)
{
    MediaFile media;
    media.path = video.path;
    media.fileBytes = video.fileBytes;
    media.contentHash = video.contentHash;
    media.resolution = video.resolution;
    media.frameRate = video.frameRate;
    media.frameCount = video.frameCount;
    return media;
}

} // namespace

MediaLibrary::MediaLibrary(MediaBackendLoader& backend, LibraryStore& store, QObject* parent)
    : QObject(parent)
    , m_backend(backend)
    , m_store(store)
    , m_model(this)
{
    connect(&m_backend, &MediaBackendLoader::sigFinished, this, &MediaLibrary::StartLoading);
    connect(&m_store, &LibraryStore::sigOpened, this, &MediaLibrary::Restore);
    // Queued: the signal comes while a card is painted.
    connect(&m_model, &MediaLibraryModel::sigThumbnailWanted, this, &MediaLibrary::HandleThumbnailWanted,
            Qt::QueuedConnection);
}

MediaLibrary::~MediaLibrary()
{
    // Their threads use the backend, which may be destroyed next.
    delete m_loader;
    delete m_finder;
    for (const quint64 request : qAsConst(m_thumbnails)) {
        m_backend.IfLoaded()->CancelThumbnail(request);
    }
}

MediaLibraryModel& MediaLibrary::Model()
{
    return m_model;
}

void MediaLibrary::Restore(const StoredContents& contents)
{
    QList<MediaFile> videos;
    for (const StoredVideo& video : contents.videos) {
        videos += FromStored(video);
    }
    m_edits = contents.edits;
    m_recent = contents.recent;
    m_recentFolders = contents.recentFolders;
    const QList<int> ids = m_model.AddStored(videos);
    m_isRestored = true;
    Q_EMIT sigRestored(contents);
    if (m_finder != nullptr) {
        LookForFiles(ids);
    }
    const QStringList waiting = m_waiting;
    m_waiting.clear();
    Import(waiting);
}

void MediaLibrary::Import(const QStringList& paths)
{
    if (paths.isEmpty()) {
        return;
    }
    if (!m_isRestored) {
        m_waiting += paths;
        m_store.Open();
        return;
    }
    Skip(-m_skipped);
    ImportFiles(paths, Origin::Files);
    if (!m_folders.isEmpty()) {
        m_backend.Start();
        ImportFolders();
    }
}

void MediaLibrary::ImportFiles(const QStringList& paths, Origin origin)
{
    QModelIndexList imported;
    for (const QString& path : paths) {
        if (QFileInfo(path).isDir()) {
            AddFolder(path);
            continue;
        }
        QModelIndex index = m_model.IndexOfPath(path);
        if (!index.isValid()) {
            const int id = AddNew(QFileInfo(path).absoluteFilePath());
            index = m_model.IndexOf(id);
            if (origin == Origin::Folder) {
                m_ofFolders.insert(id);
            }
        } else if (m_model.StateAt(index) == State::Missing) {
            StartOpening(m_model.IdAt(index));
        }
        if (!imported.contains(index)) {
            imported += index;
            // A new one counts as used once it is open; one of a folder does not: the folder is offered again.
            if (origin == Origin::Files && !m_new.contains(m_model.IdAt(index))) {
                MarkUsed(m_model.PathAt(index));
            }
        }
    }
    if (!imported.isEmpty()) {
        Q_EMIT sigImported(imported);
        m_backend.Start();
    }
}

void MediaLibrary::AddFolder(const QString& path)
{
    m_folders += QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

void MediaLibrary::NoteFolder(const QString& folder, bool hasVideos)
{
    m_recentFolders.removeAll(folder);
    if (hasVideos) {
        m_recentFolders.prepend(folder);
        m_recentFolders = m_recentFolders.mid(0, MostRecentFolders);
    }
    m_store.SaveRecentFolders(m_recentFolders);
}

void MediaLibrary::Skip(int files)
{
    if (files != 0) {
        m_skipped += files;
        Q_EMIT sigSkipped(m_skipped);
    }
}

void MediaLibrary::ImportFolders()
{
    // They wait for the backend, which knows the names of video files.
    if (m_finder == nullptr) {
        return;
    }
    const QStringList patterns = m_backend.IfLoaded()->ImportPatterns().split(QLatin1Char(';'), Qt::SkipEmptyParts);
    for (const QString& folder : qAsConst(m_folders)) {
        m_finder->ListFiles(folder, patterns, [this, folder](const MediaFinder::Listed& listed) {
            NoteFolder(folder, !listed.files.isEmpty());
            if (listed.unnameableFiles > 0) {
                m_refused += tr("%n videos in %1 were left out: their names are not valid UTF-8. Rename them.", nullptr,
                                listed.unnameableFiles)
                                 .arg(QDir::toNativeSeparators(folder));
            } else if (listed.files.isEmpty()) {
                m_refused += tr("There are no videos in %1.").arg(QDir::toNativeSeparators(folder));
            }
            ReportRefused();
            Skip(listed.otherFiles);
            ImportFiles(listed.files, Origin::Folder);
        });
    }
    m_folders.clear();
}

int MediaLibrary::AddNew(const QString& path)
{
    const int id = m_model.Add(path);
    StoredVideo video;
    video.path = path;
    m_store.SaveVideo(video);
    m_new.insert(id);
    StartOpening(id);
    return id;
}

void MediaLibrary::Open(int id)
{
    if (m_model.StateAt(m_model.IndexOf(id)) != State::Open) {
        StartOpening(id);
        m_backend.Start();
    }
}

void MediaLibrary::StartOpening(int id)
{
    if (m_opening.contains(id)) {
        return;
    }
    m_opening.insert(id);
    if (m_loader != nullptr) {
        m_loader->Open(id, m_model.PathAt(m_model.IndexOf(id)));
    }
}

void MediaLibrary::StartLoading()
{
    MediaBackend* const backend = m_backend.IfLoaded();
    if (backend == nullptr) {
        m_refused += m_backend.Error();
        m_folders.clear();
        const QSet<int> opening = m_opening;
        m_opening.clear();
        for (const int id : opening) {
            HandleCannotOpen(id, QString());
        }
        ReportRefused();
        return;
    }
    m_loader = new MediaLoader(*backend, this);
    connect(m_loader, &MediaLoader::sigOpened, this, &MediaLibrary::HandleOpened);
    m_finder = new MediaFinder(*backend, this);
    connect(m_finder, &MediaFinder::sigFound, this, &MediaLibrary::HandleFound);
    QList<int> waiting = m_opening.values();
    std::sort(waiting.begin(), waiting.end());
    for (const int id : qAsConst(waiting)) {
        m_loader->Open(id, m_model.PathAt(m_model.IndexOf(id)));
    }
    QList<int> stored;
    for (int row = 0; row < m_model.Count(); ++row) {
        const QModelIndex index = m_model.index(row);
        if (m_model.StateAt(index) == State::Stored) {
            stored += m_model.IdAt(index);
        }
    }
    LookForFiles(stored);
    ImportFolders();
    const QSet<int> wanting = m_wantThumbnails;
    m_wantThumbnails.clear();
    for (const int id : wanting) {
        RequestThumbnail(id);
    }
}

void MediaLibrary::HandleOpened(int id, const KxResult<MediaFile>& media)
{
    if (!m_opening.remove(id)) {
        return;
    }
    if (media) {
        const bool isOfFolder = m_ofFolders.remove(id);
        const bool isOther = m_model.FactsAt(m_model.IndexOf(id)).contentHash != media->contentHash;
        m_model.SetMedia(id, *media);
        m_store.SaveVideo(ToStored(m_model.FactsAt(m_model.IndexOf(id))));
        if (m_new.remove(id) && !isOfFolder) {
            MarkUsed(m_model.PathAt(m_model.IndexOf(id)));
        }
        if (isOther) {
            RequestThumbnail(id);
        }
        Q_EMIT sigOpened(id);
    } else {
        if (m_new.contains(id)) {
            ForgetUse(m_model.PathAt(m_model.IndexOf(id)));
        }
        HandleCannotOpen(id, media.Message());
    }
    ReportRefused();
}

void MediaLibrary::HandleCannotOpen(int id, const QString& message)
{
    if (m_ofFolders.remove(id)) {
        Skip(1);
    } else if (!message.isEmpty()) {
        m_refused += message;
    }
    if (m_new.remove(id)) {
        m_store.RemoveVideo(m_model.PathAt(m_model.IndexOf(id)));
        m_model.Remove(id);
    } else {
        m_model.SetMissing(id, !QFileInfo::exists(m_model.PathAt(m_model.IndexOf(id))));
        Q_EMIT sigCannotOpen(id);
    }
}

QSize MediaLibrary::ThumbnailRoomPx()
{
    // That of the densest screen: windows move from screen to screen.
    return (QSizeF(MediaCardDelegate::PictureSize()) * qGuiApp->devicePixelRatio()).toSize();
}

void MediaLibrary::HandleThumbnailWanted(int id)
{
    m_store.ReadThumbnail(m_model.PathAt(m_model.IndexOf(id)), [this, id](const QImage& picture) {
        const QSize room = ThumbnailRoomPx();
        // One that was made for a screen of half the density would be blurred.
        if (picture.width() >= room.width() - 1 || picture.height() >= room.height() - 1) {
            m_model.SetThumbnail(id, QPixmap::fromImage(picture));
        } else {
            RequestThumbnail(id);
        }
    });
}

void MediaLibrary::RequestThumbnail(int id)
{
    const QModelIndex index = m_model.IndexOf(id);
    if (!index.isValid() || m_model.StateAt(index) == State::Missing || m_thumbnails.contains(id)) {
        return;
    }
    MediaBackend* const backend = m_backend.IfLoaded();
    if (backend == nullptr) {
        m_wantThumbnails.insert(id);
        return;
    }
    const QString path = m_model.PathAt(index);
    m_thumbnails[id] = backend->RequestThumbnail(path, ThumbnailRoomPx(), [this, id, path](const QImage& picture) {
        m_thumbnails.remove(id);
        m_model.SetThumbnail(id, QPixmap::fromImage(picture));
        m_store.SaveThumbnail(path, picture);
    });
}

void MediaLibrary::Remove(const QModelIndexList& videos)
{
    QList<int> ids;
    for (const QModelIndex& video : videos) {
        ids += m_model.IdAt(video);
    }
    for (const int id : qAsConst(ids)) {
        if (m_opening.remove(id) && m_loader != nullptr) {
            m_loader->Forget(id);
        }
        m_new.remove(id);
        m_ofFolders.remove(id);
        if (m_thumbnails.contains(id)) {
            m_backend.IfLoaded()->CancelThumbnail(m_thumbnails.take(id));
        }
        m_store.RemoveVideo(m_model.PathAt(m_model.IndexOf(id)));
        m_model.Remove(id);
    }
    ReportRefused();
}

void MediaLibrary::ReportRefused()
{
    if (m_opening.isEmpty() && !m_refused.isEmpty()) {
        const QStringList messages = m_refused;
        m_refused.clear();
        Q_EMIT sigRefused(messages);
    }
}

void MediaLibrary::MarkUsed(const QString& path)
{
    m_recent.removeAll(path);
    m_recent.prepend(path);
    m_recent = m_recent.mid(0, MostRecent);
    m_store.MarkUsed(path);
}

void MediaLibrary::ForgetUse(const QString& path)
{
    m_recent.removeAll(path);
    m_store.ForgetUse(path);
}

void MediaLibrary::SaveEdits(const QString& path, const VideoEdits& edits)
{
    m_edits.insert(path, edits);
    m_store.SaveEdits(path, edits);
}
