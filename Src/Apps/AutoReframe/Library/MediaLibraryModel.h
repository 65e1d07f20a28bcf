#pragma once

#include <Apps/AutoReframe/Backend/MediaBackend.h>

#include <QAbstractListModel>
#include <QPixmap>

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
    };

    explicit MediaLibraryModel(QObject* parent);
    ~MediaLibraryModel() override;

    /// Adds a video that is not open yet at the end and returns its number.
    int Add(const QString& path);
    void SetMedia(int id, const MediaFile& media);
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
    /// Nothing while the video is not open.
    std::optional<MediaFile> MediaAt(const QModelIndex& index) const;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    struct Entry {
        int id = 0;
        QString path;
        std::optional<MediaFile> media;
        QPixmap thumbnail;
    };

    const Entry* EntryAt(const QModelIndex& index) const;
    Entry* EntryOf(int id);
    QVariant EntryData(const Entry& entry, int role) const;
    void NotifyChanged(int id);

    std::vector<Entry> m_entries;
    int m_lastId = 0;
};
