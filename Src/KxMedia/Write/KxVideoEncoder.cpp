#include <KxMedia/Write/KxVideoEncoder.h>

#include <KxMedia/Container/KxAvError.h>
#include <KxMedia/Container/KxAvLog.h>
#include <KxMedia/Write/KxEncoderOptions.h>

extern "C" {
#include <libavutil/hwcontext.h>
}

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <cstring>

int KxEncode(AVCodecContext& encoder, const AVFrame* frame, AVPacket& packet, const KxPacketSink& sink)
{
    int error = avcodec_send_frame(&encoder, frame);
    while (error >= 0) {
        error = avcodec_receive_packet(&encoder, &packet);
        if (error == AVERROR(EAGAIN) || error == AVERROR_EOF) {
            return 0;
        }
        if (error >= 0) {
            error = sink(packet);
            av_packet_unref(&packet);
        }
    }
    return error;
}

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(KxVideoEncoder)
};

using Codec = KxOutputFormat::Codec;
using Encoder = KxOutputFormat::Encoder;

constexpr double SecondsPerGroup = 2.0;

AVPixelFormat InputFormat(Encoder encoder, const AVFrame& first)
{
    switch (encoder) {
    case Encoder::Vaapi:
        return AV_PIX_FMT_VAAPI;
    case Encoder::Qsv:
        return AV_PIX_FMT_NV12;
    case Encoder::Auto:
    case Encoder::Software:
    case Encoder::Nvenc:
        break;
    }
    return first.format == AV_PIX_FMT_YUV420P10 ? AV_PIX_FMT_YUV420P10 : AV_PIX_FMT_YUV420P;
}

void SetUp(AVCodecContext& context, const KxVideoEncoder::Settings& settings, const AVFrame& first)
{
    const AVRational rate{settings.frameRate.numerator, settings.frameRate.denominator};
    context.width = settings.size.width();
    context.height = settings.size.height();
    context.pix_fmt = InputFormat(settings.format.encoder, first);
    context.sample_aspect_ratio = AVRational{1, 1};
    context.framerate = rate;
    context.time_base = av_inv_q(rate);
    context.gop_size = std::max(1, static_cast<int>(std::lround(SecondsPerGroup * av_q2d(rate))));
    context.flags |= AV_CODEC_FLAG_GLOBAL_HEADER | AV_CODEC_FLAG_CLOSED_GOP;
    context.color_primaries = first.color_primaries;
    context.color_trc = first.color_trc;
    context.colorspace = first.colorspace;
    context.color_range = first.color_range;
    context.chroma_sample_location = first.chroma_location;
}

/// Memory of the graphics card for the pictures, which this encoder cannot read from elsewhere.
int AddSurfaces(AVCodecContext& context)
{
    AVBufferRef* device = nullptr;
    int error = av_hwdevice_ctx_create(&device, AV_HWDEVICE_TYPE_VAAPI, nullptr, nullptr, 0);
    const KxAvBuffer ownedDevice(device);
    if (error < 0) {
        return error;
    }
    KxAvBuffer surfaces(av_hwframe_ctx_alloc(device));
    if (surfaces == nullptr) {
        return AVERROR(ENOMEM);
    }
    auto& frames = *reinterpret_cast<AVHWFramesContext*>(surfaces->data);
    frames.format = AV_PIX_FMT_VAAPI;
    frames.sw_format = AV_PIX_FMT_NV12;
    frames.width = context.width;
    frames.height = context.height;
    error = av_hwframe_ctx_init(surfaces.get());
    context.hw_frames_ctx = error >= 0 ? surfaces.release() : nullptr;
    return error;
}

/// A copy with interleaved chroma.
KxAvFrame ToNv12(const AVFrame& picture)
{
    KxAvFrame copy(av_frame_alloc());
    if (copy == nullptr) {
        return nullptr;
    }
    copy->format = AV_PIX_FMT_NV12;
    copy->width = picture.width;
    copy->height = picture.height;
    if (av_frame_get_buffer(copy.get(), 0) < 0 || av_frame_copy_props(copy.get(), &picture) < 0) {
        return nullptr;
    }
    const auto row = [](const AVFrame& frame, int plane, int y) {
        return frame.data[plane] + static_cast<std::ptrdiff_t>(y) * frame.linesize[plane];
    };
    for (int y = 0; y < picture.height; ++y) {
        std::memcpy(row(*copy, 0, y), row(picture, 0, y), static_cast<std::size_t>(picture.width));
    }
    for (int y = 0; y < picture.height / 2; ++y) {
        std::uint8_t* const chroma = row(*copy, 1, y);
        for (int x = 0; x < picture.width / 2; ++x) {
            chroma[2 * x] = row(picture, 1, y)[x];
            chroma[2 * x + 1] = row(picture, 2, y)[x];
        }
    }
    return copy;
}

} // namespace

