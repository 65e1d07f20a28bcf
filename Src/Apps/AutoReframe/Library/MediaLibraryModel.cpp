#include <Apps/AutoReframe/Library/MediaLibraryModel.h>

#include <Apps/AutoReframe/Library/MediaText.h>
#include <KxCore/KxFrameTime.h>
#include <KxCore/KxSystemFile.h>

#include <KxWidgets/KxToolTipHelper.h>

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace
{

/// Enough for some screens full of cards on a dense screen.
constexpr int ThumbnailsKb = 64 * 1024;

} // namespace

MediaLibraryModel::MediaLibraryModel(QObject* parent)
    : QAbstractListModel(parent)
    , m_thumbnails(ThumbnailsKb)
{
}

MediaLibraryModel::~MediaLibraryModel() = default;

int MediaLibraryModel::Add(const QString& path)
{
    const int row = Count();
    // The drop place appears with the first video.
    beginInsertRows(QModelIndex(), row, m_entries.empty() ? 1 : row);
    MediaFile media;
    media.path = path;
    m_entries.push_back({++m_lastId, State::Opening, KxSystemFile::Identity(path), media});
    endInsertRows();
    return m_lastId;
}

QList<int> MediaLibraryModel::AddStored(const QList<MediaFile>& videos)
{
    QList<int> ids;
    if (videos.isEmpty()) {
        return ids;
    }
    const int row = Count();
    beginInsertRows(QModelIndex(), row, row + videos.size() - (m_entries.empty() ? 0 : 1));
    for (const MediaFile& media : videos) {
        m_entries.push_back({++m_lastId, State::Stored, media.path, media});
        ids += m_lastId;
    }
    endInsertRows();
    return ids;
}

void MediaLibraryModel::SetMedia(int id, const MediaFile& media)
{
    if (Entry* const entry = EntryOf(id)) {
        const QString path = entry->media.path;
        entry->media = media;
        entry->media.path = path;
        entry->state = State::Open;
        NotifyChanged(id);
    }
}

void MediaLibraryModel::SetMissing(int id, bool isMissing)
{
    Entry* const entry = EntryOf(id);
    if (entry != nullptr && entry->state == (isMissing ? State::Stored : State::Missing)) {
        entry->state = isMissing ? State::Missing : State::Stored;
        NotifyChanged(id);
    }
}

void MediaLibraryModel::SetPath(int id, const QString& path)
{
    if (Entry* const entry = EntryOf(id)) {
        entry->media.path = path;
        entry->identity = KxSystemFile::Identity(path);
        entry->state = entry->state == State::Missing ? State::Stored : entry->state;
        NotifyChanged(id);
    }
}

void MediaLibraryModel::SetThumbnail(int id, const QPixmap& thumbnail)
{
    m_wanted.remove(id);
    if (EntryOf(id) != nullptr) {
        const int kilobytes = 1 + thumbnail.width() * thumbnail.height() * thumbnail.depth() / 8 / 1024;
        m_thumbnails.insert(id, new QPixmap(thumbnail), kilobytes);
        NotifyChanged(id, {ThumbnailRole});
    }
}

void MediaLibraryModel::Remove(int id)
{
    const QModelIndex index = IndexOf(id);
    if (!index.isValid()) {
        return;
    }
    const int row = index.row();
    beginRemoveRows(QModelIndex(), row, Count() == 1 ? 1 : row);
    m_entries.erase(m_entries.begin() + row);
    m_thumbnails.remove(id);
    m_wanted.remove(id);
    endRemoveRows();
}

int MediaLibraryModel::Count() const
{
    return static_cast<int>(m_entries.size());
}

bool MediaLibraryModel::IsDropPlace(const QModelIndex& index) const
{
    return index.isValid() && index.row() == Count();
}

QModelIndex MediaLibraryModel::IndexOf(int id) const
{
    for (int row = 0; row < Count(); ++row) {
        if (m_entries[static_cast<size_t>(row)].id == id) {
            return index(row);
        }
    }
    return {};
}

QModelIndex MediaLibraryModel::IndexOfPath(const QString& path) const
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    const QString identity = KxSystemFile::Identity(path);
    for (int row = 0; row < Count(); ++row) {
        const Entry& entry = m_entries[static_cast<size_t>(row)];
        if (entry.identity == identity || entry.media.path == absolute) {
            return index(row);
        }
    }
    return {};
}

