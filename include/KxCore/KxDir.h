#pragma once

#include <KxCore/KxExport.h>

#include <QString>

namespace KxDir
{
/// Whether the folder `path` permits creating and reading files; tried by creating one. A full disk does not count as
/// a missing permission.
KXCORE_API bool IsPathWriteAndReadable(const QString& path);
} // namespace KxDir
