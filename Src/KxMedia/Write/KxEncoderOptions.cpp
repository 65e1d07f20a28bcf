#include <KxMedia/Write/KxEncoderOptions.h>

extern "C" {
#include <libavutil/cpu.h>
#include <libavutil/mastering_display_metadata.h>
#include <libavutil/opt.h>
}

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <limits>

namespace
{

using Codec = KxOutputFormat::Codec;
using Encoder = KxOutputFormat::Encoder;
using Settings = KxVideoEncoder::Settings;

// With frame threads, rate control depends on the progress of the other threads, so each run would produce different
// bytes. With slice threads only the peak limit does, and a fixed number of slices makes the result independent of the
// number of cores.
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

/// The quantizer, or rate factor, that the codec has for a quality. Equal qualities look about alike in all codecs.
double RateFactor(Codec codec, double quality)
{
    struct Scale {
        double worst;
        double best;
    };
    const Scale scale = codec == Codec::H264   ? Scale{40.0, 10.0}
                        : codec == Codec::Hevc ? Scale{42.0, 12.0}
                                               : Scale{60.0, 15.0};
    return scale.worst + (scale.best - scale.worst) * quality / 100.0;
}

void SetBitRate(AVCodecContext& context, qint64 bitRate)
{
    // Peaks of twice the average for a few seconds leave room for a busy scene and still play on phones. With a shorter
    // buffer, the encoder would correct rows more often by the progress of the other slices, which differs between
    // runs.
    const qint64 limit = std::numeric_limits<int>::max();
    context.bit_rate = std::clamp<qint64>(bitRate, 1000, limit / (2 * PeakSeconds));
    context.rc_max_rate = 2 * context.bit_rate;
    context.rc_buffer_size = static_cast<int>(PeakSeconds * context.rc_max_rate);
}

/// With AVX-512, libx264's sums over later pictures (mb-tree) depend on what was in memory before, so that a second
/// video of one process differs from run to run. Every processor with AVX-512 has the others.
constexpr const char* WithoutAvx512 = "asm=MMX2,SSE2Fast,SSSE3,SSE4.2,AVX,FMA3,BMI2,AVX2";

int SetX264(AVCodecContext& context, const Settings& settings)
{
    context.thread_type = FF_THREAD_SLICE;
    context.thread_count = Slices;
    if (Pixels(settings.size) > HugePicturePixels) {
        context.refs = 1;
        context.max_b_frames = 0;
    }
    int error = av_opt_set(context.priv_data, "preset", settings.preset.toLatin1().constData(), 0);
    if (error >= 0 && (av_get_cpu_flags() & AV_CPU_FLAG_AVX512) != 0) {
        error = av_opt_set(context.priv_data, "x264-params", WithoutAvx512, 0);
    }
    // Fast presets look ahead even less.
    const int lookahead = Lookahead(settings.size);
    if (error >= 0 && lookahead < LongestLookahead) {
        error = av_opt_set_int(context.priv_data, "rc-lookahead", lookahead, 0);
    }
    if (error >= 0 && settings.format.quality) {
        error = av_opt_set_double(context.priv_data, "crf", RateFactor(Codec::H264, *settings.format.quality), 0);
    }
    return error;
}

QStringList BrightnessParameters(const AVFrame& first)
{
    QStringList parameters;
    const auto text = [](const AVRational& value, int unitsInOne) {
        return QString::number(std::lround(av_q2d(value) * unitsInOne));
    };
    constexpr int chromaticityUnits = 50000;
    constexpr int luminanceUnits = 10000;
    if (const auto* const data = av_frame_get_side_data(&first, AV_FRAME_DATA_MASTERING_DISPLAY_METADATA)) {
        const auto& display = *reinterpret_cast<const AVMasteringDisplayMetadata*>(data->data);
        const auto point = [&](const AVRational(&place)[2]) {
            return QStringLiteral("(%1,%2)").arg(text(place[0], chromaticityUnits), text(place[1], chromaticityUnits));
        };
        if (display.has_primaries != 0 && display.has_luminance != 0) {
            parameters +=
                QStringLiteral("master-display=G%1B%2R%3WP%4L(%5,%6)")
                    .arg(point(display.display_primaries[1]), point(display.display_primaries[2]),
                         point(display.display_primaries[0]), point(display.white_point),
                         text(display.max_luminance, luminanceUnits), text(display.min_luminance, luminanceUnits));
        }
    }
    if (const auto* const data = av_frame_get_side_data(&first, AV_FRAME_DATA_CONTENT_LIGHT_LEVEL)) {
        const auto& light = *reinterpret_cast<const AVContentLightMetadata*>(data->data);
        parameters +=
            QStringLiteral("max-cll=%1,%2").arg(QString::number(light.MaxCLL), QString::number(light.MaxFALL));
    }
    return parameters;
}

int SetX265(AVCodecContext& context, const Settings& settings, const AVFrame& first)
{
    // Its own messages would go to standard error. One frame at a time gives equal bytes on every machine; the rows of
    // a picture are still encoded side by side.
    QStringList parameters{QStringLiteral("log-level=none"), QStringLiteral("frame-threads=1")};
    parameters += BrightnessParameters(first);
    // Without a limit for peaks: correcting rows by it would differ between runs.
    context.rc_max_rate = 0;
    context.rc_buffer_size = 0;
    int error = av_opt_set(context.priv_data, "preset", "fast", 0);
    if (error >= 0) {
        error =
            av_opt_set(context.priv_data, "x265-params", parameters.join(QLatin1Char(':')).toLatin1().constData(), 0);
    }
    if (error >= 0 && settings.format.quality) {
        error = av_opt_set_double(context.priv_data, "crf", RateFactor(Codec::Hevc, *settings.format.quality), 0);
    }
    return error;
}

int SetSvtAv1(AVCodecContext& context, const Settings& settings)
{
    // Of the presets 0 to 13, the one that takes about as long as libx264.
    constexpr int preset = 9;
    context.rc_max_rate = 0;
    context.rc_buffer_size = 0;
    int error = av_opt_set_int(context.priv_data, "preset", preset, 0);
    if (error >= 0 && settings.format.quality) {
        const int factor = static_cast<int>(std::lround(RateFactor(Codec::Av1, *settings.format.quality)));
        error = av_opt_set_int(context.priv_data, "crf", factor, 0);
    }
    return error;
}

int SetHardware(AVCodecContext& context, const Settings& settings)
{
    if (!settings.format.quality) {
        return 0;
    }
    const int factor = static_cast<int>(std::lround(RateFactor(settings.format.codec, *settings.format.quality)));
    if (settings.format.encoder != Encoder::Nvenc) {
        context.global_quality = factor;
        return 0;
    }
    const int error = av_opt_set(context.priv_data, "rc", "vbr", 0);
    return error < 0 ? error : av_opt_set_double(context.priv_data, "cq", factor, 0);
}

} // namespace

int KxEncoderOptions::Set(AVCodecContext& context, const Settings& settings, const AVFrame& first)
{
    if (!settings.format.quality) {
        SetBitRate(context, settings.bitRate);
    } else {
        context.bit_rate = 0;
    }
    if (settings.format.encoder != Encoder::Software) {
        return SetHardware(context, settings);
    }
    switch (settings.format.codec) {
    case Codec::H264:
        return SetX264(context, settings);
    case Codec::Hevc:
        return SetX265(context, settings, first);
    case Codec::Av1:
        return SetSvtAv1(context, settings);
    }
    return AVERROR(EINVAL);
}
