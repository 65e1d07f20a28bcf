#include <KxModel/KxCacheFolder.h>

#include <KxCore/KxLog.h>
#include <KxCore/KxOutputFile.h>
#include <KxCore/KxSystemError.h>
#include <KxCore/KxSystemFile.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <filesystem>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(KxCacheFolder)
};

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
    if (const KxError problem = WriteFile(path, content)) {
        KX_LOG_INFO(*problem);
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_problem = m_problem ? m_problem : problem;
    } else {
        RemoveOldest(QFileInfo(path).path(), m_mostBytes);
    }
}

KxError KxCacheFolder::WriteFile(const QString& path, const QByteArray& content) const
{
    const QString folder = QFileInfo(path).path();
    std::error_code problem;
    std::filesystem::create_directories(KxSystemFile::NativePath(folder), problem);
    if (problem) {
        return Texts::tr("Cannot make the cache folder %1: %2.").arg(folder, KxSystemErrorMeaning(problem));
    }
    const KxResult<QString> written = KxOutputFile::Write(path, content, KxOutputFile::Existing::Replace);
    return written ? std::nullopt : KxError(written.Message());
}

KxError KxCacheFolder::Problem() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_problem;
}

void KxCacheFolder::Remove(Kind kind, const QByteArray& name) const
{
    const QString path = PathOf(kind, name);
    if (!path.isEmpty()) {
        QFile::remove(path);
    }
}
