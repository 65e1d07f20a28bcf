#include <KxModel/KxCacheFolder.h>

#include <KxCore/KxLog.h>
#include <KxCore/KxOutputFile.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace
{

/// More than the longest video gives, and what a QByteArray can hold.
constexpr qint64 MostFileBytes = qint64{1} << 30;

QLatin1String SuffixOf(KxCacheFolder::Kind kind)
{
    return kind == KxCacheFolder::Kind::Record ? QLatin1String(".record") : QLatin1String(".track");
}

void RemoveOldest(const QString& folder, qint64 mostBytes)
{
    QStringList names;
    for (const auto kind : {KxCacheFolder::Kind::Record, KxCacheFolder::Kind::Track}) {
        names += QLatin1Char('*') + SuffixOf(kind);
    }
    qint64 bytes = 0;
    const QFileInfoList files = QDir(folder).entryInfoList(names, QDir::Files, QDir::Time);
    for (const QFileInfo& file : files) {
        bytes += file.size();
        if (bytes > mostBytes) {
            QFile::remove(file.filePath());
        }
    }
}

} // namespace

KxCacheFolder::KxCacheFolder(qint64 mostBytes)
    : m_mostBytes(mostBytes)
{
}

void KxCacheFolder::SetPath(const QString& path)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_path = path;
}

QString KxCacheFolder::PathOf(Kind kind, const QByteArray& name) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_path.isEmpty() || name.isEmpty() ? QString()
                                              : m_path + QLatin1Char('/') + QString::fromLatin1(name) + SuffixOf(kind);
}

std::optional<QByteArray> KxCacheFolder::Read(Kind kind, const QByteArray& name) const
{
    QFile file(PathOf(kind, name));
    if (file.fileName().isEmpty() || file.size() > MostFileBytes || !file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    file.setFileTime(QDateTime::currentDateTimeUtc(), QFileDevice::FileModificationTime);
    return file.readAll();
}

void KxCacheFolder::Write(Kind kind, const QByteArray& name, const QByteArray& content) const
{
    const QString path = PathOf(kind, name);
    if (path.isEmpty() || content.size() > m_mostBytes) {
        return;
    }
    const QString folder = QFileInfo(path).path();
    QDir().mkpath(folder);
    const KxResult<QString> written = KxOutputFile::Write(path, content, KxOutputFile::Existing::Replace);
    if (!written) {
        KX_LOG_WARNING(written.Message());
        return;
    }
    RemoveOldest(folder, m_mostBytes);
}

void KxCacheFolder::Remove(Kind kind, const QByteArray& name) const
{
    const QString path = PathOf(kind, name);
    if (!path.isEmpty()) {
        QFile::remove(path);
    }
}
