#include <KxMedia/Container/KxMp4Muxer.h>

namespace
{

struct DictionaryDelete {
    void operator()(AVDictionary* dictionary) const { av_dict_free(&dictionary); }
};

/// That of another container has no meaning here.
std::uint32_t TagOf(AVCodecID codec)
{
    // Some players accept no other tag.
    return codec == AV_CODEC_ID_HEVC ? MKTAG('h', 'v', 'c', '1') : 0;
}

} // namespace

KxMp4Muxer::KxMp4Muxer(QString path)
    : m_path(std::move(path))
{
}

AVStream* KxMp4Muxer::NewStream(AVRational timeBase)
{
    if (m_context == nullptr) {
        AVFormatContext* context = nullptr;
        // The prefix keeps a name with a colon from being taken for a protocol. The muxer needs the path: it opens the
        // file again to move the index.
        const QByteArray url = QByteArrayLiteral("file:") + m_path.toUtf8();
        if (avformat_alloc_output_context2(&context, nullptr, "mp4", url.constData()) < 0) {
            return nullptr;
        }
        m_context.reset(context);
    }
    AVStream* const stream = avformat_new_stream(m_context.get(), nullptr);
    if (stream != nullptr) {
        m_timeBases.push_back(timeBase);
        stream->time_base = timeBase;
    }
    return stream;
}

int KxMp4Muxer::AddStream(const AVCodecParameters& parameters, AVRational timeBase)
{
    AVStream* const stream = NewStream(timeBase);
    if (stream == nullptr) {
        return AVERROR(ENOMEM);
    }
    const int error = avcodec_parameters_copy(stream->codecpar, &parameters);
    stream->codecpar->codec_tag = TagOf(parameters.codec_id);
    stream->sample_aspect_ratio = parameters.sample_aspect_ratio;
    return error;
}

int KxMp4Muxer::AddStream(const AVCodecContext& encoder)
{
    AVStream* const stream = NewStream(encoder.time_base);
    if (stream == nullptr) {
        return AVERROR(ENOMEM);
    }
    stream->sample_aspect_ratio = encoder.sample_aspect_ratio;
    stream->avg_frame_rate = encoder.framerate;
    const int error = avcodec_parameters_from_context(stream->codecpar, &encoder);
    stream->codecpar->codec_tag = TagOf(encoder.codec_id);
    return error;
}

int KxMp4Muxer::Begin()
{
    int error = avio_open(&m_context->pb, m_context->url, AVIO_FLAG_WRITE);
    if (error < 0) {
        return error;
    }
    if (!m_comment.isEmpty()) {
        error = av_dict_set(&m_context->metadata, "comment", m_comment.toUtf8().constData(), 0);
        if (error < 0) {
            return error;
        }
    }
    AVDictionary* options = nullptr;
    error = av_dict_set(&options, "movflags", "+faststart", 0);
    if (error >= 0) {
        error = avformat_write_header(m_context.get(), &options);
    }
    const std::unique_ptr<AVDictionary, DictionaryDelete> leftOptions(options);
    m_hasBegun = error >= 0;
    return error < 0 ? error : 0;
}

int KxMp4Muxer::Write(AVPacket& packet, int stream)
{
    const AVStream& target = *m_context->streams[stream];
    av_packet_rescale_ts(&packet, m_timeBases[static_cast<size_t>(stream)], target.time_base);
    packet.stream_index = stream;
    const int error = av_interleaved_write_frame(m_context.get(), &packet);
    return error < 0 ? error : m_context->pb->error;
}

int KxMp4Muxer::End()
{
    int error = av_write_trailer(m_context.get());
    avio_flush(m_context->pb);
    if (error >= 0) {
        error = m_context->pb->error;
    }
    const int closing = avio_closep(&m_context->pb);
    return error < 0 ? error : closing;
}
