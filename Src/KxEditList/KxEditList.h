#pragma once

#include <KxCore/KxExport.h>
#include <KxEditList/KxCroppedClip.h>

#include <QByteArray>
#include <QString>
#include <QStringList>

/// Hands a crop over to other programs: a project or a list of keys that shows the same part of every frame of the
/// source as our own video does. Pure; any thread.
namespace KxEditList
{
/// The known formats, as the suffixes of their files: mlt, kdenlive, fcpxml, txt (keyframes for a compositing program)
/// and ffscript (a filter graph for ffmpeg).
KXEDITLIST_API const QStringList& Suffixes();

/// The content of a file with this suffix, in any case; it must be one of Suffixes().
KXEDITLIST_API QByteArray Text(const KxCroppedClip& clip, const QString& suffix);
} // namespace KxEditList
