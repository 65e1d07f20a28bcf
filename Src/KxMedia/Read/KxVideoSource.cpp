#include <KxMedia/Read/KxVideoSource.h>

#include <KxMedia/Picture/KxPictureShape.h>
#include <KxMedia/Read/KxStreamFacts.h>

extern "C" {
#include <libavutil/common.h>
}

#include <QCoreApplication>

#include <array>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(KxVideoSource)
};

QString CancelledReason()
{
    return Texts::tr("it was cancelled");
}

// Skipped pictures must not leave gaps of more than a quarter of a second in the analysis: streams that consist mostly
// of non-reference pictures are decoded completely.
constexpr int LargestHolesASecond = 4;
// The analysis takes ten samples a second, and skipping leaves about half of the pictures.
constexpr double LowestRateToSkip = 20.0;

} // namespace

KxResult<std::unique_ptr<KxVideoSource>> KxVideoSource::Open(const QString& path, const KxCancelToken& cancel,
                                                             KxVideoDecoder::Effort effort)
{
    KxResult<std::unique_ptr<KxInputFile>> input = KxInputFile::Open(path, cancel);
    if (!input) {
        return KxResult<std::unique_ptr<KxVideoSource>>::Failure(input.Message());
    }
    return Open(std::move(*input), effort);
}

KxResult<std::unique_ptr<KxVideoSource>> KxVideoSource::Open(std::unique_ptr<KxInputFile> input,
                                                             KxVideoDecoder::Effort effort)
{
    const QString path = input->Path();
    std::unique_ptr<KxVideoSource> source(new KxVideoSource);
    if (const KxError reason = source->Prepare(std::move(input), effort)) {
        return KxResult<std::unique_ptr<KxVideoSource>>::Failure(KxInputFile::Message(path, *reason));
    }
    return source;
}

KxError KxVideoSource::Prepare(std::unique_ptr<KxInputFile> input, KxVideoDecoder::Effort effort)
{
    if (input->VideoStream() == nullptr) {
        return input->ReasonForNoVideo();
    }
    m_facts = KxFactsWithoutVideo(*input);
    const KxRational rate = KxGridRateOf(*input);
    m_orientation = KxOrientationOf(*input->VideoStream());
    m_packets = std::make_unique<KxVideoPackets>(std::move(input), rate);
    if (const KxReadStatus status = m_packets->Prepare(); status != KxReadStatus::Delivered) {
        return status == KxReadStatus::Cancelled ? CancelledReason() : Texts::tr("it is damaged");
    }
    // Only a scan is sure to continue after the first picture. A seek would wait for what is decoded ahead.
    const bool isScan = effort == KxVideoDecoder::Effort::SkipNonReference;
    KxResult<std::unique_ptr<KxVideoDecoder>> decoder =
        KxVideoDecoder::Open(*m_packets, isScan ? effort : KxVideoDecoder::Effort::FirstPicture);
    if (!decoder) {
        return decoder.Message();
    }
    m_decoder = std::move(*decoder);
    m_facts.video.emplace();
    m_facts.video->frameRate = rate;

    KxVideoDecoder::Picture first;
    const KxReadStatus status = DecodeFirst(effort, first);
    if (status != KxReadStatus::Delivered) {
        return status == KxReadStatus::Cancelled ? CancelledReason()
                                                 : Texts::tr("no picture of it can be decoded, it is damaged");
    }
    const AVRational base = m_packets->TimeBase();
    m_grid.emplace(rate, KxRational{base.num, base.den}, first.ticks);
    m_facts.video->resolution = DisplayedSizeOf(*first.frame);
    if (KxError reason = MeasureLength(first.ticks)) {
        return reason;
    }
    if (IsStillPicture()) {
        return Texts::tr("it is a single picture, not a video");
    }
    KxCompleteVideoFacts(*m_packets, *m_facts.video, m_facts.audio);
    if (effort != KxVideoDecoder::Effort::FirstPicture) {
        m_packets->LeaveOutSound();
    }
    if (effort == KxVideoDecoder::Effort::Full) {
        m_deinterlacer.emplace();
    }
    if (isScan && m_packets->Resume()) {
        m_first = std::move(first);
        return std::nullopt;
    }
    return StartAgain(effort);
}

KxReadStatus KxVideoSource::DecodeFirst(KxVideoDecoder::Effort effort, KxVideoDecoder::Picture& first)
{
    const bool isSkipping = StartSkipping(effort);
    const KxReadStatus status = m_decoder->Next(first);
    const bool mayBeWrong =
        isSkipping && (status != KxReadStatus::Delivered || m_decoder->MayHaveSkippedWrongly(first.ticks));
    if (!mayBeWrong || status == KxReadStatus::Cancelled) {
        return status;
    }
    if (!m_packets->Reopen()) {
        return KxReadStatus::Failed;
    }
    KxResult<std::unique_ptr<KxVideoDecoder>> decoder =
        KxVideoDecoder::Open(*m_packets, KxVideoDecoder::Effort::FirstPicture);
    if (!decoder) {
        return KxReadStatus::Failed;
    }
    m_decoder = std::move(*decoder);
    return m_decoder->Next(first);
}

bool KxVideoSource::StartSkipping(KxVideoDecoder::Effort effort)
{
    const double rate = m_facts.video->frameRate.ToDouble();
    if (effort != KxVideoDecoder::Effort::SkipNonReference || rate < LowestRateToSkip) {
        return false;
    }
    m_decoder->SetLongestSkip(static_cast<int>(rate / LargestHolesASecond));
    m_decoder->SetSkip(KxVideoDecoder::Skip::NonReference);
    return true;
}

