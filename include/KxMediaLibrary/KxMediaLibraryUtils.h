#pragma once

#include <KxCore/KxExport.h>

#include <QString>

#include <optional>

namespace KxMediaLibraryUtils
{
/// The patterns of the video files that can be imported, separated by ";" ("*.mp4;*.mov;…").
KXMEDIALIBRARY_API QString getImportVideoFilter();

/// Checks whether the file `path` can be imported as a video. Returns nothing if so, otherwise an error message that
/// names the file and the reason. Blocks while the file's header is read; any thread. A host passes it to
/// KxFileDialog::SetFileCheck, so that its file choosers accept only videos.
KXMEDIALIBRARY_API std::optional<QString> CheckVideoFile(const QString& path);
} // namespace KxMediaLibraryUtils
