#include <KxMedia/Read/KxVideoScanner.h>

#include <KxMedia/Read/KxVideoSource.h>

namespace
{

// Skipped pictures must not leave gaps of more than a quarter of a second in the analysis: streams that consist mostly
// of non-reference pictures are decoded completely.
constexpr int LargestHolesASecond = 4;
// The analysis takes ten samples a second, and skipping leaves about half of the pictures.
constexpr double LowestRateToSkip = 20.0;
// The least that a truncated file lacks. A smaller loss may be due to skipping the last pictures.
constexpr double EarlyEndSeconds = 0.5;

} // namespace

class KxVideoScanner::Impl
{
public:
    explicit Impl(std::unique_ptr<KxVideoSource> videoSource)
        : source(std::move(videoSource))
    {
        const double rate = source->Grid().Rate().ToDouble();
        if (rate >= LowestRateToSkip) {
            source->Decoder().SetLongestSkip(static_cast<int>(rate / LargestHolesASecond));
            source->Decoder().SetSkip(KxVideoDecoder::Skip::NonReference);
        }
    }

    std::unique_ptr<KxVideoSource> source;
    qint64 lastIndex = -1;
    bool hasEnded = false;
};

KxVideoScanner::KxVideoScanner(std::unique_ptr<Impl> impl)
    : m_impl(std::move(impl))
{
}

KxVideoScanner::~KxVideoScanner() = default;

KxResult<std::unique_ptr<KxVideoScanner>> KxVideoScanner::Open(const QString& path, const KxCancelToken& cancel)
{
    KxResult<std::unique_ptr<KxVideoSource>> source =
        KxVideoSource::Open(path, cancel, KxVideoDecoder::Effort::SkipLoopFilter);
    if (!source) {
        return KxResult<std::unique_ptr<KxVideoScanner>>::Failure(source.Message());
    }
    return std::unique_ptr<KxVideoScanner>(new KxVideoScanner(std::make_unique<Impl>(std::move(*source))));
}

const KxMediaFacts& KxVideoScanner::Facts() const
{
    return m_impl->source->Facts();
}

KxMediaClock KxVideoScanner::Clock() const
{
    return m_impl->source->Clock();
}

KxReadStatus KxVideoScanner::Next(KxVideoFrame& picture)
{
    Impl& impl = *m_impl;
    for (;;) {
        KxVideoFrame next;
        KxReadStatus status = impl.source->Next(next);
        if (status != KxReadStatus::Cancelled && FileHasChanged()) {
            status = KxReadStatus::Failed;
        }
        if (status != KxReadStatus::Delivered) {
            impl.hasEnded = impl.hasEnded || status != KxReadStatus::Cancelled;
            return status;
        }
        if (next.Index() > impl.lastIndex && next.Index() < Facts().video->frameCount) {
            impl.lastIndex = next.Index();
            picture = std::move(next);
            return KxReadStatus::Delivered;
        }
    }
}

bool KxVideoScanner::FileHasChanged() const
{
    return m_impl->source->FileHasChanged();
}

bool KxVideoScanner::EndedEarly() const
{
    const double missing = static_cast<double>(m_impl->source->LastPictureIndex() - m_impl->lastIndex);
    return m_impl->hasEnded && missing > EarlyEndSeconds * Facts().video->frameRate.ToDouble();
}
