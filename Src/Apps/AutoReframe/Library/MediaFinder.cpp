#include <Apps/AutoReframe/Library/MediaFinder.h>

#include <KxCore/KxSystemFile.h>

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

#include <algorithm>

namespace
{

using Kind = MediaFinder::Found::Kind;

/// The paths of the files of a folder, by size.
QHash<qint64, QStringList> FilesOf(const QString& folder)
{
    QHash<qint64, QStringList> files;
    const QFileInfoList entries = QDir(folder).entryInfoList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
    for (const QFileInfo& entry : entries) {
        files[entry.size()] += entry.absoluteFilePath();
    }
    return files;
}

} // namespace

MediaFinder::MediaFinder(MediaBackend& backend, QObject* parent)
    : QObject(parent)
    , m_backend(backend)
{
}

MediaFinder::~MediaFinder() = default;

void MediaFinder::Look(const QList<Wanted>& videos)
{
    KxWorker::Job job;
    job.work = [this, videos](const KxCancelToken& cancel) {
        Folders folders;
        QList<Found> found;
        for (const Wanted& video : videos) {
            if (cancel.IsCancelled()) {
                return;
            }
            found += LookFor(video, folders);
        }
        QMetaObject::invokeMethod(
            this, [this, found] { Q_EMIT sigFound(found); }, Qt::QueuedConnection);
    };
    m_worker.Add(std::move(job));
}

MediaFinder::Found MediaFinder::LookFor(const Wanted& video, Folders& folders) const
{
    const QFileInfo info(video.path);
    if (info.isFile()) {
        const bool isKnown = video.fileBytes > 0;
        return {video.id, isKnown && info.size() == video.fileBytes ? Kind::Unchanged : Kind::Changed, video.path};
    }
    if (!video.contentHash.isEmpty()) {
        const auto listed = folders.find(video.folder);
        const auto files = listed != folders.end() ? listed : folders.insert(video.folder, FilesOf(video.folder));
        for (const QString& path : files->value(video.fileBytes)) {
            if (IsSame(video, path)) {
                return {video.id, Kind::Moved, path};
            }
        }
    }
    return {video.id, Kind::Missing, video.path};
}

bool MediaFinder::IsSame(const Wanted& video, const QString& path) const
{
    return !video.contentHash.isEmpty() && QFileInfo(path).size() == video.fileBytes &&
           m_backend.ContentHash(path) == video.contentHash;
}

void MediaFinder::Compare(const Wanted& video, const QString& path, const std::function<void(bool isSame)>& ready)
{
    KxWorker::Job job;
    job.work = [this, video, path, ready](const KxCancelToken&) {
        const bool isSame = IsSame(video, path);
        QMetaObject::invokeMethod(
            this, [ready, isSame] { ready(isSame); }, Qt::QueuedConnection);
    };
    m_worker.Add(std::move(job));
}

void MediaFinder::ListFiles(const QString& folder, const QStringList& patterns,
                            const std::function<void(const Listed& listed)>& ready)
{
    KxWorker::Job job;
    job.work = [this, folder, patterns, ready](const KxCancelToken& cancel) {
        Listed listed;
        QDirIterator entries(folder, QDir::Files, QDirIterator::Subdirectories);
        while (entries.hasNext() && listed.files.size() < MostFiles && !cancel.IsCancelled()) {
            const QString path = entries.next();
            if (QDir::match(patterns, entries.fileName())) {
                listed.files += path;
            } else {
                ++listed.otherFiles;
            }
        }
        listed.files.sort();
        const QStringList unnameable = KxSystemFile::UnnameableFiles(folder, KxSystemFile::Depth::Subfolders);
        listed.unnameableFiles =
            static_cast<int>(std::count_if(unnameable.begin(), unnameable.end(), [&patterns](const QString& path) {
                return QDir::match(patterns, QFileInfo(path).fileName());
            }));
        QMetaObject::invokeMethod(
            this, [ready, listed] { ready(listed); }, Qt::QueuedConnection);
    };
    m_worker.Add(std::move(job));
}
