#include <KxMedia/Read/KxVideoScanner.h>

#include <KxMedia/Read/KxVideoSource.h>

#include <utility>

namespace
{

// The least that a truncated file lacks. A smaller loss may be due to skipping the last pictures.
constexpr double EarlyEndSeconds = 0.5;

} // namespace

class KxVideoScanner::Impl
{
public:
    explicit Impl(std::unique_ptr<KxVideoSource> videoSource)
        : source(std::move(videoSource))
    {
    }

    /// Tries to continue at a key frame that is displayed at or before `frame`, and fetches the picture there.
    bool Land(qint64 frame)
    {
        landed = {};
        return source->Seek(source->Grid().TicksAt(frame)) && source->Next(landed) == KxReadStatus::Delivered &&
               landed.Index() <= frame;
    }

    std::unique_ptr<KxVideoSource> source;
    KxVideoFrame landed; ///< fetched already; usually null
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
    return Of(KxVideoSource::Open(path, cancel, KxVideoDecoder::Effort::SkipNonReference));
}

KxResult<std::unique_ptr<KxVideoScanner>> KxVideoScanner::Open(std::unique_ptr<KxInputFile> input)
{
    return Of(KxVideoSource::Open(std::move(input), KxVideoDecoder::Effort::SkipNonReference));
}

KxResult<std::unique_ptr<KxVideoScanner>> KxVideoScanner::Of(KxResult<std::unique_ptr<KxVideoSource>> source)
{
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

void KxVideoScanner::SkipTo(qint64 frame)
{
    Impl& impl = *m_impl;
    // A second, then more: a container without an index lands anywhere.
    const auto second = static_cast<qint64>(impl.source->Grid().Rate().ToDouble()) + 1;
    if (!Clock().jumps || frame <= second) {
        return;
    }
    for (qint64 back = second; back < frame; back *= 4) {
        if (impl.Land(frame - back)) {
            return;
        }
    }
    impl.landed = {};
    impl.source->Rewind();
}

KxReadStatus KxVideoScanner::Next(KxVideoFrame& picture)
{
    Impl& impl = *m_impl;
    for (;;) {
        KxVideoFrame next = std::exchange(impl.landed, {});
        KxReadStatus status = next.IsNull() ? impl.source->Next(next) : KxReadStatus::Delivered;
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
