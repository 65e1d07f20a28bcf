#include <KxMedia/Write/KxAacEncoder.h>

#include <KxMedia/Container/KxAvError.h>
#include <KxMedia/Container/KxAvLog.h>

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(KxAacEncoder)
};

bool Supports(const AVCodec& codec, int sampleRateHz)
{
    for (const int* rate = codec.supported_samplerates; rate != nullptr && *rate != 0; ++rate) {
        if (*rate == sampleRateHz) {
            return true;
        }
    }
    return codec.supported_samplerates == nullptr;
}

} // namespace

KxAacEncoder::KxAacEncoder(KxAvCodec context, KxAvFrame frame, KxAvPacket packet)
    : m_context(std::move(context))
    , m_frame(std::move(frame))
    , m_packet(std::move(packet))
{
}

KxResult<std::unique_ptr<KxAacEncoder>> KxAacEncoder::Open(const KxAudioReader::Format& format, qint64 bitRate)
{
    using Opened = KxResult<std::unique_ptr<KxAacEncoder>>;
    const AVCodec* const codec = avcodec_find_encoder(AV_CODEC_ID_AAC);
    if (codec == nullptr) {
        return Opened::Failure(Texts::tr("the AAC encoder is missing"));
    }
    if (!Supports(*codec, format.sampleRateHz) || format.channels < 1) {
        return Opened::Failure(Texts::tr("sound of %1 Hz and %2 channels is not supported")
                                   .arg(QString::number(format.sampleRateHz), QString::number(format.channels)));
    }
    KxAvCodec context(avcodec_alloc_context3(codec));
    KxAvFrame frame(av_frame_alloc());
    KxAvPacket packet(av_packet_alloc());
    if (context == nullptr || frame == nullptr || packet == nullptr) {
        return Opened::Failure(KxAvErrorText(AVERROR(ENOMEM)));
    }
    KxMuteAvCodec(*context);
    context->sample_fmt = AV_SAMPLE_FMT_FLTP;
    context->sample_rate = format.sampleRateHz;
    context->time_base = AVRational{1, format.sampleRateHz};
    context->bit_rate = bitRate;
    context->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
    av_channel_layout_default(&context->ch_layout, format.channels);
    int error = avcodec_open2(context.get(), codec, nullptr);
    if (error >= 0) {
        frame->format = context->sample_fmt;
        frame->sample_rate = context->sample_rate;
        frame->nb_samples = context->frame_size;
        error = av_channel_layout_copy(&frame->ch_layout, &context->ch_layout);
    }
    if (error >= 0) {
        error = av_frame_get_buffer(frame.get(), 0);
    }
    if (error < 0) {
        return Opened::Failure(Texts::tr("the sound encoder does not start (%1)").arg(KxAvErrorText(error)));
    }
    return std::unique_ptr<KxAacEncoder>(new KxAacEncoder(std::move(context), std::move(frame), std::move(packet)));
}

int KxAacEncoder::Encode(const KxAudioBlock& block, const KxPacketSink& sink)
{
    const auto channels = static_cast<size_t>(m_context->ch_layout.nb_channels);
    if (!m_hasStarted) {
        m_hasStarted = true;
        m_nextSample = av_rescale_q(block.timeUs, KxMicroseconds, m_context->time_base);
    }
    m_waiting.insert(m_waiting.end(), block.samples.begin(), block.samples.end());
    const size_t valuesPerFrame = static_cast<size_t>(m_context->frame_size) * channels;
    size_t used = 0;
    int error = 0;
    while (error >= 0 && m_waiting.size() - used >= valuesPerFrame) {
        error = EncodeFrame(used, m_context->frame_size, sink);
        used += valuesPerFrame;
    }
    m_waiting.erase(m_waiting.begin(), m_waiting.begin() + static_cast<std::ptrdiff_t>(used));
    return error;
}

int KxAacEncoder::EncodeFrame(size_t firstValue, int samples, const KxPacketSink& sink)
{
    const int error = av_frame_make_writable(m_frame.get());
    if (error < 0) {
        return error;
    }
    const int channels = m_context->ch_layout.nb_channels;
    const float* from = m_waiting.data() + firstValue;
    for (int sample = 0; sample < samples; ++sample) {
        for (int channel = 0; channel < channels; ++channel, ++from) {
            // Damaged sound can decode to NaN, at which the encoder would fail.
            reinterpret_cast<float*>(m_frame->extended_data[channel])[sample] = std::isfinite(*from) ? *from : 0.0F;
        }
    }
    m_frame->nb_samples = samples;
    m_frame->pts = m_nextSample;
    m_nextSample += samples;
    return KxEncode(*m_context, m_frame.get(), *m_packet, sink);
}

int KxAacEncoder::Finish(const KxPacketSink& sink)
{
    const auto rest = static_cast<int>(m_waiting.size()) / m_context->ch_layout.nb_channels;
    if (rest > 0) {
        const int error = EncodeFrame(0, rest, sink);
        m_waiting.clear();
        if (error < 0) {
            return error;
        }
    }
    return KxEncode(*m_context, nullptr, *m_packet, sink);
}