int MediaLibraryModel::IdAt(const QModelIndex& index) const
{
    const Entry* const entry = EntryAt(index);
    return entry != nullptr ? entry->id : -1;
}

QString MediaLibraryModel::PathAt(const QModelIndex& index) const
{
    const Entry* const entry = EntryAt(index);
    return entry != nullptr ? entry->media.path : QString();
}

std::optional<MediaFile> MediaLibraryModel::MediaAt(const QModelIndex& index) const
{
    const Entry* const entry = EntryAt(index);
    return entry != nullptr && entry->state == State::Open ? std::optional<MediaFile>(entry->media) : std::nullopt;
}

MediaFile MediaLibraryModel::FactsAt(const QModelIndex& index) const
{
    const Entry* const entry = EntryAt(index);
    return entry != nullptr ? entry->media : MediaFile();
}

MediaLibraryModel::State MediaLibraryModel::StateAt(const QModelIndex& index) const
{
    const Entry* const entry = EntryAt(index);
    return entry != nullptr ? entry->state : State::Opening;
}

int MediaLibraryModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() || m_entries.empty() ? 0 : Count() + 1;
}

QVariant MediaLibraryModel::data(const QModelIndex& index, int role) const
{
    if (role == IsDropPlaceRole) {
        return IsDropPlace(index);
    }
    if (IsDropPlace(index)) {
        return role == Qt::DisplayRole ? tr("Drop videos here") : QVariant();
    }
    const Entry* const entry = EntryAt(index);
    return entry != nullptr ? EntryData(*entry, role) : QVariant();
}

QVariant MediaLibraryModel::EntryData(const Entry& entry, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
        return QFileInfo(entry.media.path).fileName();
    case Qt::ToolTipRole:
        return KxToolTipHelper::AsPlainText(
            entry.state == State::Missing
                ? tr("%1 was not found. Right-click to find it.").arg(QDir::toNativeSeparators(entry.media.path))
                : QDir::toNativeSeparators(entry.media.path));
    case Qt::AccessibleDescriptionRole:
    case DetailsRole:
        return DetailsOf(entry);
    case LengthRole:
        return entry.media.frameCount > 0 ? KxFrameTime::LengthText(entry.media.frameCount, entry.media.frameRate)
                                          : QString();
    case ThumbnailRole:
        return ThumbnailOf(entry);
    case IsMissingRole:
        return entry.state == State::Missing;
    default:
        return {};
    }
}

QString MediaLibraryModel::DetailsOf(const Entry& entry)
{
    switch (entry.state) {
    case State::Opening:
        return tr("Opening…");
    case State::Missing:
        return tr("File not found");
    case State::Stored:
    case State::Open:
        return MediaText::Details(entry.media.resolution, entry.media.frameRate);
    }
    return {};
}

QPixmap MediaLibraryModel::ThumbnailOf(const Entry& entry) const
{
    if (const QPixmap* const thumbnail = m_thumbnails.object(entry.id)) {
        return *thumbnail;
    }
    if (entry.state != State::Opening && !m_wanted.contains(entry.id)) {
        m_wanted.insert(entry.id);
        Q_EMIT sigThumbnailWanted(entry.id);
    }
    return {};
}

Qt::ItemFlags MediaLibraryModel::flags(const QModelIndex& index) const
{
    if (EntryAt(index) == nullptr) {
        return Qt::NoItemFlags;
    }
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
}

const MediaLibraryModel::Entry* MediaLibraryModel::EntryAt(const QModelIndex& index) const
{
    const bool isEntry = index.isValid() && index.row() < Count();
    return isEntry ? &m_entries[static_cast<size_t>(index.row())] : nullptr;
}

MediaLibraryModel::Entry* MediaLibraryModel::EntryOf(int id)
{
    const auto found =
        std::find_if(m_entries.begin(), m_entries.end(), [id](const Entry& entry) { return entry.id == id; });
    return found != m_entries.end() ? &*found : nullptr;
}

void MediaLibraryModel::NotifyChanged(int id, const QVector<int>& roles)
{
    const QModelIndex changed = IndexOf(id);
    Q_EMIT dataChanged(changed, changed, roles);
}
