#include <KxCore/KxSystemError.h>

#include <KxCore/KxSystemFile.h>

#include <QCoreApplication>
#include <QFileDevice>
#include <QFileInfo>

#include <array>
#include <utility>

bool KxIsDiskFull(const std::error_code& error)
{
    return KxSystemFile::IsQuotaExceeded(error) || KxSystemFile::ToGeneric(error) == std::errc::no_space_on_device;
}

QString KxSystemErrorText(const std::error_code& error)
{
    constexpr std::array<std::pair<std::errc, const char*>, 13> texts{{
        {std::errc::file_too_large, QT_TRANSLATE_NOOP("KxSystemError", "the file would become too large for its disk")},
        {std::errc::no_such_file_or_directory, QT_TRANSLATE_NOOP("KxSystemError", "there is no such file")},
        {std::errc::permission_denied, QT_TRANSLATE_NOOP("KxSystemError", "permission is denied")},
        {std::errc::operation_not_permitted, QT_TRANSLATE_NOOP("KxSystemError", "permission is denied")},
        {std::errc::read_only_file_system, QT_TRANSLATE_NOOP("KxSystemError", "the disk can only be read")},
        {std::errc::io_error, QT_TRANSLATE_NOOP("KxSystemError", "the disk reports an error")},
        {std::errc::not_enough_memory, QT_TRANSLATE_NOOP("KxSystemError", "memory ran out")},
        {std::errc::too_many_files_open, QT_TRANSLATE_NOOP("KxSystemError", "too many files are open")},
        {std::errc::too_many_files_open_in_system, QT_TRANSLATE_NOOP("KxSystemError", "too many files are open")},
        {std::errc::filename_too_long, QT_TRANSLATE_NOOP("KxSystemError", "its name is too long")},
        {std::errc::is_a_directory, QT_TRANSLATE_NOOP("KxSystemError", "it is a folder")},
        {std::errc::broken_pipe, QT_TRANSLATE_NOOP("KxSystemError", "its reader has gone")},
        {std::errc::device_or_resource_busy, QT_TRANSLATE_NOOP("KxSystemError", "it is in use")},
    }};
    const std::error_code generic = KxSystemFile::ToGeneric(error);
    for (const auto& [condition, text] : texts) {
        if (generic == condition) {
            return QCoreApplication::translate("KxSystemError", text);
        }
    }
    return KxIsDiskFull(error) ? QCoreApplication::translate("KxSystemError", "the disk is full") : QString();
}

QString KxSystemErrorMeaning(const std::error_code& error)
{
    const QString text = KxSystemErrorText(error);
    return text.isEmpty() ? QString::fromStdString(error.message()).toLower() : text;
}

QString KxFileErrorText(const QFileDevice& file)
{
    const std::error_code error = KxSystemFile::ErrorOf(file);
    // Qt refuses to open a folder without asking the system.
    const bool isFolder = QFileInfo(file.fileName()).isDir();
    const QString text = KxSystemErrorText(isFolder ? std::make_error_code(std::errc::is_a_directory) : error);
    return text.isEmpty() ? file.errorString().toLower() : text;
}
