#pragma once

#include <Apps/AutoReframe/Backend/MediaBackend.h>

#include <QAbstractListModel>
#include <QCache>
#include <QPixmap>
#include <QSet>

#include <vector>

/// The videos of the library, in the order of their import. If there are any, one more row at the end is the place
/// where videos can be dropped; it cannot be selected. User-interface thread.
class MediaLibraryModel : public QAbstractListModel
{
    Q_OBJECT
public:
    enum Role {
        DetailsRole = Qt::UserRole, ///< "1920 × 1080 · 30 fps", or "Opening…"
        LengthRole,                 ///< "00:42"; empty until known
        ThumbnailRole,              ///< QPixmap, null until there is one
        IsDropPlaceRole,            ///< bool
        IsMissingRole,              ///< bool: the file is not where it was
    };
    enum class State {
        Opening, ///< nothing is known yet
        Stored,  ///< known from an earlier run, not opened in this one
        Open,
        Missing, ///< as Stored, but the file is not where it was
    };

    explicit MediaLibraryModel(QObject* parent);
    ~MediaLibraryModel() override;

    /// Adds a video that is not open yet at the end and returns its number.
    int Add(const QString& path);
    /// Adds the videos of an earlier run, with all facts but the item; returns their numbers.
    QList<int> AddStored(const QList<MediaFile>& videos);
    /// The video is open; its path stays as it is.
    void SetMedia(int id, const MediaFile& media);
    /// Only from Stored to Missing and back; other changes are ignored.
    void SetMissing(int id, bool isMissing);
    /// The file is at another place. Makes a missing one a stored one.
    void SetPath(int id, const QString& path);
    void SetThumbnail(int id, const QPixmap& thumbnail);
    /// Unknown numbers are ignored.
    void Remove(int id);

    /// Videos, open or not.
    int Count() const;
    bool IsDropPlace(const QModelIndex& index) const;
    /// Invalid when there is none.
    QModelIndex IndexOf(int id) const;
    QModelIndex IndexOfPath(const QString& path) const;
    /// -1 for the drop place and for an invalid index.
    int IdAt(const QModelIndex& index) const;
    QString PathAt(const QModelIndex& index) const;
    /// Opening for the drop place and for an invalid index.
    State StateAt(const QModelIndex& index) const;
    /// Nothing while the video is not open.
    std::optional<MediaFile> MediaAt(const QModelIndex& index) const;
    /// What is known about the video, without an item while it is not open.
    MediaFile FactsAt(const QModelIndex& index) const;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

Q_SIGNALS:
    /// A card without its thumbnail is painted. Once, until SetThumbnail() was called.
    void sigThumbnailWanted(int id) const;

private:
    struct Entry {
        int id = 0;
        State state = State::Opening;
        /// What equal paths of one file have in common. Of a stored video the path, until the file is found elsewhere:
        /// asking the disk for all of them would take too long.
        QString identity;
        /// The path is always set.
        MediaFile media;
    };

    const Entry* EntryAt(const QModelIndex& index) const;
    Entry* EntryOf(int id);
    QVariant EntryData(const Entry& entry, int role) const;
    static QString DetailsOf(const Entry& entry);
    QPixmap ThumbnailOf(const Entry& entry) const;
    void NotifyChanged(int id, const QVector<int>& roles = {});

    std::vector<Entry> m_entries;
    int m_lastId = 0;
    /// By number; those painted last, by their kilobytes. Painting is const and changes which ones those are.
    mutable QCache<int, QPixmap> m_thumbnails;
    mutable QSet<int> m_wanted;
};
