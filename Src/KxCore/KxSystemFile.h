#pragma once

#include <KxCore/KxExport.h>

#include <KxCore/KxResult.h>

#include <QString>
#include <QStringList>

#include <filesystem>
#include <system_error>

class QFileDevice;

/// Files as the operating system knows them. Each platform has its own implementation.
namespace KxSystemFile
{
/// `path` for the functions of std::filesystem, also if it is longer than a program can usually name.
KXCORE_API std::filesystem::path NativePath(const QString& path);

/// Equal for two paths of one file, however they are written. For a missing file, its absolute path.
KXCORE_API QString Identity(const QString& path);

/// The files in `folder`, and below it if that is wanted, whose names no QString can hold, so that Qt does not list
/// them. Each as it can be shown, with U+FFFD for what is not valid.
enum class Depth { Folder, Subfolders };
KXCORE_API QStringList UnnameableFiles(const QString& folder, Depth depth);

/// The reason why no file can have the absolute path `path`: "its name is too long".
KXCORE_API KxError ReasonNotToName(const QString& path);

/// Gives the file `from` the name `to`, replacing a file of that name. The error message is a clause to append: "there
/// is no such file".
KXCORE_API KxError Rename(const QString& from, const QString& to);

/// When the file was last written to, in the system's finest unit and from its own start, for comparison only; -1 if
/// there is no such file.
KXCORE_API qint64 LastWriteTime(const QString& path);

/// The error of the last operation on `file`. Call it right after the failure, on the same thread; some platforms need
/// errno to have been 0 before it.
KXCORE_API std::error_code ErrorOf(const QFileDevice& file);

/// Whether the error is an exhausted quota.
KXCORE_API bool IsQuotaExceeded(const std::error_code& error);

/// `error` in the category of C's errors, which KxSystemErrorText() knows.
KXCORE_API std::error_code ToGeneric(const std::error_code& error);
} // namespace KxSystemFile
