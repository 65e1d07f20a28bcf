#pragma once

#include <KxMedia/Container/KxInputFile.h>
#include <KxMedia/Read/KxAudioReader.h>
#include <KxMedia/Read/KxClockJumps.h>
#include <KxMedia/Read/KxMediaClock.h>
#include <KxMedia/Read/KxSampleConverter.h>
#include <KxMedia/Read/KxTimestampRepair.h>

/// Decodes one audio stream into runs of samples of a given format, each with its position in time. KxAudioReader
/// handles gaps and overlaps. One thread at a time.
class KXMEDIA_API KxAudioTrack
{
public:
    /// Consecutive samples.
    struct Run {
        /// Of the first sample: samples of the requested rate after time zero.
        qint64 position = 0;
        /// Interleaved.
        std::vector<float> samples;
    };

    /// On failure, returns a clause to append to the caller's message.
    static KxResult<std::unique_ptr<KxAudioTrack>> Open(std::unique_ptr<KxInputFile> input, AVStream& stream,
                                                        const KxAudioReader::Format& format, KxMediaClock clock);

    /// The next run, which may be empty.
    KxReadStatus Next(Run& run);
    /// Seeks to a position at or before `position`, as far as the container knows. False if only Rewind() can get
    /// there.
    bool SeekBefore(qint64 position);
    bool FileHasChanged() const { return m_input->HasChanged(); }
    /// Returns to the first sound.
    bool Rewind();

private:
    KxAudioTrack(std::unique_ptr<KxInputFile> input, AVStream& stream, KxAvCodec codec,
                 const KxAudioReader::Format& format, KxMediaClock clock);

    KxReadStatus Feed();
    void ShiftOverJumps(AVPacket& packet);
    void StartAgain();
    bool TakeFrame(Run& run);
    bool EndRun(Run& run);
    qint64 PositionOf(int64_t ticks);
    qint64 Expected() const;

    std::unique_ptr<KxInputFile> m_input;
    int m_streamIndex;
    AVRational m_timeBase;
    KxAvCodec m_codec;
    KxAudioReader::Format m_format;
    std::optional<qint64> m_zeroUs;
    KxClockJumps m_jumps;
    /// Set if the jumps are unknown.
    std::optional<KxTimestampJoin> m_join;
    KxAvPacket m_packet;
    KxAvFrame m_frame;
    bool m_hasFrame = false;
    std::unique_ptr<KxSampleConverter> m_converter;
    /// Position at which the converter's run began, samples given to it since then, and position of its next output
    /// sample.
    qint64 m_anchor = 0;
    qint64 m_samplesIn = 0;
    qint64 m_nextOut = 0;
    bool m_isDraining = false;
    int m_errorsInARow = 0;
};
