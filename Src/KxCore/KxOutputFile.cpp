#include <KxCore/KxOutputFile.h>

#include <KxCore/KxSystemError.h>
#include <KxCore/KxSystemFile.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <filesystem>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(KxOutputFile)
};

QString CannotWrite(const QString& path, const QString& reason)
{
    return Texts::tr("Cannot write %1: %2.").arg(path, reason);
}

/// Reports an impossible name before the work, not after it. Devices and the like are never replaced.
KxError ReasonNotToReplace(const QString& path)
{
    if (KxError reason = KxSystemFile::ReasonNotToName(path)) {
        return reason;
    }
    std::error_code problem;
    const std::filesystem::file_status existing = std::filesystem::status(KxSystemFile::NativePath(path), problem);
    if (std::filesystem::is_directory(existing)) {
        return Texts::tr("it is a folder");
    }
    const bool isOther = std::filesystem::exists(existing) && !std::filesystem::is_regular_file(existing);
    return isOther ? KxError(Texts::tr("it is not a regular file")) : std::nullopt;
}

/// Reserves the name by an empty file.
std::error_code Reserve(const QString& path)
{
    QFile file(path);
    errno = 0;
    if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
        return {};
    }
    const std::error_code problem = KxSystemFile::ErrorOf(file);
    return problem ? problem : std::make_error_code(std::errc::io_error);
}

constexpr int LastNumber = 9999;

KxResult<QString> ReserveFreeName(const QString& path)
{
    for (int number = 1; number <= LastNumber; ++number) {
        const QString candidate = KxOutputFile::NumberedPath(path, number);
        const std::error_code problem = Reserve(candidate);
        if (!problem) {
            return candidate;
        }
        if (KxSystemFile::ToGeneric(problem) != std::errc::file_exists) {
            return KxResult<QString>::Failure(CannotWrite(candidate, KxSystemErrorMeaning(problem)));
        }
    }
    return KxResult<QString>::Failure(CannotWrite(path, Texts::tr("no free name was found in its folder")));
}

} // namespace

QString KxOutputFile::NumberedPath(const QString& targetPath, int number)
{
    if (number == 1) {
        return targetPath;
    }
    const QFileInfo info(targetPath);
    const QString suffix = info.suffix().isEmpty() ? QString() : QLatin1Char('.') + info.suffix();
    return info.dir().filePath(
        QStringLiteral("%1 (%2)%3").arg(info.completeBaseName(), QString::number(number), suffix));
}

KxOutputFile::KxOutputFile(QString targetPath, std::unique_ptr<KxPartFile> part)
    : m_targetPath(std::move(targetPath))
    , m_part(std::move(part))
{
}

KxOutputFile::~KxOutputFile()
{
    if (!m_isCommitted) {
        // Some systems let nobody remove a file that is locked.
        const QString path = m_part->Path();
        m_part.reset();
        QFile::remove(path);
    }
}

KxResult<std::unique_ptr<KxOutputFile>> KxOutputFile::Create(const QString& targetPath)
{
    using Created = KxResult<std::unique_ptr<KxOutputFile>>;
    const QFileInfo target(targetPath);
    const QFileInfo folder(target.absolutePath());
    if (!folder.exists()) {
        return Created::Failure(
            CannotWrite(targetPath, Texts::tr("the folder %1 does not exist").arg(folder.filePath())));
    }
    if (!folder.isDir()) {
        return Created::Failure(CannotWrite(targetPath, Texts::tr("%1 is not a folder").arg(folder.filePath())));
    }
    if (const KxError reason = ReasonNotToReplace(target.absoluteFilePath())) {
        return Created::Failure(CannotWrite(targetPath, *reason));
    }
    KxPartFile::RemoveAbandoned(folder.filePath());
    std::error_code problem;
    std::unique_ptr<KxPartFile> part = KxPartFile::Create(folder.filePath(), problem);
    if (!part) {
        return Created::Failure(CannotWrite(targetPath, KxSystemErrorMeaning(problem)));
    }
    return std::unique_ptr<KxOutputFile>(new KxOutputFile(target.absoluteFilePath(), std::move(part)));
}

KxResult<QString> KxOutputFile::Commit(Existing existing)
{
    if (const std::error_code problem = m_part->Sync()) {
        return KxResult<QString>::Failure(CannotWrite(m_targetPath, KxSystemErrorMeaning(problem)));
    }
    KxResult<QString> path = existing == Existing::Replace ? m_targetPath : ReserveFreeName(m_targetPath);
    if (!path) {
        return path;
    }
    if (const KxError reason = KxSystemFile::Rename(m_part->Path(), *path)) {
        if (existing == Existing::AddNumber) {
            QFile::remove(*path);
        }
        return KxResult<QString>::Failure(CannotWrite(*path, *reason));
    }
    m_isCommitted = true;
    KxPartFile::SyncFolder(QFileInfo(*path).absolutePath());
    return path;
}

KxResult<QString> KxOutputFile::Write(const QString& targetPath, const QByteArray& content, Existing existing)
{
    KxResult<std::unique_ptr<KxOutputFile>> output = Create(targetPath);
    if (!output) {
        return KxResult<QString>::Failure(output.Message());
    }
    QFile file((*output)->TemporaryPath());
    const bool written = file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.flush();
    if (!written) {
        return KxResult<QString>::Failure(CannotWrite(targetPath, KxFileErrorText(file)));
    }
    file.close();
    return (*output)->Commit(existing);
}

QString KxOutputFile::FindCommitted(const QString& targetPath, Existing existing, qint64 sinceMs)
{
    const int lastNumber = existing == Existing::AddNumber ? LastNumber : 1;
    for (int number = 1; number <= lastNumber; ++number) {
        const QFileInfo file(NumberedPath(targetPath, number));
        if (!file.exists()) {
            break;
        }
        // An empty file is a name that was reserved for a file that never came.
        if (file.isFile() && file.size() > 0 && file.lastModified().toMSecsSinceEpoch() >= sinceMs) {
            return file.absoluteFilePath();
        }
    }
    return QString();
}
