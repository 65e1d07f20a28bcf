#include <KxMedia/Write/KxEncoderProof.h>

#include <KxMedia/Container/KxAvError.h>
#include <KxMedia/Container/KxAvLog.h>

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <array>
#include <cmath>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(KxEncoderProof)
};

using Encoder = KxOutputFormat::Encoder;
using Decoded = std::vector<KxAvFrame>;

constexpr int Planes = 3;
constexpr double IdenticalDb = 100.0;
/// Hardware is worse than software at an equal bit rate. Wrong pictures are worse by more than twice this.
constexpr double LargestLossDb = 6.0;
/// What is as similar as this is not wrong, however good the reference is.
constexpr double SimilarDb = 36.0;

class Decoder
{
public:
    explicit Decoder(Decoded& decoded)
        : m_decoded(decoded)
    {
    }

    int Open(const AVCodecContext& encoder)
    {
        const AVCodec* const codec = avcodec_find_decoder(encoder.codec_id);
        m_context.reset(codec != nullptr ? avcodec_alloc_context3(codec) : nullptr);
        std::unique_ptr<AVCodecParameters, void (*)(AVCodecParameters*)> parameters(
            avcodec_parameters_alloc(), [](AVCodecParameters* some) { avcodec_parameters_free(&some); });
        if (m_context == nullptr || parameters == nullptr) {
            return codec == nullptr ? AVERROR_DECODER_NOT_FOUND : AVERROR(ENOMEM);
        }
        KxMuteAvCodec(*m_context);
        int error = avcodec_parameters_from_context(parameters.get(), &encoder);
        if (error >= 0) {
            error = avcodec_parameters_to_context(m_context.get(), parameters.get());
        }
        return error < 0 ? error : avcodec_open2(m_context.get(), codec, nullptr);
    }

    /// Null ends the decoding.
    int Add(const AVPacket* packet)
    {
        int error = avcodec_send_packet(m_context.get(), packet);
        while (error >= 0) {
            KxAvFrame frame(av_frame_alloc());
            error = frame != nullptr ? avcodec_receive_frame(m_context.get(), frame.get()) : AVERROR(ENOMEM);
            if (error == AVERROR(EAGAIN) || error == AVERROR_EOF) {
                return 0;
            }
            if (error >= 0) {
                m_decoded.push_back(std::move(frame));
            }
        }
        return error;
    }

private:
    Decoded& m_decoded;
    KxAvCodec m_context;
};

KxResult<Decoded> EncodedAndDecoded(const KxVideoEncoder::Settings& settings, const std::vector<KxVideoFrame>& pictures)
{
    using Result = KxResult<Decoded>;
    const KxResult<std::unique_ptr<KxVideoEncoder>> encoder =
        KxVideoEncoder::Open(settings, pictures.front().Picture());
    if (!encoder) {
        return Result::Failure(encoder.Message());
    }
    Decoded decoded;
    Decoder decoder(decoded);
    int error = decoder.Open((*encoder)->Context());
    const KxPacketSink sink = [&decoder](AVPacket& packet) { return decoder.Add(&packet); };
    for (size_t i = 0; error >= 0 && i < pictures.size(); ++i) {
        error = (*encoder)->Encode(pictures[i].Picture(), static_cast<qint64>(i), sink);
    }
    if (error >= 0) {
        error = (*encoder)->Finish(sink);
    }
    if (error >= 0) {
        error = decoder.Add(nullptr);
    }
    if (error < 0) {
        return Result::Failure(KxAvErrorText(error));
    }
    return Result(std::move(decoded));
}

template<typename Sample>
double SumOfSquares(const AVFrame& a, const AVFrame& b, int plane, const QSize& size)
{
    double sum = 0.0;
    for (int y = 0; y < size.height(); ++y) {
        const auto* const rowA =
            reinterpret_cast<const Sample*>(a.data[plane] + static_cast<std::ptrdiff_t>(y) * a.linesize[plane]);
        const auto* const rowB =
            reinterpret_cast<const Sample*>(b.data[plane] + static_cast<std::ptrdiff_t>(y) * b.linesize[plane]);
        for (int x = 0; x < size.width(); ++x) {
            const int difference = rowA[x] - rowB[x];
            sum += 1.0 * difference * difference;
        }
    }
    return sum;
}

/// Peak signal-to-noise ratio of the plane that differs most, dB.
double Similarity(const AVFrame& a, const AVFrame& b)
{
    const bool isDeep = a.format == AV_PIX_FMT_YUV420P10;
    const double peak = isDeep ? 1023.0 : 255.0;
    double least = IdenticalDb;
    for (int plane = 0; plane < Planes; ++plane) {
        const QSize size = plane == 0 ? QSize(a.width, a.height) : QSize(a.width / 2, a.height / 2);
        const double sum =
            isDeep ? SumOfSquares<std::uint16_t>(a, b, plane, size) : SumOfSquares<std::uint8_t>(a, b, plane, size);
        const double mean = sum / (1.0 * size.width() * size.height());
        least = std::min(least, mean > 0.0 ? 10.0 * std::log10(peak * peak / mean) : IdenticalDb);
    }
    return least;
}

} // namespace

KxError KxEncoderProof::Compare(const KxVideoEncoder::Settings& candidate, const KxVideoEncoder::Settings& reference,
                                const std::vector<KxVideoFrame>& pictures)
{
    const KxResult<Decoded> decoded = EncodedAndDecoded(candidate, pictures);
    if (!decoded) {
        return decoded.Message();
    }
    const KxResult<Decoded> expected = EncodedAndDecoded(reference, pictures);
    if (!expected || (*expected).size() != pictures.size()) {
        return Texts::tr("there is nothing to compare it with");
    }
    if ((*decoded).size() != pictures.size()) {
        return Texts::tr("of %1 pictures it wrote %2")
            .arg(QString::number(pictures.size()), QString::number((*decoded).size()));
    }
    for (size_t i = 0; i < pictures.size(); ++i) {
        const AVFrame& original = pictures[i].Picture();
        const AVFrame& written = *(*decoded)[i];
        if (written.width != original.width || written.height != original.height || written.format != original.format) {
            return Texts::tr("its pictures have another size or format");
        }
        const double similarity = Similarity(original, written);
        const double least = std::min(SimilarDb, Similarity(original, *(*expected)[i]) - LargestLossDb);
        if (similarity < least) {
            return Texts::tr("its picture %1 differs too much (%2 dB, %3 are needed)")
                .arg(QString::number(i), QString::number(similarity, 'f', 1), QString::number(least, 'f', 1));
        }
    }
    return std::nullopt;
}

KxEncoderProof::Choice KxEncoderProof::Choose(KxVideoEncoder::Settings settings,
                                              const std::vector<KxVideoFrame>& pictures)
{
    KxVideoEncoder::Settings reference = settings;
    reference.format.encoder = Encoder::Software;
    Choice choice;
    QStringList reasons;
    for (const Encoder encoder : {Encoder::Nvenc, Encoder::Qsv, Encoder::Vaapi}) {
        settings.format.encoder = encoder;
        const KxError reason = Compare(settings, reference, pictures);
        if (!reason) {
            choice.encoder = encoder;
            break;
        }
        reasons += *reason;
    }
    choice.reason = reasons.join(QStringLiteral("; "));
    return choice;
}
