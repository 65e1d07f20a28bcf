#include <KxMedia/Read/KxAudioTrack.h>

#include <KxMedia/Container/KxAvError.h>
#include <KxMedia/Container/KxAvLog.h>

extern "C" {
#include <libavutil/channel_layout.h>
#include <libavutil/common.h>
}

#include <QCoreApplication>

#include <algorithm>
#include <cstdlib>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(KxAudioTrack)
};

constexpr int MostErrorsInARow = 200;
// Some containers round time stamps to milliseconds; a real gap is at least one packet long.
constexpr int JitterMs = 15;
// Decoders need one or two packets before a seek's target for their output to settle.
constexpr qint64 RunUpUs = 200000;
// The assumed distance of two packets at a join of clocks: 1024 samples at 48 kHz.
constexpr qint64 UsualPacketUs = 21333;

} // namespace

KxResult<std::unique_ptr<KxAudioTrack>> KxAudioTrack::Open(std::unique_ptr<KxInputFile> input, AVStream& stream,
                                                           const KxAudioReader::Format& format, KxMediaClock clock)
{
    using Result = KxResult<std::unique_ptr<KxAudioTrack>>;
    const AVCodec* codec = avcodec_find_decoder(stream.codecpar->codec_id);
    if (codec == nullptr) {
        return Result::Failure(Texts::tr("its sound format (%1) is not supported")
                                   .arg(QLatin1String(avcodec_get_name(stream.codecpar->codec_id))));
    }
    KxAvCodec context(avcodec_alloc_context3(codec));
    if (!context || avcodec_parameters_to_context(context.get(), stream.codecpar) < 0) {
        return Result::Failure(KxAvErrorText(AVERROR(ENOMEM)));
    }
    KxMuteAvCodec(*context);
    context->pkt_timebase = stream.time_base;
    context->thread_count = 1;
    if (avcodec_open2(context.get(), codec, nullptr) < 0) {
        return Result::Failure(Texts::tr("its sound is damaged"));
    }
    return std::unique_ptr<KxAudioTrack>(
        new KxAudioTrack(std::move(input), stream, std::move(context), format, std::move(clock)));
}

KxAudioTrack::KxAudioTrack(std::unique_ptr<KxInputFile> input, AVStream& stream, KxAvCodec codec,
                           const KxAudioReader::Format& format, KxMediaClock clock)
    : m_input(std::move(input))
    , m_streamIndex(stream.index)
    , m_timeBase(stream.time_base)
    , m_codec(std::move(codec))
    , m_format(format)
    , m_zeroUs(clock.zeroUs)
    , m_jumps(clock.jumps.value_or(std::vector<KxClockJump>()))
    , m_packet(av_packet_alloc())
    , m_frame(av_frame_alloc())
{
    if (!clock.jumps) {
        m_join.emplace(std::max<qint64>(1, av_rescale_q(UsualPacketUs, KxMicroseconds, m_timeBase)),
                       std::max<qint64>(1, av_rescale_q(AV_TIME_BASE, KxMicroseconds, m_timeBase)));
    }
    m_input->Select(stream);
}

KxReadStatus KxAudioTrack::Next(Run& run)
{
    run.samples.clear();
    if (!m_packet || !m_frame) {
        return KxReadStatus::Failed;
    }
    for (;;) {
        const int result = m_hasFrame ? 0 : avcodec_receive_frame(m_codec.get(), m_frame.get());
        if (result >= 0) {
            m_errorsInARow = 0;
            m_hasFrame = true;
            if (TakeFrame(run)) {
                return KxReadStatus::Delivered;
            }
        } else if (result == AVERROR_EOF) {
            return EndRun(run) ? KxReadStatus::Delivered : KxReadStatus::End;
        } else if (result != AVERROR(EAGAIN)) {
            if (++m_errorsInARow >= MostErrorsInARow) {
                return KxReadStatus::Failed;
            }
        } else if (const KxReadStatus status = Feed(); status != KxReadStatus::Delivered) {
            return status;
        }
    }
}

KxReadStatus KxAudioTrack::Feed()
{
    KxReadStatus status = m_isDraining ? KxReadStatus::End : m_input->Read(*m_packet);
    while (status == KxReadStatus::Delivered && m_packet->stream_index != m_streamIndex) {
        av_packet_unref(m_packet.get());
        status = m_input->Read(*m_packet);
    }
    if (status == KxReadStatus::Cancelled) {
        return status;
    }
    if (status != KxReadStatus::Delivered) {
        m_isDraining = true;
        return avcodec_send_packet(m_codec.get(), nullptr) >= 0 ? KxReadStatus::Delivered : KxReadStatus::End;
    }
    ShiftOverJumps(*m_packet);
    const int result = avcodec_send_packet(m_codec.get(), m_packet.get());
    av_packet_unref(m_packet.get());
    const bool isBad = result < 0 && result != AVERROR(EAGAIN);
    return isBad && ++m_errorsInARow >= MostErrorsInARow ? KxReadStatus::Failed : KxReadStatus::Delivered;
}

