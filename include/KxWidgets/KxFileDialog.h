#pragma once

#include <KxCore/KxExport.h>

#include <QStringList>

#include <functional>
#include <optional>

class QWidget;

/// The host's file choosers. They open in `folder`, or in the nearest existing folder above it, or in the home folder.
/// User-interface thread; each call returns when the person has chosen.
namespace KxFileDialog
{
/// Existing files that passed the host's check; empty if the person cancelled. `filter` is one group
/// "Name(*.mp4;*.mov;)" whose patterns are separated by ";".
KXWIDGETS_API QStringList getOpenFileNames(QWidget* parent, const QString& caption, const QString& folder,
                                           const QString& filter);

/// The same without the check, for a caller that reports each file that it cannot use.
KXWIDGETS_API QStringList GetOpenFileNamesUnchecked(QWidget* parent, const QString& caption, const QString& folder,
                                                    const QString& filter);

/// Returns nothing if the host can use the file, otherwise an error message for the person. Called on the
/// user-interface thread, once for each chosen file.
using FileCheck = std::function<std::optional<QString>(const QString& path)>;
/// Sets the check of getOpenFileNames(). While a chosen file does not pass, the error message is shown in a box and the
/// chooser stays open. An empty check, the initial one, accepts every file.
KXWIDGETS_API void SetFileCheck(FileCheck check);

/// An existing folder; empty when the person cancelled.
KXWIDGETS_API QString getExistingDirectory(QWidget* parent, const QString& caption, const QString& folder);
} // namespace KxFileDialog
