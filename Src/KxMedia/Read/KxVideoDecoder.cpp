#include <KxMedia/Read/KxVideoDecoder.h>

#include <KxMedia/Container/KxAvError.h>
#include <KxMedia/Container/KxAvLog.h>
#include <KxMedia/Picture/KxPictureColour.h>

#include <QCoreApplication>

#include <algorithm>
#include <thread>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(KxVideoDecoder)
};

constexpr int MostErrorsInARow = 200;

// A decoding thread holds a picture of its own. Pictures beyond the largest level of H.264 are not played but
// converted, so they are decoded by a single thread: 130 MB less for each of the others.
constexpr qint64 MostPixelsForThreads = qint64{8192} * 4352;
constexpr qint64 ThreadsPictureBytes = qint64{256} * 1024 * 1024;

int MostThreads(const AVCodecParameters& parameters)
{
    const qint64 pixels = qint64{parameters.width} * parameters.height;
    if (pixels > MostPixelsForThreads) {
        return 1;
    }
    const qint64 pictureBytes = std::max<qint64>(1, pixels * 3 / 2);
    return static_cast<int>(std::clamp<qint64>(ThreadsPictureBytes / pictureBytes, 1, 64));
}

// Each thread beyond the first delays the first picture after a seek by one picture. A single pass over the file is not
// affected by that, and more threads keep all cores busy while some wait for the pictures that theirs refer to
// (measured: 6 % less time than with twice the cores).
int ThreadCount(KxVideoDecoder::Effort effort)
{
    if (effort == KxVideoDecoder::Effort::FirstPicture) {
        return 1;
    }
    const int cores = static_cast<int>(std::clamp(std::thread::hardware_concurrency(), 2U, 4U));
    return effort == KxVideoDecoder::Effort::Full ? cores : 2 * cores + 1;
}

std::optional<qint64> Known(int64_t ticks)
{
    return ticks != AV_NOPTS_VALUE ? std::optional<qint64>(ticks) : std::nullopt;
}

KxResult<KxAvCodec> OpenCodec(const KxVideoPackets& packets, KxVideoDecoder::Effort effort)
{
    using Result = KxResult<KxAvCodec>;
    const AVCodecParameters& parameters = *packets.Stream().codecpar;
    const AVCodec* codec = avcodec_find_decoder(parameters.codec_id);
    if (codec == nullptr) {
        return Result::Failure(Texts::tr("its video format (%1) is not supported")
                                   .arg(QLatin1String(avcodec_get_name(parameters.codec_id))));
    }
    KxAvCodec context(avcodec_alloc_context3(codec));
    if (!context || avcodec_parameters_to_context(context.get(), &parameters) < 0) {
        return Result::Failure(KxAvErrorText(AVERROR(ENOMEM)));
    }
    KxMuteAvCodec(*context);
    context->pkt_timebase = packets.TimeBase();
    context->thread_count = std::min(ThreadCount(effort), MostThreads(parameters));
    context->max_pixels = KxInputFile::LargestPicturePixels;
    if (effort != KxVideoDecoder::Effort::Full) {
        context->skip_loop_filter = AVDISCARD_ALL;
    }
    const int error = avcodec_open2(context.get(), codec, nullptr);
    if (error < 0) {
        return Result::Failure(error == AVERROR(ENOMEM) ? KxAvErrorText(error)
                                                        : Texts::tr("its video stream is damaged"));
    }
    return context;
}

} // namespace

KxResult<std::unique_ptr<KxVideoDecoder>> KxVideoDecoder::Open(KxVideoPackets& packets, Effort effort)
{
    KxResult<KxAvCodec> codec = OpenCodec(packets, effort);
    if (!codec) {
        return KxResult<std::unique_ptr<KxVideoDecoder>>::Failure(codec.Message());
    }
    return std::unique_ptr<KxVideoDecoder>(new KxVideoDecoder(packets, std::move(*codec)));
}

KxError KxVideoDecoder::Restart(Effort effort)
{
    KxResult<KxAvCodec> codec = OpenCodec(m_packets, effort);
    if (!codec) {
        return codec.Message();
    }
    m_codec = std::move(*codec);
    m_skip = Skip::Nothing;
    m_maySkip = true;
    Flush(Place::Start);
    return std::nullopt;
}

KxVideoDecoder::KxVideoDecoder(KxVideoPackets& packets, KxAvCodec codec)
    : m_packets(packets)
    , m_codec(std::move(codec))
    , m_packet(av_packet_alloc())
    , m_repair(std::max<qint64>(1, packets.StepTicks()))
    , m_packetsSincePicture(-Latency())
{
}

int KxVideoDecoder::Latency() const
{
    const bool threadsTakeFrames = (m_codec->active_thread_type & FF_THREAD_FRAME) != 0;
    return m_codec->has_b_frames + (threadsTakeFrames ? m_codec->thread_count - 1 : 0);
}

