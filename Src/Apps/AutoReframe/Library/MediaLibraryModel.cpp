#include <Apps/AutoReframe/Library/MediaLibraryModel.h>

#include <Apps/AutoReframe/Library/MediaText.h>
#include <KxCore/KxFrameTime.h>

#include <KxWidgets/KxToolTipHelper.h>

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace
{

/// Equal for two paths of one file. For a missing file, its absolute path.
QString Identity(const QString& path)
{
    const QFileInfo file(path);
    return file.exists() ? file.canonicalFilePath() : file.absoluteFilePath();
}

} // namespace

MediaLibraryModel::MediaLibraryModel(QObject* parent)
    : QAbstractListModel(parent)
{
}

MediaLibraryModel::~MediaLibraryModel() = default;

int MediaLibraryModel::Add(const QString& path)
{
    const int row = Count();
    // The drop place appears with the first video.
    beginInsertRows(QModelIndex(), row, m_entries.empty() ? 1 : row);
    m_entries.push_back({++m_lastId, path, std::nullopt, QPixmap()});
    endInsertRows();
    return m_lastId;
}

void MediaLibraryModel::SetMedia(int id, const MediaFile& media)
{
    if (Entry* const entry = EntryOf(id)) {
        entry->media = media;
        NotifyChanged(id);
    }
}

void MediaLibraryModel::SetThumbnail(int id, const QPixmap& thumbnail)
{
    if (Entry* const entry = EntryOf(id)) {
        entry->thumbnail = thumbnail;
        NotifyChanged(id);
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
    const QString wanted = Identity(path);
    for (int row = 0; row < Count(); ++row) {
        if (Identity(m_entries[static_cast<size_t>(row)].path) == wanted) {
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
    return entry != nullptr ? entry->path : QString();
}

std::optional<MediaFile> MediaLibraryModel::MediaAt(const QModelIndex& index) const
{
    const Entry* const entry = EntryAt(index);
    return entry != nullptr ? entry->media : std::nullopt;
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
        return QFileInfo(entry.path).fileName();
    case Qt::ToolTipRole:
        return KxToolTipHelper::AsPlainText(QDir::toNativeSeparators(entry.path));
    case Qt::AccessibleDescriptionRole:
    case DetailsRole:
        return entry.media ? MediaText::Details(entry.media->resolution, entry.media->frameRate) : tr("Opening…");
    case LengthRole:
        return entry.media ? KxFrameTime::LengthText(entry.media->frameCount, entry.media->frameRate) : QString();
    case ThumbnailRole:
        return entry.thumbnail;
    default:
        return {};
    }
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

void MediaLibraryModel::NotifyChanged(int id)
{
    const QModelIndex changed = IndexOf(id);
    Q_EMIT dataChanged(changed, changed);
}
