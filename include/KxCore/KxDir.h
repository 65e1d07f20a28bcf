#pragma once

#include <KxCore/KxExport.h>

#include <QString>

namespace KxDir
{
/// Whether files can be made in and read from the folder `path`; found out by making one.
KXCORE_API bool IsPathWriteAndReadable(const QString& path);
} // namespace KxDir
