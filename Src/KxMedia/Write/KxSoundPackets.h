#pragma once

#include <KxMedia/Container/KxAvHandles.h>
#include <KxMedia/Container/KxInputFile.h>
#include <KxMedia/Read/KxMediaClock.h>

/// The packets of one audio stream of a file, to be written to an MP4 file as they are. One thread at a time.
class KXMEDIA_API KxSoundPackets
{
public:
    /// `stream` counts audio streams from 0; `clock` is that of the file's pictures. On failure, returns a clause that
    /// says why this sound cannot be copied.
    static KxResult<std::unique_ptr<KxSoundPackets>> Open(const QString& path, int stream, const KxMediaClock& clock,
                                                          const KxCancelToken& cancel);

    const AVCodecParameters& Parameters() const { return *m_stream->codecpar; }
    /// Whether any player of MP4 files plays it: AAC with low complexity, mono or stereo.
    bool PlaysEverywhere() const;
    AVRational TimeBase() const { return m_stream->time_base; }

    /// The next packet, with times in TimeBase() that count from the first picture. Packets that end before are left
    /// out, except the last of them, which decoders need to get into step.
    KxReadStatus Next(AVPacket& packet);
    bool FileHasChanged() const { return m_input->HasChanged(); }

private:
    KxSoundPackets(std::unique_ptr<KxInputFile> input, AVStream& stream, qint64 zeroUs);

    std::unique_ptr<KxInputFile> m_input;
    AVStream* m_stream;
    qint64 m_zeroTicks;
    qint64 m_nextTicks = 0; ///< where the last packet ends
};
