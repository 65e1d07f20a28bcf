#pragma once

#include <KxCore/KxExport.h>

#include <QString>
#include <QStringList>

#include <memory>
#include <system_error>

/// The hidden file ".auto-reframe-XXXXXX.part" that a writer fills before it gets its own name. A lock marks it as in
/// use for as long as this object lives; the system releases the lock of a process that was killed, so the next writer
/// in the folder recognises its part and removes it. Any thread.
class KXCORE_API KxPartFile
{
public:
    /// Creates an empty file that has the permissions which the umask leaves. Null on failure, with the reason in
    /// `problem`.
    static std::unique_ptr<KxPartFile> Create(const QString& folder, std::error_code& problem);
    /// Removes the parts in `folder` that no living process writes.
    static void RemoveAbandoned(const QString& folder);
    /// Writes to disk which names `folder` holds. Systems that cannot do this are left alone.
    static void SyncFolder(const QString& folder);

    /// Releases the lock; the file stays.
    ~KxPartFile();
    KxPartFile(const KxPartFile&) = delete;
    KxPartFile& operator=(const KxPartFile&) = delete;

    const QString& Path() const { return m_path; }
    /// Writes to disk what any handle of the file has written.
    std::error_code Sync();

private:
    struct Handle;
    static QString RandomPath(const QString& folder);
    static QStringList PartsIn(const QString& folder);
    KxPartFile(QString path, std::unique_ptr<Handle> handle);

    const QString m_path;
    const std::unique_ptr<Handle> m_handle;
};
