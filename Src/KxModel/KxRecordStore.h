#pragma once

#include <KxCore/KxExport.h>

#include <QByteArray>
#include <QString>

#include <list>
#include <memory>
#include <mutex>

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
    /// The video has the facts of the record that Find returned.
    void Confirm(const QByteArray& key);
    /// Older records are dropped as far as the limits demand; one that is over a limit alone is not kept.
    void Add(const QByteArray& key, const std::shared_ptr<const KxSubjectRecord>& record);

    /// What was kept beside the record `key` under `name`, and only on the disk; empty without it.
    QByteArray FindBeside(const QByteArray& key, const QByteArray& name) const;
    /// Counts like a record for the limit of the disk. `name` is fit for a part of a file's name.
    void AddBeside(const QByteArray& key, const QByteArray& name, const QByteArray& bytes) const;
    void RemoveBeside(const QByteArray& key, const QByteArray& name) const;

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
    std::shared_ptr<const KxSubjectRecord> FindOnDisk(const QByteArray& key, const QString& folder);
    void WriteToDisk(const QString& path, const QByteArray& bytes) const;
    /// Empty without a folder.
    QString PathBeside(const QByteArray& key, const QByteArray& name) const;
    QString Folder() const;

    const Limits m_limits;
    mutable std::mutex m_mutex;
    QString m_folder;       ///< guarded by the mutex
    std::list<Kept> m_kept; ///< guarded by the mutex; the one used last comes first
};
