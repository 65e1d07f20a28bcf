#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxFollowTrack.h>
#include <KxSubject/KxSubjectChoices.h>

#include <QByteArray>

#include <list>
#include <memory>
#include <mutex>

class KxCacheFolder;

/// The tracks of the choices followed last, so that another aspect ratio, speed or choice does not look for them again:
/// some in memory and, with a folder, more on the disk. Any thread.
class KXMODEL_API KxFollowTracks
{
public:
    /// About 1 kB for each second that is followed; more than a person points at.
    static constexpr std::size_t MostKept = 200;
    using Known = std::shared_ptr<const KxFollowTrack>;

    /// Null: in memory alone.
    explicit KxFollowTracks(std::shared_ptr<const KxCacheFolder> folder = nullptr);

    /// Of the video with the record `key` (KxRecordStore::KeyOf). Null without one, or with an empty key.
    Known Find(const QByteArray& key, const KxSubjectChoice& choice);
    void Add(const QByteArray& key, const KxSubjectChoice& choice, const KxFollowTrack& track);

private:
    struct Kept {
        QByteArray key;
        KxSubjectChoice choice;
        Known track;
    };

    Known FindInMemory(const QByteArray& key, const KxSubjectChoice& choice);
    Known FindOnDisk(const QByteArray& key, const KxSubjectChoice& choice);
    Known KeepInMemory(const QByteArray& key, const KxSubjectChoice& choice, KxFollowTrack track);

    const std::shared_ptr<const KxCacheFolder> m_folder; ///< may be null
    std::mutex m_mutex;
    std::list<Kept> m_kept; ///< guarded by the mutex; the one used last comes first
};
