#pragma once

#include <KxMedia/Write/KxMp4Writer.h>

/// Passes the sound of a source to a writer, in step with the pictures. One thread at a time.
class KXMEDIA_API KxSoundFeed
{
public:
    virtual ~KxSoundFeed() = default;
    KxSoundFeed(const KxSoundFeed&) = delete;
    KxSoundFeed& operator=(const KxSoundFeed&) = delete;

    /// Writes the sound that lies before the end of the first `frames` frames. Returns the writer's error message.
    virtual KxError WriteUntil(qint64 frames, const KxRational& rate, KxMp4Writer& writer) = 0;
    /// The sound ended early because the file could not be read any further.
    virtual bool HasFailed() const = 0;

protected:
    KxSoundFeed() = default;
};
