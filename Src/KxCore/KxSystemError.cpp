#include <KxCore/KxSystemError.h>

#include <QFileDevice>

#include <array>
#include <cerrno>
#include <utility>

bool KxIsDiskFull(const std::error_code& error)
{
#ifdef EDQUOT
    if (error == std::error_code(EDQUOT, std::generic_category())) {
        return true;
    }
#endif
    return error == std::errc::no_space_on_device;
}

QString KxSystemErrorText(const std::error_code& error)
{
    constexpr std::array<std::pair<std::errc, const char*>, 12> texts{{
        {std::errc::file_too_large, "the file would become too large for its disk"},
        {std::errc::no_such_file_or_directory, "there is no such file"},
        {std::errc::permission_denied, "permission is denied"},
        {std::errc::operation_not_permitted, "permission is denied"},
        {std::errc::read_only_file_system, "the disk can only be read"},
        {std::errc::io_error, "the disk reports an error"},
        {std::errc::not_enough_memory, "memory ran out"},
        {std::errc::too_many_files_open, "too many files are open"},
        {std::errc::too_many_files_open_in_system, "too many files are open"},
        {std::errc::filename_too_long, "its name is too long"},
        {std::errc::is_a_directory, "it is a folder"},
        {std::errc::broken_pipe, "its reader has gone"},
    }};
    for (const auto& [condition, text] : texts) {
        if (error == condition) {
            return QLatin1String(text);
        }
    }
    return KxIsDiskFull(error) ? QStringLiteral("the disk is full") : QString();
}

QString KxFileErrorText(const QFileDevice& file)
{
    const QString text = KxSystemErrorText(std::error_code(errno, std::generic_category()));
    return text.isEmpty() ? file.errorString().toLower() : text;
}
