#include <KxMedia/Write/KxSoundPackets.h>

#include <KxMedia/Container/KxAvError.h>

#include <QCoreApplication>

#include <algorithm>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(KxSoundPackets)
};

} // namespace

KxSoundPackets::KxSoundPackets(std::unique_ptr<KxInputFile> input, AVStream& stream, qint64 zeroUs)
    : m_input(std::move(input))
    , m_stream(&stream)
    , m_zeroTicks(av_rescale_q(zeroUs, KxMicroseconds, stream.time_base))
{
}

KxResult<std::unique_ptr<KxSoundPackets>> KxSoundPackets::Open(const QString& path, int stream,
                                                               const KxMediaClock& clock, const KxCancelToken& cancel)
{
    using Opened = KxResult<std::unique_ptr<KxSoundPackets>>;
    if (!clock.zeroUs || !clock.jumps || !clock.jumps->empty()) {
        return Opened::Failure(Texts::tr("the time stamps of the file jump"));
    }
    KxResult<std::unique_ptr<KxInputFile>> input = KxInputFile::Open(path, cancel, KxInputFile::Tracks::AllButPictures);
    if (!input) {
        return Opened::Failure(input.Message());
    }
    const std::vector<AVStream*>& streams = (*input)->AudioStreams();
    if (stream < 0 || static_cast<size_t>(stream) >= streams.size()) {
        return Opened::Failure(Texts::tr("there is no such sound track"));
    }
    AVStream& chosen = *streams[static_cast<size_t>(stream)];
    const AVOutputFormat* const mp4 = av_guess_format("mp4", nullptr, nullptr);
    if (mp4 == nullptr || avformat_query_codec(mp4, chosen.codecpar->codec_id, FF_COMPLIANCE_NORMAL) != 1) {
        return Opened::Failure(
            Texts::tr("MP4 cannot hold %1").arg(QLatin1String(avcodec_get_name(chosen.codecpar->codec_id))));
    }
    (*input)->Select(chosen);
    return std::unique_ptr<KxSoundPackets>(new KxSoundPackets(std::move(*input), chosen, *clock.zeroUs));
}

bool KxSoundPackets::PlaysEverywhere() const
{
    const AVCodecParameters& sound = Parameters();
    constexpr int stereo = 2;
    return sound.codec_id == AV_CODEC_ID_AAC && sound.profile == FF_PROFILE_AAC_LOW &&
           sound.ch_layout.nb_channels <= stereo;
}

KxReadStatus KxSoundPackets::Next(AVPacket& packet)
{
    for (;;) {
        av_packet_unref(&packet);
        const KxReadStatus status = m_input->Read(packet);
        if (status != KxReadStatus::Delivered) {
            return status;
        }
        if (packet.stream_index != m_stream->index) {
            continue;
        }
        // A packet without a time follows the one before.
        packet.pts = packet.pts != AV_NOPTS_VALUE ? packet.pts - m_zeroTicks : m_nextTicks;
        packet.dts = packet.pts;
        m_nextTicks = packet.pts + packet.duration;
        if (packet.pts + 2 * std::max<int64_t>(1, packet.duration) > 0) {
            return status;
        }
    }
}