// The clocks of sound and pictures jump together in a concatenated file.
void KxAudioTrack::ShiftOverJumps(AVPacket& packet)
{
    const int64_t ticks = packet.dts != AV_NOPTS_VALUE ? packet.dts : packet.pts;
    std::optional<qint64> position;
    std::optional<qint64> timeUs;
    if (packet.pos >= 0) {
        position = packet.pos;
    }
    if (ticks != AV_NOPTS_VALUE) {
        timeUs = av_rescale_q(ticks, m_timeBase, KxMicroseconds);
    }
    qint64 offsetTicks = av_rescale_q(m_jumps.OffsetUs(position, timeUs), KxMicroseconds, m_timeBase);
    if (m_join) {
        offsetTicks = timeUs ? m_join->OffsetFor(ticks) : m_join->Offset();
    }
    packet.pts = packet.pts != AV_NOPTS_VALUE ? av_sat_add64(packet.pts, offsetTicks) : packet.pts;
    packet.dts = packet.dts != AV_NOPTS_VALUE ? av_sat_add64(packet.dts, offsetTicks) : packet.dts;
}

qint64 KxAudioTrack::PositionOf(int64_t ticks)
{
    const AVRational sample{1, m_format.sampleRateHz};
    if (!m_zeroUs) {
        m_zeroUs = av_rescale_q(ticks, m_timeBase, KxMicroseconds);
    }
    return av_rescale_q(ticks, m_timeBase, sample) - av_rescale_q(*m_zeroUs, KxMicroseconds, sample);
}

qint64 KxAudioTrack::Expected() const
{
    return m_anchor + av_rescale(m_samplesIn, m_format.sampleRateHz, m_frame->sample_rate);
}

// The samples that the converter still holds end the run.
bool KxAudioTrack::EndRun(Run& run)
{
    if (!m_converter) {
        return false;
    }
    run.position = m_nextOut;
    const bool isDone = m_converter->Drain(run.samples);
    m_converter.reset();
    return isDone;
}

bool KxAudioTrack::TakeFrame(Run& run)
{
    const AVFrame& frame = *m_frame;
    const int64_t ticks = frame.best_effort_timestamp;
    const bool isUsable = frame.nb_samples > 0 && frame.sample_rate > 0 && (m_converter || ticks != AV_NOPTS_VALUE);
    if (isUsable && m_converter) {
        const qint64 jitter = qint64{m_format.sampleRateHz} * JitterMs / 1000;
        const bool isElsewhere = ticks != AV_NOPTS_VALUE && std::abs(PositionOf(ticks) - Expected()) > jitter;
        if (isElsewhere || !m_converter->Takes(frame)) {
            return EndRun(run);
        }
    }
    if (isUsable && !m_converter) {
        m_converter = KxSampleConverter::Make(frame, m_format);
        m_anchor = PositionOf(ticks);
        m_nextOut = m_anchor;
        m_samplesIn = 0;
    }
    bool isDone = false;
    if (isUsable && m_converter) {
        run.position = m_nextOut;
        isDone = m_converter->Convert(frame, run.samples);
        m_samplesIn += frame.nb_samples;
        m_nextOut += static_cast<qint64>(run.samples.size()) / m_format.channels;
    }
    m_hasFrame = false;
    av_frame_unref(m_frame.get());
    return isDone;
}

void KxAudioTrack::StartAgain()
{
    avcodec_flush_buffers(m_codec.get());
    av_frame_unref(m_frame.get());
    m_hasFrame = false;
    m_converter.reset();
    m_jumps.Reset();
    if (m_join) {
        m_join->Reset(0);
    }
    m_isDraining = false;
    m_errorsInARow = 0;
}

bool KxAudioTrack::SeekBefore(qint64 position)
{
    StartAgain();
    if (!m_jumps.IsEmpty()) {
        return false;
    }
    const qint64 timeUs = av_rescale(position, AV_TIME_BASE, m_format.sampleRateHz) + m_zeroUs.value_or(0) - RunUpUs;
    return av_seek_frame(&m_input->Context(), m_streamIndex, av_rescale_q(timeUs, KxMicroseconds, m_timeBase),
                         AVSEEK_FLAG_BACKWARD) >= 0;
}

bool KxAudioTrack::Rewind()
{
    StartAgain();
    if (m_input->HasChanged()) {
        return false;
    }
    KxResult<std::unique_ptr<KxInputFile>> again =
        KxInputFile::Open(m_input->Path(), m_input->Cancel(), m_input->ReadTracks());
    if (!again || m_streamIndex >= static_cast<int>((*again)->Context().nb_streams)) {
        return false;
    }
    m_input = std::move(*again);
    m_input->Select(*m_input->Context().streams[m_streamIndex]);
    return true;
}
