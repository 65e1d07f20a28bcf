#include <KxMedia/Write/KxH264Encoder.h>

#include <KxMedia/Container/KxAvError.h>
#include <KxMedia/Container/KxAvLog.h>

extern "C" {
#include <libavutil/opt.h>
}

#include <algorithm>
#include <cmath>
#include <limits>

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

constexpr double SecondsPerGroup = 2.0;

// With frame threads, rate control depends on the progress of the other threads, so each run would produce different
// bytes. Slice threads are deterministic, and a fixed number of slices makes the result independent of the number of
// cores.
constexpr int Slices = 4;
constexpr int PeakSeconds = 3;

// The pictures that the encoder looks ahead are held in memory, about three bytes a pixel with what is computed from
// them.
constexpr qint64 LookaheadBytes = qint64{320} * 1024 * 1024;
constexpr qint64 LookaheadBytesPerPixel = 3;
constexpr int LongestLookahead = 40;
// Nearly twice the largest picture of H.264 level 5.2: memory matters more than the last percent of quality. A single
// reference picture saves five bytes a pixel for each of the others.
constexpr qint64 HugePicturePixels = qint64{4096} * 4096;
// Pictures that the encoder holds in any case, without looking ahead.
constexpr qint64 PicturesAtWork = 3;

qint64 Pixels(const QSize& size)
{
    return qint64{size.width()} * size.height();
}

int Lookahead(const QSize& size)
{
    const qint64 pictures = LookaheadBytes / (LookaheadBytesPerPixel * Pixels(size));
    const qint64 ahead = Pixels(size) > HugePicturePixels ? pictures - PicturesAtWork : pictures;
    return static_cast<int>(std::clamp<qint64>(ahead, 0, LongestLookahead));
}

void SetUp(AVCodecContext& context, const KxH264Encoder::Settings& settings, const AVFrame& first)
{
    const AVRational rate{settings.frameRate.numerator, settings.frameRate.denominator};
    context.width = settings.size.width();
    context.height = settings.size.height();
    context.pix_fmt = AV_PIX_FMT_YUV420P;
    context.thread_type = FF_THREAD_SLICE;
    context.thread_count = Slices;
    if (Pixels(settings.size) > HugePicturePixels) {
        context.refs = 1;
        context.max_b_frames = 0;
    }
    context.sample_aspect_ratio = AVRational{1, 1};
    context.framerate = rate;
    context.time_base = av_inv_q(rate);
    context.gop_size = std::max(1, static_cast<int>(std::lround(SecondsPerGroup * av_q2d(rate))));
    context.flags |= AV_CODEC_FLAG_GLOBAL_HEADER | AV_CODEC_FLAG_CLOSED_GOP;
    // Peaks of twice the average for a few seconds leave room for a busy scene and still play on phones. With a shorter
    // buffer, the encoder would correct individual rows by the progress of the other slices, which differs between
    // runs.
    const qint64 limit = std::numeric_limits<int>::max();
    context.bit_rate = std::clamp<qint64>(settings.bitRate, 1000, limit / (2 * PeakSeconds));
    context.rc_max_rate = 2 * context.bit_rate;
    context.rc_buffer_size = static_cast<int>(PeakSeconds * context.rc_max_rate);
    context.color_primaries = first.color_primaries;
    context.color_trc = first.color_trc;
    context.colorspace = first.colorspace;
    context.color_range = first.color_range;
    context.chroma_sample_location = first.chroma_location;
}

} // namespace

KxH264Encoder::KxH264Encoder(KxAvCodec context, KxAvFrame frame, KxAvPacket packet)
    : m_context(std::move(context))
    , m_frame(std::move(frame))
    , m_packet(std::move(packet))
{
}

KxResult<std::unique_ptr<KxH264Encoder>> KxH264Encoder::Open(const Settings& settings, const AVFrame& first)
{
    using Opened = KxResult<std::unique_ptr<KxH264Encoder>>;
    const AVCodec* const codec = avcodec_find_encoder_by_name("libx264");
    if (codec == nullptr) {
        return Opened::Failure(QStringLiteral("the H.264 encoder libx264 is missing"));
    }
    KxAvCodec context(avcodec_alloc_context3(codec));
    KxAvFrame frame(av_frame_alloc());
    KxAvPacket packet(av_packet_alloc());
    if (context == nullptr || frame == nullptr || packet == nullptr) {
        return Opened::Failure(KxAvErrorText(AVERROR(ENOMEM)));
    }
    KxMuteAvCodec(*context);
    SetUp(*context, settings, first);
    int error = av_opt_set(context->priv_data, "preset", settings.preset.toLatin1().constData(), 0);
    // Fast presets look ahead even less.
    const int lookahead = Lookahead(settings.size);
    if (error >= 0 && lookahead < LongestLookahead) {
        error = av_opt_set_int(context->priv_data, "rc-lookahead", lookahead, 0);
    }
    if (error >= 0) {
        error = avcodec_open2(context.get(), codec, nullptr);
    }
    if (error < 0) {
        return Opened::Failure(QStringLiteral("the video encoder does not start (%1)").arg(KxAvErrorText(error)));
    }
    return std::unique_ptr<KxH264Encoder>(new KxH264Encoder(std::move(context), std::move(frame), std::move(packet)));
}

int KxH264Encoder::Encode(const AVFrame& picture, qint64 index, const KxPacketSink& sink)
{
    av_frame_unref(m_frame.get());
    const int error = av_frame_ref(m_frame.get(), &picture);
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

int KxH264Encoder::Finish(const KxPacketSink& sink)
{
    return KxEncode(*m_context, nullptr, *m_packet, sink);
}
