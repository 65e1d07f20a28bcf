#pragma once

#include <KxCore/KxCancelToken.h>
#include <KxCore/KxExport.h>
#include <KxCore/KxResult.h>
#include <KxMedia/Container/KxReadStatus.h>
#include <KxMedia/Read/KxMediaClock.h>
#include <KxMedia/Read/KxMediaFacts.h>

#include <memory>
#include <vector>

/// Sound at one rate and channel count: interleaved floats from -1 to 1.
struct KxAudioBlock {
    /// Time of the first sample, microseconds after the first video picture (after the first sound in a file without
    /// video).
    qint64 timeUs = 0;
    int channels = 0;
    std::vector<float> samples;
};

/// Reads one audio stream of a file, converted to a given rate and channel count, as a continuous timeline: gaps are
/// filled with silence, overlaps are cut, and sound before the first picture is dropped. One thread at a time.
class KXMEDIA_API KxAudioReader
{
public:
    struct Format {
        int sampleRateHz = 48000;
        int channels = 2;
    };

    /// `stream` counts audio streams from 0; `clock` is that of the file's pictures.
    static KxResult<std::unique_ptr<KxAudioReader>> Open(const QString& path, int stream, const Format& format,
                                                         const KxMediaClock& clock, const KxCancelToken& cancel);
    ~KxAudioReader();

    /// The next block, some tens of milliseconds long.
    KxReadStatus Next(KxAudioBlock& block);

    /// The next block starts at `timeUs`: exact to the sample, or to the millisecond in containers that store
    /// milliseconds (Matroska). Before the first sound, it starts with silence; past the end, reading ends.
    void Seek(qint64 timeUs);

private:
    class Impl;
    explicit KxAudioReader(std::unique_ptr<Impl> impl);
    std::unique_ptr<Impl> m_impl;
};
