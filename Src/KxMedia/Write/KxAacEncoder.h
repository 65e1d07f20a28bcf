#pragma once

#include <KxCore/KxResult.h>
#include <KxMedia/Container/KxAvHandles.h>
#include <KxMedia/Read/KxAudioReader.h>
#include <KxMedia/Write/KxVideoEncoder.h>

#include <memory>
#include <vector>

/// AAC (low complexity) from blocks of any length. One thread at a time.
class KxAacEncoder
{
public:
    /// On failure, returns a clause to append to the caller's message.
    static KxResult<std::unique_ptr<KxAacEncoder>> Open(const KxAudioReader::Format& format, qint64 bitRate);

    const AVCodecContext& Context() const { return *m_context; }

    /// Blocks are contiguous; the time of the first one is the start of the sound. Encoder priming appears as packets
    /// that begin before it. 0, or a negative libav* error.
    int Encode(const KxAudioBlock& block, const KxPacketSink& sink);
    int Finish(const KxPacketSink& sink);

private:
    KxAacEncoder(KxAvCodec context, KxAvFrame frame, KxAvPacket packet);

    int EncodeFrame(size_t firstValue, int samples, const KxPacketSink& sink);

    KxAvCodec m_context;
    KxAvFrame m_frame;
    KxAvPacket m_packet;
    /// Interleaved samples that do not fill an encoder frame yet.
    std::vector<float> m_waiting;
    bool m_hasStarted = false;
    qint64 m_nextSample = 0;
};
