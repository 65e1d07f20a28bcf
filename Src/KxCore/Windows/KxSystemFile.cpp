#include <KxCore/KxSystemFile.h>

#include <KxCore/KxSystemError.h>
#include <KxCore/KxWindowsNames.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileDevice>
#include <QFileInfo>

#include <array>
#include <utility>

#include <windows.h>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(KxSystemFile)
};

constexpr std::array<std::pair<DWORD, std::errc>, 21> Meanings{{
    {ERROR_FILE_NOT_FOUND, std::errc::no_such_file_or_directory},
    {ERROR_PATH_NOT_FOUND, std::errc::no_such_file_or_directory},
    {ERROR_INVALID_DRIVE, std::errc::no_such_file_or_directory},
    {ERROR_BAD_NETPATH, std::errc::no_such_file_or_directory},
    {ERROR_BAD_NET_NAME, std::errc::no_such_file_or_directory},
    {ERROR_ACCESS_DENIED, std::errc::permission_denied},
    {ERROR_NETWORK_ACCESS_DENIED, std::errc::permission_denied},
    {ERROR_SHARING_VIOLATION, std::errc::device_or_resource_busy},
    {ERROR_LOCK_VIOLATION, std::errc::device_or_resource_busy},
    {ERROR_WRITE_PROTECT, std::errc::read_only_file_system},
    {ERROR_HANDLE_DISK_FULL, std::errc::no_space_on_device},
    {ERROR_DISK_FULL, std::errc::no_space_on_device},
    {ERROR_FILE_TOO_LARGE, std::errc::file_too_large},
    {ERROR_TOO_MANY_OPEN_FILES, std::errc::too_many_files_open},
    {ERROR_NOT_ENOUGH_MEMORY, std::errc::not_enough_memory},
    {ERROR_OUTOFMEMORY, std::errc::not_enough_memory},
    {ERROR_FILE_EXISTS, std::errc::file_exists},
    {ERROR_ALREADY_EXISTS, std::errc::file_exists},
    {ERROR_FILENAME_EXCED_RANGE, std::errc::filename_too_long},
    {ERROR_BROKEN_PIPE, std::errc::broken_pipe},
    {ERROR_IO_DEVICE, std::errc::io_error},
}};

std::error_code SystemError(DWORD code)
{
    return {static_cast<int>(code), std::system_category()};
}

/// Whether another program has the file open so that it can be neither replaced nor removed.
bool IsHeldOpen(const std::filesystem::path& path)
{
    const HANDLE file = CreateFileW(path.c_str(), DELETE, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                    nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return GetLastError() == ERROR_SHARING_VIOLATION;
    }
    CloseHandle(file);
    return false;
}

} // namespace

std::filesystem::path KxSystemFile::NativePath(const QString& path)
{
    // From this length on, a folder name leaves no room for a file name of the old form.
    constexpr int longestPlain = MAX_PATH - 13;
    if (path.startsWith(QLatin1String("\\\\?\\"))) {
        return {path.toStdWString()};
    }
    QString native = QDir::toNativeSeparators(QDir::cleanPath(path));
    if (native.size() >= longestPlain && QDir::isAbsolutePath(path)) {
        native = native.startsWith(QLatin1String("\\\\")) ? QStringLiteral("\\\\?\\UNC") + native.mid(1)
                                                          : QStringLiteral("\\\\?\\") + native;
    }
    return {native.toStdWString()};
}

QString KxSystemFile::Identity(const QString& path)
{
    const QFileInfo file(path);
    // Capital and small letters name the same file, and Qt keeps them as they were written.
    return (file.exists() ? file.canonicalFilePath() : file.absoluteFilePath()).toCaseFolded();
}

QStringList KxSystemFile::UnnameableFiles(const QString&, Depth)
{
    return {};
}

KxError KxSystemFile::ReasonNotToName(const QString& path)
{
    return KxWindowsNames::ReasonNotToName(path);
}

KxError KxSystemFile::Rename(const QString& from, const QString& to)
{
    const std::filesystem::path target = NativePath(to);
    if (MoveFileExW(NativePath(from).c_str(), target.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) !=
        0) {
        return std::nullopt;
    }
    const std::error_code problem = SystemError(GetLastError());
    return IsHeldOpen(target) ? Texts::tr("another program has it open") : KxSystemErrorMeaning(problem);
}

qint64 KxSystemFile::LastWriteTime(const QString& path)
{
    // std::filesystem of this compiler counts whole seconds.
    WIN32_FILE_ATTRIBUTE_DATA facts{};
    if (GetFileAttributesExW(NativePath(path).c_str(), GetFileExInfoStandard, &facts) == 0) {
        return -1;
    }
    ULARGE_INTEGER time{};
    time.LowPart = facts.ftLastWriteTime.dwLowDateTime;
    time.HighPart = facts.ftLastWriteTime.dwHighDateTime;
    return static_cast<qint64>(time.QuadPart);
}

std::error_code KxSystemFile::ErrorOf(const QFileDevice& file)
{
    // Qt keeps the text of the system's error, but not its number; GetLastError() may belong to a later call.
    const QString text = file.errorString();
    for (const auto& [code, meaning] : Meanings) {
        if (text == qt_error_string(static_cast<int>(code))) {
            return SystemError(code);
        }
    }
    return {};
}

bool KxSystemFile::IsQuotaExceeded(const std::error_code& error)
{
    constexpr DWORD quotaExceeded = 1295; // no name for it in the headers of mingw-w64
    return error == SystemError(quotaExceeded);
}

std::error_code KxSystemFile::ToGeneric(const std::error_code& error)
{
    if (error.category() == std::system_category()) {
        for (const auto& [code, meaning] : Meanings) {
            if (error.value() == static_cast<int>(code)) {
                return std::make_error_code(meaning);
            }
        }
    }
    return error;
}
