#pragma once

#include <KxCore/KxExport.h>

#include <KxCore/KxPartFile.h>
#include <KxCore/KxResult.h>

#include <QByteArray>

#include <memory>

/// A file that is written under a temporary name beside its target and renamed when it is complete and on the disk:
/// after a power cut there is the old file or the new one. Without Commit() the destructor removes it; the part of a
/// killed process is removed by the next writer in that folder.
class KXCORE_API KxOutputFile
{
public:
    enum class Existing {
        Replace,  ///< a file of the target's name is replaced
        AddNumber ///< a file of the target's name is kept and the new one is called "name (2).mp4"
    };

    /// Creates the temporary file, empty. The error message names the target and the reason (no such folder, no
    /// permission …).
    static KxResult<std::unique_ptr<KxOutputFile>> Create(const QString& targetPath);
    ~KxOutputFile();
    KxOutputFile(const KxOutputFile&) = delete;
    KxOutputFile& operator=(const KxOutputFile&) = delete;

    const QString& TemporaryPath() const { return m_part->Path(); }

    /// Gives the file its name and returns the full path. Blocks until the content is on the disk. Call once, with the
    /// file closed.
    KxResult<QString> Commit(Existing existing);

    /// The names that AddNumber tries: the target itself for 1, then "name (2).mp4" and so on.
    static QString NumberedPath(const QString& targetPath, int number);

    /// Creates, fills and commits at once. QSaveFile would not do: a killed process leaves its temporary file for ever,
    /// and it writes through symbolic links and does not sync the folder.
    static KxResult<QString> Write(const QString& targetPath, const QByteArray& content, Existing existing);

    /// For a process that was killed and may have committed its file before: the file that Commit() gave this target's
    /// name and that was written since this time, in milliseconds since 1970 UTC; empty if there is none.
    static QString FindCommitted(const QString& targetPath, Existing existing, qint64 sinceMs);

private:
    KxOutputFile(QString targetPath, std::unique_ptr<KxPartFile> part);

    const QString m_targetPath;
    std::unique_ptr<KxPartFile> m_part;
    bool m_isCommitted = false;
};
