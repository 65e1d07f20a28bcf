#pragma once

#include <KxMedia/Read/KxAudioReader.h>
#include <KxMedia/Read/KxVideoReader.h>

/// Opens the sound of a file as player and renderer do: placed by the clock of its pictures, if it has any.
inline KxResult<std::unique_ptr<KxAudioReader>>
OpenedSound(const QString& path, int stream, const KxAudioReader::Format& format, const KxCancelToken& cancel = {})
{
    const auto pictures = KxVideoReader::Open(path, cancel);
    return KxAudioReader::Open(path, stream, format, pictures ? (*pictures)->Clock() : KxMediaClock(), cancel);
}
