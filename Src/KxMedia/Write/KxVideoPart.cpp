#include <KxMedia/Write/KxVideoPart.h>

#include <KxMedia/Container/KxAvError.h>

#include <QCoreApplication>

#include <cstring>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(KxVideoPart)
};

} // namespace

KxVideoPart::KxVideoPart(std::unique_ptr<KxInputFile> input, AVRational timeBase)
    : m_input(std::move(input))
    , m_stream(m_input->VideoStream())
    , m_timeBase(timeBase)
    , m_first(av_packet_alloc())
{
    m_input->Select(*m_stream);
}

KxResult<std::unique_ptr<KxVideoPart>> KxVideoPart::Open(const QString& path, const KxRational& rate,
                                                         const KxCancelToken& cancel)
{
    using Opened = KxResult<std::unique_ptr<KxVideoPart>>;
    KxResult<std::unique_ptr<KxInputFile>> input = KxInputFile::Open(path, cancel);
    if (!input) {
        return Opened::Failure(input.Message());
    }
    if ((*input)->VideoStream() == nullptr) {
        return Opened::Failure(KxInputFile::Message(path, (*input)->ReasonForNoVideo()));
    }
    std::unique_ptr<KxVideoPart> part(new KxVideoPart(std::move(*input), AVRational{rate.denominator, rate.numerator}));
    if (part->m_first == nullptr || part->Read(*part->m_first) != KxReadStatus::Delivered) {
        return Opened::Failure(KxInputFile::Message(path, Texts::tr("it has no picture")));
    }
    part->m_delay = part->m_first->pts - part->m_first->dts;
    AVCodecParameters& parameters = *part->m_stream->codecpar;
    parameters.bit_rate = 0;                           // that of this part alone
    parameters.sample_aspect_ratio = AVRational{1, 1}; // for AV1 it is not read from the file
    return part;
}

bool KxVideoPart::CanFollow(const KxVideoPart& other) const
{
    const AVCodecParameters& mine = Parameters();
    const AVCodecParameters& others = other.Parameters();
    return mine.codec_id == others.codec_id && mine.width == others.width && mine.height == others.height &&
           mine.extradata_size == others.extradata_size &&
           std::memcmp(mine.extradata, others.extradata, static_cast<std::size_t>(mine.extradata_size)) == 0;
}

KxReadStatus KxVideoPart::Read(AVPacket& packet)
{
    for (;;) {
        av_packet_unref(&packet);
        const KxReadStatus status = m_input->Read(packet);
        if (status != KxReadStatus::Delivered) {
            return status;
        }
        if (packet.stream_index == m_stream->index) {
            av_packet_rescale_ts(&packet, m_stream->time_base, m_timeBase);
            packet.duration = 1;
            return status;
        }
    }
}

KxReadStatus KxVideoPart::Next(AVPacket& packet)
{
    if (m_first->data == nullptr) {
        return Read(packet);
    }
    av_packet_unref(&packet);
    av_packet_move_ref(&packet, m_first.get());
    return KxReadStatus::Delivered;
}