KxReadStatus KxVideoDecoder::Next(Picture& picture)
{
    picture.frame.reset(av_frame_alloc());
    if (!picture.frame || !m_packet) {
        return KxReadStatus::Failed;
    }
    for (;;) {
        const int result = avcodec_receive_frame(m_codec.get(), picture.frame.get());
        if (result >= 0) {
            m_errorsInARow = 0;
            m_packetsSincePicture = 0;
            KxPictureColour::RemoveUnknown(*picture.frame);
            if (Accept(picture)) {
                return KxReadStatus::Delivered;
            }
        } else if (result == AVERROR_EOF) {
            return KxReadStatus::End;
        } else if (result != AVERROR(EAGAIN)) {
            if (!CountError()) {
                return KxReadStatus::Failed;
            }
        } else if (const KxReadStatus status = Feed(); status != KxReadStatus::Delivered) {
            return status;
        }
    }
}

bool KxVideoDecoder::CountError()
{
    return ++m_errorsInARow < MostErrorsInARow;
}

KxReadStatus KxVideoDecoder::Feed()
{
    const KxReadStatus status = m_isDraining ? KxReadStatus::End : m_packets.Next(*m_packet);
    if (status == KxReadStatus::Cancelled) {
        return status;
    }
    if (status != KxReadStatus::Delivered) {
        // After a read error, the decoder may still hold complete pictures.
        m_isDraining = true;
        return avcodec_send_packet(m_codec.get(), nullptr) >= 0 ? KxReadStatus::Delivered : KxReadStatus::End;
    }
    const std::optional<qint64> ticks = Known(m_packet->pts != AV_NOPTS_VALUE ? m_packet->pts : m_packet->dts);
    if (m_guessedClock == Clock::Unknown) {
        m_guessedClock = m_packet->pts != AV_NOPTS_VALUE ? Clock::Presentation : Clock::Decoding;
    }
    m_lastPacketTicks = ticks;
    if (!m_firstPacketTicks) {
        m_firstPacketTicks = ticks;
    }
    if (!m_isAtStart && !m_landingTicks) {
        m_landingTicks = Known(m_packet->pts);
    }
    m_maySkip = m_maySkip && (!m_longestSkip || m_packetsSincePicture <= *m_longestSkip);
    const Clock clock = m_clock != Clock::Unknown ? m_clock : m_guessedClock;
    const bool isSkipping = m_maySkip && m_skip == Skip::NonReference && clock == Clock::Presentation;
    m_codec->skip_frame = isSkipping ? AVDISCARD_NONREF : AVDISCARD_DEFAULT;
    if (isSkipping && ticks) {
        NoteSkippable(*ticks);
    }
    const int result = avcodec_send_packet(m_codec.get(), m_packet.get());
    av_packet_unref(m_packet.get());
    ++m_packetsSincePicture;
    if (result < 0 && result != AVERROR(EAGAIN) && !CountError()) {
        return KxReadStatus::Failed;
    }
    return KxReadStatus::Delivered;
}

void KxVideoDecoder::NoteSkippable(qint64 ticks)
{
    // Pictures that the container excludes are never delivered.
    const bool isExcluded = (m_packet->flags & AV_PKT_FLAG_DISCARD) != 0;
    if (!isExcluded) {
        m_earliestSkippableTicks = std::min(ticks, m_earliestSkippableTicks.value_or(ticks));
    }
    m_latestSkippableTicks = std::max(ticks, m_latestSkippableTicks.value_or(ticks));
}

bool KxVideoDecoder::MayHaveSkippedWrongly(qint64 ticks) const
{
    if (m_skip == Skip::Nothing) {
        return false;
    }
    return m_clock != m_guessedClock || (m_earliestSkippableTicks && *m_earliestSkippableTicks < ticks);
}

std::optional<qint64> KxVideoDecoder::TimeOf(const AVFrame& frame)
{
    if (m_clock == Clock::Unknown) {
        m_clock = frame.pts != AV_NOPTS_VALUE ? Clock::Presentation : Clock::Decoding;
    }
    if (m_clock == Clock::Presentation) {
        return Known(frame.pts);
    }
    // At the end of the packets, the decoder releases pictures without a time.
    const bool isFirst = m_isAtStart && m_repair.IsReset();
    return frame.pkt_dts == AV_NOPTS_VALUE && isFirst ? m_firstPacketTicks : Known(frame.pkt_dts);
}

bool KxVideoDecoder::Accept(Picture& picture)
{
    const AVFrame& frame = *picture.frame;
    const std::optional<qint64> ticks = TimeOf(frame);
    // Pictures displayed before the key frame of a seek may refer to pictures that were not decoded.
    const bool isBeforeLanding = m_clock == Clock::Presentation && m_landingTicks && ticks && *ticks < *m_landingTicks;
    const std::optional<qint64> repaired = isBeforeLanding ? std::nullopt : m_repair.Repair(ticks);
    if (!repaired || frame.width <= 0 || frame.height <= 0) {
        av_frame_unref(picture.frame.get());
        return false;
    }
    picture.ticks = *repaired;
    return true;
}

void KxVideoDecoder::Flush(Place place)
{
    avcodec_flush_buffers(m_codec.get());
    m_repair.Reset();
    m_isDraining = false;
    m_isAtStart = place == Place::Start;
    m_errorsInARow = 0;
    m_packetsSincePicture = -Latency();
    m_earliestSkippableTicks.reset();
    m_latestSkippableTicks.reset();
    m_lastPacketTicks.reset();
    m_landingTicks.reset();
}

void KxVideoDecoder::SetSkip(Skip skip)
{
    m_skip = skip;
}