KxVideoEncoder::KxVideoEncoder(KxAvCodec context, KxAvFrame frame, KxAvPacket packet)
    : m_context(std::move(context))
    , m_frame(std::move(frame))
    , m_packet(std::move(packet))
{
}

QString KxVideoEncoder::NameOf(const KxOutputFormat& format)
{
    const bool isH264 = format.codec == Codec::H264;
    const bool isHevc = format.codec == Codec::Hevc;
    const QLatin1String codec(isH264 ? "h264" : isHevc ? "hevc" : "av1");
    switch (format.encoder) {
    case Encoder::Vaapi:
        return codec + QStringLiteral("_vaapi");
    case Encoder::Nvenc:
        return codec + QStringLiteral("_nvenc");
    case Encoder::Qsv:
        return codec + QStringLiteral("_qsv");
    case Encoder::Auto:
    case Encoder::Software:
        break;
    }
    return QLatin1String(isH264 ? "libx264" : isHevc ? "libx265" : "libsvtav1");
}

KxResult<std::unique_ptr<KxVideoEncoder>> KxVideoEncoder::Open(const Settings& settings, const AVFrame& first)
{
    using Opened = KxResult<std::unique_ptr<KxVideoEncoder>>;
    const QString name = NameOf(settings.format);
    const AVCodec* const codec = avcodec_find_encoder_by_name(name.toLatin1().constData());
    if (codec == nullptr) {
        return Opened::Failure(Texts::tr("the video encoder %1 is missing").arg(name));
    }
    KxAvCodec context(avcodec_alloc_context3(codec));
    KxAvFrame frame(av_frame_alloc());
    KxAvPacket packet(av_packet_alloc());
    if (context == nullptr || frame == nullptr || packet == nullptr) {
        return Opened::Failure(KxAvErrorText(AVERROR(ENOMEM)));
    }
    KxMuteAvCodec(*context);
    SetUp(*context, settings, first);
    int error = KxEncoderOptions::Set(*context, settings, first);
    if (error >= 0 && settings.format.encoder == Encoder::Vaapi) {
        error = AddSurfaces(*context);
    }
    if (error >= 0) {
        error = avcodec_open2(context.get(), codec, nullptr);
    }
    if (error < 0) {
        return Opened::Failure(Texts::tr("the video encoder %1 does not start (%2)").arg(name, KxAvErrorText(error)));
    }
    return std::unique_ptr<KxVideoEncoder>(new KxVideoEncoder(std::move(context), std::move(frame), std::move(packet)));
}

int KxVideoEncoder::Load(const AVFrame& picture)
{
    if (m_context->pix_fmt == picture.format) {
        return av_frame_ref(m_frame.get(), &picture);
    }
    const KxAvFrame interleaved = ToNv12(picture);
    if (interleaved == nullptr) {
        return AVERROR(ENOMEM);
    }
    if (m_context->hw_frames_ctx == nullptr) {
        return av_frame_ref(m_frame.get(), interleaved.get());
    }
    int error = av_hwframe_get_buffer(m_context->hw_frames_ctx, m_frame.get(), 0);
    if (error >= 0) {
        error = av_hwframe_transfer_data(m_frame.get(), interleaved.get(), 0);
    }
    return error < 0 ? error : av_frame_copy_props(m_frame.get(), interleaved.get());
}

int KxVideoEncoder::Encode(const AVFrame& picture, qint64 index, const KxPacketSink& sink)
{
    av_frame_unref(m_frame.get());
    const int error = Load(picture);
    if (error < 0) {
        return error;
    }
    m_frame->pts = index;
    m_frame->pkt_duration = 1;
    m_frame->pict_type = AV_PICTURE_TYPE_NONE;
    const int result = KxEncode(*m_context, m_frame.get(), *m_packet, sink);
    av_frame_unref(m_frame.get());
    return result;
}

int KxVideoEncoder::Finish(const KxPacketSink& sink)
{
    return KxEncode(*m_context, nullptr, *m_packet, sink);
}
