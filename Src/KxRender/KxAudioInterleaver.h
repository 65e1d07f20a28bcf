#pragma once

#include <KxMedia/Read/KxAudioReader.h>
#include <KxMedia/Write/KxMp4Writer.h>

/// Passes sound from a reader to a writer, as far as the pictures have come and not a sample further, so that the
/// file's sound ends with its last picture. One thread at a time.
class KxAudioInterleaver
{
public:
    KxAudioInterleaver(std::unique_ptr<KxAudioReader> reader, const KxAudioReader::Format& format);

    /// Adds what comes before `frames` frames of `rate` have passed. The error message is the writer's.
    KxError FeedUntil(qint64 frames, const KxRational& rate, KxMp4Writer& writer);

    /// Reading ended because the file could not be read any further.
    bool HasFailed() const { return m_hasFailed; }

private:
    bool Fill();

    std::unique_ptr<KxAudioReader> m_reader;
    const KxAudioReader::Format m_format;
    KxAudioBlock m_block;
    // Of the next sample to pass on, counted from time 0; and where it stands in the block.
    qint64 m_nextSample = 0;
    size_t m_usedValues = 0;
    bool m_hasStarted = false;
    bool m_hasEnded = false;
    bool m_hasFailed = false;
};
