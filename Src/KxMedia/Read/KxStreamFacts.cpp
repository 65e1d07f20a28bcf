#include <KxMedia/Read/KxStreamFacts.h>

#include <KxMedia/Picture/KxFrameGrid.h>
#include <KxMedia/Picture/KxPictureShape.h>

#include <algorithm>
#include <array>
#include <cstring>

namespace
{

KxRational ToRational(AVRational value)
{
    return {value.num, value.den};
}

QString CodecName(const AVStream& stream)
{
    return QLatin1String(avcodec_get_name(stream.codecpar->codec_id));
}

} // namespace

KxMediaFacts KxFactsWithoutVideo(const KxInputFile& input)
{
    KxMediaFacts facts;
    facts.path = input.Path();
    for (const AVStream* stream : input.AudioStreams()) {
        const AVCodecParameters& codec = *stream->codecpar;
        facts.audio.push_back(
            {codec.sample_rate, codec.ch_layout.nb_channels, std::max<qint64>(0, codec.bit_rate), CodecName(*stream)});
    }
    if (!facts.audio.isEmpty()) {
        const int related = input.VideoStream() != nullptr ? input.VideoStream()->index : -1;
        const int best = av_find_best_stream(&input.Context(), AVMEDIA_TYPE_AUDIO, -1, related, nullptr, 0);
        facts.defaultAudio = 0;
        for (int i = 0; i < facts.audio.size(); ++i) {
            if (input.AudioStreams()[static_cast<size_t>(i)]->index == best) {
                facts.defaultAudio = i;
            }
        }
    }
    return facts;
}

KxRational KxGridRateOf(const KxInputFile& input)
{
    AVStream* stream = input.VideoStream();
    const AVRational guessed = av_guess_frame_rate(&input.Context(), stream, nullptr);
    return KxFrameGrid::SaneRate(ToRational(guessed), ToRational(stream->avg_frame_rate));
}

KxVideoFrame::Orientation KxOrientationOf(const AVStream& stream)
{
    size_t bytes = 0;
    const uint8_t* data = av_stream_get_side_data(&stream, AV_PKT_DATA_DISPLAYMATRIX, &bytes);
    std::array<std::int32_t, 9> matrix{};
    if (data == nullptr || bytes < sizeof(matrix)) {
        return {};
    }
    std::memcpy(matrix.data(), data, sizeof(matrix));
    return KxOrientationOf(matrix);
}

void KxCompleteVideoFacts(const KxVideoPackets& packets, KxVideoFacts& video, const QVector<KxAudioFacts>& audio)
{
    const AVStream& stream = packets.Stream();
    video.codecName = CodecName(stream);
    video.bitRate = stream.codecpar->bit_rate;
    if (video.bitRate > 0) {
        return;
    }
    const double seconds = static_cast<double>(video.frameCount) / video.frameRate.ToDouble();
    qint64 bits = static_cast<qint64>(static_cast<double>(packets.Input().FileSize()) * 8.0 / seconds);
    for (const KxAudioFacts& track : audio) {
        bits -= track.bitRate;
    }
    video.bitRate = std::max<qint64>(1, bits);
}
