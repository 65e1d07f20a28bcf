#pragma once

#include <KxMedia/Read/KxAudioReader.h>
#include <KxMedia/Write/KxLoudness.h>
#include <KxMedia/Write/KxSoundFeed.h>

/// Passes sound from a reader to a writer up to the end of the pictures written so far, to the sample: the file's sound
/// ends with its last picture.
class KxAudioInterleaver final : public KxSoundFeed
{
public:
    /// `loudness`, if any, changes all of the sound.
    KxAudioInterleaver(std::unique_ptr<KxAudioReader> reader, const KxAudioReader::Format& format,
                       std::unique_ptr<KxLoudnessFilter> loudness);

    KxError WriteUntil(qint64 frames, const KxRational& rate, KxMp4Writer& writer) override;
    bool HasFailed() const override { return m_hasFailed; }

private:
    bool Fill();
    KxReadStatus ReadBlock();
    KxReadStatus ReadFiltered();

    std::unique_ptr<KxAudioReader> m_reader;
    const KxAudioReader::Format m_format;
    std::unique_ptr<KxLoudnessFilter> m_loudness;
    /// What the reader delivered last; the filter may hold it back.
    KxReadStatus m_readStatus = KxReadStatus::Delivered;
    std::optional<qint64> m_startUs;
    KxAudioBlock m_block;
    qint64 m_nextSample = 0; ///< position of the next sample to write, counted from time 0
    size_t m_usedValues = 0; ///< values of the block that are written
    bool m_hasStarted = false;
    bool m_hasEnded = false;
    bool m_hasFailed = false;
};
