#pragma once

#include <KxCore/KxRational.h>

#include <KxCore/KxResult.h>
#include <KxMedia/Container/KxAvHandles.h>
#include <KxMedia/Write/KxOutputFormat.h>

#include <QSize>
#include <QString>

#include <functional>

/// Receives an encoder's packets in decoding order; returns 0, or a negative libav* error, which ends the encoding.
using KxPacketSink = std::function<int(AVPacket& packet)>;

/// Encodes a picture or a frame of sound and passes the resulting packets to `sink`; a null `frame` flushes the
/// encoder. 0, or a negative libav* error, including the sink's.
int KxEncode(AVCodecContext& encoder, const AVFrame* frame, AVPacket& packet, const KxPacketSink& sink);

/// H.264, HEVC or AV1 by one of libavcodec's encoders: constant average bit rate or constant quality, groups of
/// pictures of at most two seconds. One thread at a time.
class KxVideoEncoder
{
public:
    using Encoder = KxOutputFormat::Encoder;

    struct Settings {
        QSize size;
        KxRational frameRate;
        qint64 bitRate = 0;    ///< bits per second; unused if the format has a quality
        QString preset;        ///< of libx264
        KxOutputFormat format; ///< its encoder is not Encoder::Auto
    };

    /// Takes its colour tags, its brightness metadata and its bit depth (8 or 10) from `first`. On failure, returns a
    /// clause to append to the caller's message.
    static KxResult<std::unique_ptr<KxVideoEncoder>> Open(const Settings& settings, const AVFrame& first);

    /// The name that libavcodec has for it, such as "hevc_vaapi".
    static QString NameOf(const KxOutputFormat& format);

    const AVCodecContext& Context() const { return *m_context; }

    /// `picture` is displayed at frame `index`. 0, or a negative libav* error.
    int Encode(const AVFrame& picture, qint64 index, const KxPacketSink& sink);
    int Finish(const KxPacketSink& sink);

private:
    KxVideoEncoder(KxAvCodec context, KxAvFrame frame, KxAvPacket packet);

    /// Makes m_frame show `picture` in the form that the encoder takes. 0, or a negative libav* error.
    int Load(const AVFrame& picture);

    KxAvCodec m_context;
    KxAvFrame m_frame;
    KxAvPacket m_packet;
};
