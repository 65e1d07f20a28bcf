#include <KxMedia/Read/KxVideoReader.h>

#include <KxMedia/Read/KxExactReader.h>

class KxVideoReader::Impl
{
public:
    explicit Impl(std::unique_ptr<KxVideoSource> source)
        : reader(std::move(source))
    {
    }
    KxExactReader reader;
};

KxVideoReader::KxVideoReader(std::unique_ptr<Impl> impl)
    : m_impl(std::move(impl))
{
}

KxVideoReader::~KxVideoReader() = default;

KxResult<std::unique_ptr<KxVideoReader>> KxVideoReader::Open(const QString& path, const KxCancelToken& cancel,
                                                             Purpose purpose)
{
    KxResult<std::unique_ptr<KxVideoSource>> source = KxVideoSource::Open(
        path, cancel,
        purpose == Purpose::Analysis ? KxVideoDecoder::Effort::SkipLoopFilter : KxVideoDecoder::Effort::Full);
    if (!source) {
        return KxResult<std::unique_ptr<KxVideoReader>>::Failure(source.Message());
    }
    return std::unique_ptr<KxVideoReader>(new KxVideoReader(std::make_unique<Impl>(std::move(*source))));
}

const KxMediaFacts& KxVideoReader::Facts() const
{
    return m_impl->reader.Source().Facts();
}

KxMediaClock KxVideoReader::Clock() const
{
    return m_impl->reader.Source().Clock();
}

KxReadStatus KxVideoReader::Read(qint64 frame, KxVideoFrame& picture)
{
    const KxReadStatus status = m_impl->reader.Read(frame, picture);
    return status != KxReadStatus::Cancelled && FileHasChanged() ? KxReadStatus::Failed : status;
}

void KxVideoReader::GiveUpWhen(std::function<bool()> isUnwanted)
{
    m_impl->reader.GiveUpWhen(std::move(isUnwanted));
}

bool KxVideoReader::FileHasChanged() const
{
    return m_impl->reader.Source().FileHasChanged();
}

bool KxVideoReader::EndedEarly() const
{
    return m_impl->reader.DecodedEnd().has_value();
}

qint64 KxVideoReader::DecodableFrames() const
{
    return m_impl->reader.DecodedEnd().value_or(Facts().video->frameCount);
}
