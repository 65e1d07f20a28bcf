#include <KxCore/KxOutputFile.h>

#include <KxCore/KxSystemError.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

#include <filesystem>

namespace
{

std::filesystem::path ToNative(const QString& path)
{
#if defined(_WIN32)
    return std::filesystem::path(path.toStdWString());
#else
    return std::filesystem::path(QFile::encodeName(path).toStdString());
#endif
}

QString CannotWrite(const QString& path, const QString& reason)
{
    return QStringLiteral("Cannot write %1: %2.").arg(path, reason);
}

QString Meaning(const std::error_code& problem)
{
    const QString text = KxSystemErrorText(problem);
    return text.isEmpty() ? QString::fromStdString(problem.message()).toLower() : text;
}

/// A name that cannot be is found out before the work, not after it. What is no file (a device …) stays.
KxError ReasonNotToReplace(const QString& path)
{
    std::error_code problem;
    const std::filesystem::file_status existing = std::filesystem::status(ToNative(path), problem);
    if (problem == std::errc::filename_too_long) {
        return Meaning(problem);
    }
    if (std::filesystem::is_directory(existing)) {
        return QStringLiteral("it is a folder");
    }
    const bool isOther = std::filesystem::exists(existing) && !std::filesystem::is_regular_file(existing);
    return isOther ? KxError(QStringLiteral("it is not a regular file")) : std::nullopt;
}

/// Reserves the name by an empty file; false when there is already something of that name, or it cannot be made.
bool Reserve(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::NewOnly);
}

QString Numbered(const QString& path, int number)
{
    const QFileInfo info(path);
    const QString suffix = info.suffix().isEmpty() ? QString() : QLatin1Char('.') + info.suffix();
    return info.dir().filePath(QStringLiteral("%1 (%2)%3").arg(info.completeBaseName()).arg(number).arg(suffix));
}

QString ReserveFreeName(const QString& path)
{
    if (Reserve(path)) {
        return path;
    }
    constexpr int lastNumber = 9999;
    for (int number = 2; number <= lastNumber; ++number) {
        const QString candidate = Numbered(path, number);
        if (Reserve(candidate)) {
            return candidate;
        }
        if (!QFileInfo::exists(candidate)) {
            break; // not taken, yet it cannot be made
        }
    }
    return {};
}

} // namespace

KxOutputFile::KxOutputFile(QString targetPath, QString temporaryPath)
    : m_targetPath(std::move(targetPath))
    , m_temporaryPath(std::move(temporaryPath))
{
}

KxOutputFile::~KxOutputFile()
{
    if (!m_temporaryPath.isEmpty()) {
        QFile::remove(m_temporaryPath);
    }
}

KxResult<std::unique_ptr<KxOutputFile>> KxOutputFile::Create(const QString& targetPath)
{
    using Created = KxResult<std::unique_ptr<KxOutputFile>>;
    const QFileInfo target(targetPath);
    const QFileInfo folder(target.absolutePath());
    if (!folder.exists()) {
        return Created::Failure(
            CannotWrite(targetPath, QStringLiteral("the folder %1 does not exist").arg(folder.filePath())));
    }
    if (!folder.isDir()) {
        return Created::Failure(CannotWrite(targetPath, QStringLiteral("%1 is not a folder").arg(folder.filePath())));
    }
    if (const KxError reason = ReasonNotToReplace(target.absoluteFilePath())) {
        return Created::Failure(CannotWrite(targetPath, *reason));
    }
    QTemporaryFile temporary(folder.filePath() + QStringLiteral("/.auto-reframe-XXXXXX.part"));
    temporary.setAutoRemove(false);
    if (!temporary.open()) {
        return Created::Failure(CannotWrite(targetPath, KxFileErrorText(temporary)));
    }
    // What a program writes for a person is as readable as any file of theirs; temporary files start private.
    temporary.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
    return std::unique_ptr<KxOutputFile>(new KxOutputFile(target.absoluteFilePath(), temporary.fileName()));
}

KxResult<QString> KxOutputFile::Commit(Existing existing)
{
    const QString path = existing == Existing::Replace ? m_targetPath : ReserveFreeName(m_targetPath);
    if (path.isEmpty()) {
        return KxResult<QString>::Failure(
            CannotWrite(m_targetPath, QStringLiteral("no free name was found in its folder")));
    }
    std::error_code problem;
    std::filesystem::rename(ToNative(m_temporaryPath), ToNative(path), problem);
    if (problem) {
        if (existing == Existing::AddNumber) {
            QFile::remove(path);
        }
        return KxResult<QString>::Failure(CannotWrite(path, Meaning(problem)));
    }
    m_temporaryPath.clear();
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
