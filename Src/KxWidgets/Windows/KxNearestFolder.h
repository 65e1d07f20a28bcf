#pragma once

#include <KxCore/KxExport.h>

#include <QString>

#include <functional>

namespace KxNearestFolder
{
/// `folder`, or the nearest folder above it for which `isFolder` returns true. The home folder for a relative path and
/// if there is none, for example on a drive that has been removed.
KXWIDGETS_API QString To(const QString& folder, const std::function<bool(const QString&)>& isFolder);

KXWIDGETS_API bool IsFolder(const QString& path);
} // namespace KxNearestFolder