KxError KxVideoSource::StartAgain(KxVideoDecoder::Effort effort)
{
    if (!Rewind()) {
        return Texts::tr("it cannot be read from the start again");
    }
    KxError reason = m_decoder->Restart(effort);
    StartSkipping(effort);
    return reason;
}

KxError KxVideoSource::MeasureLength(qint64 firstTicks)
{
    const qint64 firstPacketTicks = m_decoder->FirstPacketTicks().value_or(firstTicks);
    const bool hasPresentationTimes = m_decoder->HasPresentationTimes();
    const qint64 clockStart = hasPresentationTimes ? firstTicks : firstPacketTicks;
    m_facts.video->firstPictureUs = av_rescale_q(clockStart, m_packets->TimeBase(), KxMicroseconds);
    std::optional<KxVideoPackets::Tail> tail = m_packets->FindTail();
    if (m_packets->Input().IsCancelled()) {
        return CancelledReason();
    }
    qint64 length = 1;
    if (tail) {
        // Without presentation times, a picture carries the time of the packet that made the decoder release it.
        const qint64 lastTicks = av_sat_add64(tail->lastTicks, av_sat_sub64(firstTicks, clockStart));
        m_lastPictureIndex = m_grid->IndexOf(lastTicks);
        length = m_grid->LengthUpTo(lastTicks, tail->lastDurationTicks);
    }
    if (length > KxFrameGrid::LongestGrid) {
        const qint64 durationUs = m_packets->Input().Context().duration;
        const AVRational frame{m_facts.video->frameRate.denominator, m_facts.video->frameRate.numerator};
        length = durationUs > 0 ? av_rescale_q(durationUs, KxMicroseconds, frame) : length;
        m_lastPictureIndex = length - 1;
    }
    if (length > KxFrameGrid::LongestGrid || length < 1) {
        return Texts::tr("its time stamps are damaged");
    }
    m_facts.video->frameCount = length;
    return std::nullopt;
}

bool KxVideoSource::IsStillPicture() const
{
    if (m_lastPictureIndex > 0) {
        return false;
    }
    constexpr std::array stillCodecs{AV_CODEC_ID_MJPEG, AV_CODEC_ID_PNG,  AV_CODEC_ID_APNG,     AV_CODEC_ID_GIF,
                                     AV_CODEC_ID_BMP,   AV_CODEC_ID_TIFF, AV_CODEC_ID_JPEG2000, AV_CODEC_ID_WEBP};
    for (const AVCodecID codec : stillCodecs) {
        if (m_packets->Stream().codecpar->codec_id == codec) {
            return true;
        }
    }
    const AVDictionaryEntry* brand = av_dict_get(m_packets->Input().Context().metadata, "major_brand", nullptr, 0);
    const QLatin1String name(brand != nullptr ? brand->value : "");
    return name == QLatin1String("avif") || name == QLatin1String("heic") || name == QLatin1String("mif1");
}

void KxVideoSource::Flush(KxVideoDecoder::Place place)
{
    m_first.reset();
    m_decoder->Flush(place);
    if (m_deinterlacer) {
        m_deinterlacer->Reset();
    }
}

bool KxVideoSource::Rewind()
{
    Flush(KxVideoDecoder::Place::Start);
    return m_packets->Rewind();
}

bool KxVideoSource::Seek(qint64 ticks)
{
    Flush(KxVideoDecoder::Place::KeyFrame);
    return m_packets->Seek(ticks);
}

KxReadStatus KxVideoSource::NextDecoded(KxVideoDecoder::Picture& picture)
{
    if (!m_first) {
        return m_decoder->Next(picture);
    }
    picture = std::move(*m_first);
    m_first.reset();
    return KxReadStatus::Delivered;
}

KxReadStatus KxVideoSource::NextWhole(KxVideoDecoder::Picture& picture)
{
    for (;;) {
        if (std::optional<KxVideoDecoder::Picture> whole = m_deinterlacer->Take()) {
            picture = std::move(*whole);
            return KxReadStatus::Delivered;
        }
        KxVideoDecoder::Picture decoded;
        const KxReadStatus status = NextDecoded(decoded);
        if (status == KxReadStatus::Delivered) {
            m_deinterlacer->Add(std::move(decoded));
        } else if (status == KxReadStatus::Cancelled || !m_deinterlacer->End()) {
            return status;
        }
    }
}

KxReadStatus KxVideoSource::Next(KxVideoFrame& picture)
{
    KxVideoDecoder::Picture decoded;
    const KxReadStatus status = m_deinterlacer ? NextWhole(decoded) : NextDecoded(decoded);
    if (status == KxReadStatus::Delivered) {
        picture = MakeFrame(std::move(decoded));
    }
    return status;
}

QSize KxVideoSource::DisplayedSizeOf(AVFrame& frame) const
{
    const AVRational pixelShape =
        av_guess_sample_aspect_ratio(&m_packets->Input().Context(), &m_packets->Stream(), &frame);
    return KxDisplayedSize({frame.width, frame.height}, KxRational{pixelShape.num, pixelShape.den}, m_orientation);
}

KxVideoFrame KxVideoSource::MakeFrame(KxVideoDecoder::Picture picture) const
{
    const QSize size = DisplayedSizeOf(*picture.frame);
    const qint64 index = m_grid->IndexOf(picture.ticks);
    return KxVideoFrame(std::shared_ptr<const AVFrame>(std::move(picture.frame)), index, m_orientation, size);
}
