#pragma once

#include <KxCore/KxCancelToken.h>
#include <KxCore/KxExport.h>
#include <KxMedia/Read/KxMediaClock.h>

#include <QString>

struct KxSubjectRecord;

/// Adds the sound of a file to the record of its pictures, as far as who speaks depends on it: where several faces were
/// seen for long enough. For most files that is nothing, and the sound is not even opened.
namespace KxSoundReading
{
/// `clock` is that of the file's pictures. Of several sound tracks the default one is read. A track that cannot be
/// read counts as silence that nobody follows.
KXMODEL_API void AddTo(KxSubjectRecord& record, const QString& path, int track, const KxMediaClock& clock,
                       const KxCancelToken& cancel);
} // namespace KxSoundReading
