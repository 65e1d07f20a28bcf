#include <Apps/AutoReframe/Library/MediaLibrary.h>

#include <Apps/AutoReframe/Store/LibraryStore.h>

#include <QFileInfo>

namespace
{

using State = MediaLibraryModel::State;

} // namespace

MediaFinder::Wanted MediaLibrary::WantedOf(int id) const
{
    const MediaFile facts = m_model.FactsAt(m_model.IndexOf(id));
    return {id, facts.path, facts.fileBytes, facts.contentHash, QFileInfo(facts.path).absolutePath()};
}

void MediaLibrary::LookForFiles(const QList<int>& ids, const QString& folder)
{
    QList<MediaFinder::Wanted> videos;
    for (const int id : ids) {
        videos += WantedOf(id);
        if (!folder.isEmpty()) {
            videos.last().folder = folder;
        }
    }
    if (!videos.isEmpty()) {
        m_finder->Look(videos);
    }
}

void MediaLibrary::HandleFound(const QList<MediaFinder::Found>& found)
{
    for (const MediaFinder::Found& video : found) {
        const QModelIndex index = m_model.IndexOf(video.id);
        if (!index.isValid() || m_model.StateAt(index) == State::Open) {
            continue;
        }
        switch (video.kind) {
        case MediaFinder::Found::Kind::Unchanged:
            m_model.SetMissing(video.id, false);
            break;
        case MediaFinder::Found::Kind::Changed:
            m_model.SetMissing(video.id, false);
            StartOpening(video.id);
            break;
        case MediaFinder::Found::Kind::Moved:
            // A copy that is in the library itself is not the file that was moved.
            if (m_model.IndexOfPath(video.path).isValid()) {
                m_model.SetMissing(video.id, true);
            } else {
                MoveTo(video.id, video.path);
            }
            break;
        case MediaFinder::Found::Kind::Missing:
            m_model.SetMissing(video.id, true);
            break;
        }
    }
}

void MediaLibrary::FindAt(int id, const QString& path)
{
    m_finder->Compare(WantedOf(id), path, [this, id, path](bool isSame) {
        if (isSame) {
            MoveTo(id, path);
        } else {
            Q_EMIT sigOtherFile(id, path);
        }
    });
}

void MediaLibrary::MoveTo(int id, const QString& path)
{
    const QModelIndex index = m_model.IndexOf(id);
    if (!index.isValid()) {
        return;
    }
    const QModelIndex other = m_model.IndexOfPath(path);
    if (other.isValid() && other != index) {
        Remove({other});
    }
    const QString from = m_model.PathAt(m_model.IndexOf(id));
    m_store.MoveVideo(from, path);
    m_edits.insert(path, m_edits.take(from));
    if (const int recent = m_recent.indexOf(from); recent >= 0) {
        m_recent[recent] = path;
    }
    m_model.SetPath(id, path);
    StartOpening(id);
    QList<int> missing;
    for (int row = 0; row < m_model.Count(); ++row) {
        if (m_model.StateAt(m_model.index(row)) == State::Missing) {
            missing += m_model.IdAt(m_model.index(row));
        }
    }
    LookForFiles(missing, QFileInfo(path).absolutePath());
}
