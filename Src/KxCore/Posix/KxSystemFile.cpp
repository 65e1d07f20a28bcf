#include <KxCore/KxSystemFile.h>

#include <KxCore/KxSystemError.h>

#include <QFile>
#include <QFileInfo>

#include <cerrno>

std::filesystem::path KxSystemFile::NativePath(const QString& path)
{
    return {QFile::encodeName(path).toStdString()};
}

QString KxSystemFile::Identity(const QString& path)
{
    const QFileInfo file(path);
    return file.exists() ? file.canonicalFilePath() : file.absoluteFilePath();
}

QStringList KxSystemFile::UnnameableFiles(const QString& folder, Depth depth)
{
    using Entries = std::filesystem::recursive_directory_iterator;
    QStringList files;
    std::error_code problem;
    Entries entries(NativePath(folder), std::filesystem::directory_options::skip_permission_denied, problem);
    for (; !problem && entries != Entries(); entries.increment(problem)) {
        if (depth == Depth::Folder) {
            entries.disable_recursion_pending();
        }
        const QByteArray native = QByteArray::fromStdString(entries->path().native());
        const QString path = QFile::decodeName(native);
        std::error_code unknown;
        if (QFile::encodeName(path) != native && entries->is_regular_file(unknown)) {
            files += path;
        }
    }
    return files;
}

KxError KxSystemFile::ReasonNotToName(const QString& path)
{
    std::error_code problem;
    const bool isThere = std::filesystem::exists(NativePath(path), problem);
    return !isThere && problem == std::errc::filename_too_long ? KxError(KxSystemErrorText(problem)) : std::nullopt;
}

KxError KxSystemFile::Rename(const QString& from, const QString& to)
{
    std::error_code problem;
    std::filesystem::rename(NativePath(from), NativePath(to), problem);
    return problem ? KxError(KxSystemErrorMeaning(problem)) : std::nullopt;
}

qint64 KxSystemFile::LastWriteTime(const QString& path)
{
    // QFileInfo would convert it to local time, which reads the time zone file on each call.
    std::error_code problem;
    const auto time = std::filesystem::last_write_time(NativePath(path), problem);
    return problem ? -1 : static_cast<qint64>(time.time_since_epoch().count());
}

std::error_code KxSystemFile::ErrorOf(const QFileDevice&)
{
    return {errno, std::generic_category()};
}

bool KxSystemFile::IsQuotaExceeded(const std::error_code& error)
{
    return error == std::error_code(EDQUOT, std::generic_category());
}

std::error_code KxSystemFile::ToGeneric(const std::error_code& error)
{
    return error;
}
