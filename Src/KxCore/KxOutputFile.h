#pragma once

#include <KxCore/KxExport.h>

#include <KxCore/KxResult.h>

#include <QByteArray>

#include <memory>

/// A file that is written under a temporary name beside its target and gets its own name only when it is whole.
/// Destroyed before that, it leaves nothing behind.
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

    const QString& TemporaryPath() const { return m_temporaryPath; }
    const QString& TargetPath() const { return m_targetPath; }

    /// Gives the file its name and returns the full path. Call once, with the file closed.
    KxResult<QString> Commit(Existing existing);

    /// Creates, fills and commits in one go.
    static KxResult<QString> Write(const QString& targetPath, const QByteArray& content, Existing existing);

private:
    KxOutputFile(QString targetPath, QString temporaryPath);

    QString m_targetPath;
    QString m_temporaryPath;
};
