#pragma once

#include <KxCore/KxResult.h>
#include <KxMedia/Read/KxAudioReader.h>

#include <memory>
#include <vector>

class KxSoundChain;

/// The loudness of a whole sound, EBU R128.
struct KxLoudness {
    double integratedLufs = 0.0;
    double rangeLu = 0.0;
    double truePeakDb = 0.0;
    double thresholdLufs = 0.0; ///< of the relative gate
};

/// Measures the loudness of sound. One thread at a time.
class KXMEDIA_API KxLoudnessMeter
{
public:
    /// Errors are clauses to append to a message.
    static KxResult<std::unique_ptr<KxLoudnessMeter>> Make(const KxAudioReader::Format& format);
    ~KxLoudnessMeter();

    KxError Add(const KxAudioBlock& block);
    /// Call it once, after the last block. Nothing if the sound is silent, or shorter than 0.4 s.
    KxResult<std::optional<KxLoudness>> Result();

private:
    explicit KxLoudnessMeter(std::unique_ptr<KxSoundChain> chain);
    KxError TakeAll();

    const std::unique_ptr<KxSoundChain> m_chain;
    KxLoudness m_last;
    // Blocks of 0.4 s above the absolute gate: their mean gives the relative one.
    double m_energy = 0.0;
    qint64 m_blocks = 0;
};

/// Brings sound to a loudness: the second pass of libavfilter's `loudnorm`, which raises or lowers all of it alike, and
/// limits peaks only where that would clip. One thread at a time.
class KXMEDIA_API KxLoudnessFilter
{
public:
    static KxResult<std::unique_ptr<KxLoudnessFilter>> Make(const KxLoudness& measured, double targetLufs,
                                                            const KxAudioReader::Format& format);
    ~KxLoudnessFilter();

    KxError Add(const KxAudioBlock& block);
    KxError End();
    /// Appends what is ready, in as many samples as were added once the sound has ended.
    KxError TakeInto(std::vector<float>& samples);

private:
    KxLoudnessFilter(std::unique_ptr<KxSoundChain> chain, int channels);

    const std::unique_ptr<KxSoundChain> m_chain;
    int m_channels;
};
