#pragma once

#include <KxMedia/Read/KxAudioReader.h>
#include <KxMedia/Write/KxMp4Writer.h>

/// Passes sound from a reader to a writer up to the end of the pictures written so far, to the sample: the file's sound
/// ends with its last picture. One thread at a time.
class KxAudioInterleaver
{
public:
    KxAudioInterleaver(std::unique_ptr<KxAudioReader> reader, const KxAudioReader::Format& format);

    /// Writes the samples that lie before the end of the first `frames` frames. Returns the writer's error message.
    KxError WriteUntil(qint64 frames, const KxRational& rate, KxMp4Writer& writer);

    /// The sound ended early because the file could not be read any further.
    bool HasFailed() const { return m_hasFailed; }

private:
    bool Fill();

    std::unique_ptr<KxAudioReader> m_reader;
    const KxAudioReader::Format m_format;
    KxAudioBlock m_block;
    qint64 m_nextSample = 0; ///< position of the next sample to write, counted from time 0
    size_t m_usedValues = 0; ///< values of the block that are written
    bool m_hasStarted = false;
    bool m_hasEnded = false;
    bool m_hasFailed = false;
};
