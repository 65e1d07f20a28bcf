#pragma once

#include <KxCore/KxRational.h>

#include <KxCore/KxResult.h>
#include <KxMedia/Container/KxAvHandles.h>

#include <QSize>
#include <QString>

#include <functional>

/// Receives an encoder's packets in decoding order; returns 0, or a negative libav* error, which ends the encoding.
using KxPacketSink = std::function<int(AVPacket& packet)>;

/// Encodes a picture or a frame of sound and passes the resulting packets to `sink`; a null `frame` flushes the
/// encoder. 0, or a negative libav* error, including the sink's.
int KxEncode(AVCodecContext& encoder, const AVFrame* frame, AVPacket& packet, const KxPacketSink& sink);

/// H.264 by libx264: constant average bit rate, closed groups of pictures of at most two seconds. One thread at a time.
class KxH264Encoder
{
public:
    struct Settings {
        QSize size;
        KxRational frameRate;
        qint64 bitRate = 0; ///< bits per second
        QString preset;
    };

    /// Takes its colour tags from `first`. On failure, returns a clause to append to the caller's message.
    static KxResult<std::unique_ptr<KxH264Encoder>> Open(const Settings& settings, const AVFrame& first);

    const AVCodecContext& Context() const { return *m_context; }

    /// `picture` is displayed at frame `index`. 0, or a negative libav* error.
    int Encode(const AVFrame& picture, qint64 index, const KxPacketSink& sink);
    int Finish(const KxPacketSink& sink);

private:
    KxH264Encoder(KxAvCodec context, KxAvFrame frame, KxAvPacket packet);

    KxAvCodec m_context;
    KxAvFrame m_frame;
    KxAvPacket m_packet;
};
