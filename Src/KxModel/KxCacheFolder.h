#pragma once

#include <KxCore/KxExport.h>

#include <KxCore/KxResult.h>

#include <QByteArray>
#include <QString>

#include <mutex>
#include <optional>

/// A bounded folder of files that can be made again. A failure only costs the time to make them. Any thread.
class KXMODEL_API KxCacheFolder
{
public:
    enum class Kind { Record, Track };

    /// The files used longest ago are removed as far as the limit demands.
    explicit KxCacheFolder(qint64 mostBytes);

    /// Where the files are from now on; made when the first one is written. Empty, as at first: nowhere.
    void SetPath(const QString& path);

    /// The content of a file, which counts as used now. `name` is fit for a part of a file's name; where it is empty,
    /// there is no file.
    std::optional<QByteArray> Read(Kind kind, const QByteArray& name) const;
    /// Not, if the file is over the limit alone.
    void Write(Kind kind, const QByteArray& name, const QByteArray& content) const;
    void Remove(Kind kind, const QByteArray& name) const;

    /// Why the first file that could not be written was not.
    KxError Problem() const;

private:
    KxError WriteFile(const QString& path, const QByteArray& content) const;
    /// Empty without a folder.
    QString PathOf(Kind kind, const QByteArray& name) const;

    const qint64 m_mostBytes;
    mutable std::mutex m_mutex;
    // Guarded by the mutex.
    QString m_path;
    mutable KxError m_problem;
};
