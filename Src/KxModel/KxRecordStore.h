#pragma once

#include <KxCore/KxExport.h>

#include <QByteArray>
#include <QString>

#include <list>
#include <memory>
#include <mutex>

class KxCacheFolder;
struct KxSubjectModels;
struct KxSubjectRecord;

/// The records of the videos analysed last, so that another aspect ratio, speed or choice needs no decoding: a few in
/// memory and, where a folder is set, more on the disk. A failure of the folder only costs the next analysis its time.
/// Any thread.
class KXMODEL_API KxRecordStore
{
public:
    struct Limits {
        qint64 memoryBytes = qint64{64} * 1024 * 1024; ///< some five hours of video
        qint64 diskBytes = qint64{512} * 1024 * 1024;
    };

    KxRecordStore();
    explicit KxRecordStore(const Limits& limits);
    ~KxRecordStore();

    /// Where records are kept from now on; made when the first one is written. Empty: memory alone.
    void SetFolder(const QString& path);
    /// The folder, for what else is found in a video.
    std::shared_ptr<const KxCacheFolder> Folder() const;

    /// A program's choice of a folder: `named`, otherwise the environment variable KX_CACHE, otherwise the
    /// configuration (key "Cache"), otherwise auto-reframe/records in the person's folder of caches. Empty for "none".
    static QString ChooseFolder(const QString& named = {});

    /// Identifies a video's file by its size and the content of parts of it (its first and last 64 kB and 62 places
    /// between). Empty if the file cannot be read.
    static QByteArray ContentHash(const QString& videoPath);

    /// What identifies a record: the size of the video's file and the content of parts of it (its first and last 64 kB
    /// and 62 places between), the models, and the version of the analysis. Empty if the file cannot be read.
    static QByteArray KeyOf(const QString& videoPath, const KxSubjectModels& models);

    /// Null without one. A file that is damaged or of another version is removed.
    std::shared_ptr<const KxSubjectRecord> Find(const QByteArray& key);
    /// The same, only if it was made in this program, or confirmed: then the video need not be opened to compare it.
    std::shared_ptr<const KxSubjectRecord> FindConfirmed(const QByteArray& key);
    /// Whether there is one that FindConfirmed would return.
    bool HasConfirmed() const;
    /// The video has the facts of the record that Find returned.
    void Confirm(const QByteArray& key);
    /// Older records are dropped as far as the limits demand; one that is over a limit alone is not kept.
    void Add(const QByteArray& key, const std::shared_ptr<const KxSubjectRecord>& record);

private:
    struct Kept {
        QByteArray key;
        std::shared_ptr<const KxSubjectRecord> record;
        qint64 bytes;
        bool isConfirmed;
    };
    void KeepInMemory(Kept added);
    /// The mutex is held. Null without one; otherwise it comes first from now on.
    Kept* FindInMemory(const QByteArray& key);
    std::shared_ptr<const KxSubjectRecord> FindOnDisk(const QByteArray& key);

    const qint64 m_memoryBytes;
    const std::shared_ptr<KxCacheFolder> m_folder;
    mutable std::mutex m_mutex;
    std::list<Kept> m_kept; ///< guarded by the mutex; the one used last comes first
};
