#include <Apps/AutoReframe/Library/MediaLibrary.h>

#include <Apps/AutoReframe/Backend/MediaBackendLoader.h>
#include <Apps/AutoReframe/Library/MediaCardDelegate.h>
#include <Apps/AutoReframe/Library/MediaLoader.h>

#include <QFileInfo>
#include <QGuiApplication>

MediaLibrary::MediaLibrary(MediaBackendLoader& backend, QObject* parent)
    : QObject(parent)
    , m_backend(backend)
    , m_model(this)
{
    connect(&m_backend, &MediaBackendLoader::sigFinished, this, &MediaLibrary::StartLoading);
}

MediaLibrary::~MediaLibrary()
{
    // Its thread uses the backend, which may be destroyed next.
    delete m_loader;
    for (const quint64 request : qAsConst(m_thumbnails)) {
        m_backend.IfLoaded()->CancelThumbnail(request);
    }
}

MediaLibraryModel& MediaLibrary::Model()
{
    return m_model;
}

void MediaLibrary::Import(const QStringList& paths)
{
    QModelIndexList imported;
    for (const QString& path : paths) {
        QModelIndex index = m_model.IndexOfPath(path);
        if (!index.isValid()) {
            const int id = m_model.Add(QFileInfo(path).absoluteFilePath());
            index = m_model.IndexOf(id);
            m_opening.insert(id);
            if (m_loader != nullptr) {
                m_loader->Open(id, m_model.PathAt(index));
            }
        }
        if (!imported.contains(index)) {
            imported += index;
        }
    }
    if (!imported.isEmpty()) {
        Q_EMIT sigImported(imported);
        m_backend.Start();
    }
}

void MediaLibrary::StartLoading()
{
    MediaBackend* const backend = m_backend.IfLoaded();
    if (backend == nullptr) {
        m_refused += m_backend.Error();
        for (const int id : qAsConst(m_opening)) {
            m_model.Remove(id);
        }
        m_opening.clear();
        ReportRefused();
        return;
    }
    m_loader = new MediaLoader(*backend, this);
    connect(m_loader, &MediaLoader::sigOpened, this, &MediaLibrary::HandleOpened);
    QList<int> waiting = m_opening.values();
    std::sort(waiting.begin(), waiting.end());
    for (const int id : qAsConst(waiting)) {
        m_loader->Open(id, m_model.PathAt(m_model.IndexOf(id)));
    }
}

void MediaLibrary::HandleOpened(int id, const KxResult<MediaFile>& media)
{
    if (!m_opening.remove(id)) {
        return;
    }
    if (media) {
        m_model.SetMedia(id, *media);
        RequestThumbnail(id, media->path);
        Q_EMIT sigOpened(id);
    } else {
        m_refused += media.Message();
        m_model.Remove(id);
    }
    ReportRefused();
}

void MediaLibrary::RequestThumbnail(int id, const QString& path)
{
    // That of the densest screen: windows move from screen to screen.
    const QSize roomPx = (QSizeF(MediaCardDelegate::PictureSize()) * qGuiApp->devicePixelRatio()).toSize();
    m_thumbnails[id] = m_backend.IfLoaded()->RequestThumbnail(path, roomPx, [this, id](const QImage& picture) {
        m_thumbnails.remove(id);
        m_model.SetThumbnail(id, QPixmap::fromImage(picture));
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
        if (m_thumbnails.contains(id)) {
            m_backend.IfLoaded()->CancelThumbnail(m_thumbnails.take(id));
        }
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
