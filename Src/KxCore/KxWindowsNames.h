#pragma once

#include <KxCore/KxExport.h>

#include <KxCore/KxResult.h>

#include <QString>

/// The rules of Windows for the names of files. Pure, on every platform.
namespace KxWindowsNames
{
/// The reason why no file can have the absolute path `path`: a character that is not permitted, the name of a device
/// (con, nul, com1 …, also with a suffix), a dot or space at the end, which Windows removes, or a name that is too
/// long.
KXCORE_API KxError ReasonNotToName(const QString& path);
} // namespace KxWindowsNames
