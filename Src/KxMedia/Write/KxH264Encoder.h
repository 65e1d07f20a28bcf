#pragma once

#include <KxCore/KxRational.h>

#include <KxCore/KxResult.h>
#include <KxMedia/Container/KxAvHandles.h>

#include <QSize>
#include <QString>

#include <functional>

/// Takes the packets that an encoder gives out, in order of decoding; 0, or a negative libav* error, which ends the
/// encoding.
using KxPacketSink = std::function<int(AVPacket& packet)>;

/// Gives the encoder a picture or a stretch of sound, or, when `frame` is null, the end, and hands what comes out to
/// `sink`. 0, or a negative libav* error, that of the sink included.
int KxEncode(AVCodecContext& encoder, const AVFrame* frame, AVPacket& packet, const KxPacketSink& sink);

/// H.264 by libx264: one bit rate on average, a closed group of pictures every two seconds at the latest. One thread at
/// a time.
class KxH264Encoder
{
public:
    struct Settings {
        QSize size;
        KxRational frameRate;
        qint64 bitRate = 0; ///< bits a second
        QString preset;
    };

    /// Takes its colour tags from `first`. On failure, returns a clause to append to the caller's message.
    static KxResult<std::unique_ptr<KxH264Encoder>> Open(const Settings& settings, const AVFrame& first);

    const AVCodecContext& Context() const { return *m_context; }

    /// `picture` is shown at frame `index`. 0, or a negative libav* error.
    int Encode(const AVFrame& picture, qint64 index, const KxPacketSink& sink);
    int Finish(const KxPacketSink& sink);

private:
    KxH264Encoder(KxAvCodec context, KxAvFrame frame, KxAvPacket packet);

    KxAvCodec m_context;
    KxAvFrame m_frame;
    KxAvPacket m_packet;
};
