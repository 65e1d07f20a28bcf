#pragma once

#include <KxCore/KxExport.h>

#include <QString>

namespace KxMediaLibraryUtils
{
/// The patterns of the video files that can be imported, separated by ";" ("*.mp4;*.mov;…").
KXMEDIALIBRARY_API QString getImportVideoFilter();
} // namespace KxMediaLibraryUtils
