#include <KxModel/KxVideoObservation.h>

#include <KxModel/KxPicturePipeline.h>

#include <KxMedia/Picture/KxPictureScaler.h>
#include <KxMedia/Read/KxVideoScanner.h>
#include <KxSubject/KxPictureView.h>
#include <KxSubject/KxSubjectModels.h>
#include <KxSubject/KxSubjectObserver.h>
#include <KxSubject/KxSubjectOptions.h>
#include <KxSubject/KxSubjectSampling.h>

#include <array>
#include <atomic>
#include <optional>

namespace
{

KxPictureView ViewOf(const QImage& image)
{
    if (image.isNull()) {
        return {};
    }
    return {image.constBits(), {image.width(), image.height()}, static_cast<std::size_t>(image.bytesPerLine())};
}

KxSubjectSource SourceOf(const KxVideoFacts& video)
{
    return {video.resolution.width(), video.resolution.height(), video.frameRate.ToDouble(), video.frameCount};
}

} // namespace

/// Passes on from the consumer to the producer whether mouths are watched, always with the same delay. The producer
/// learns what was so after the picture that it put `Delay` pictures ago; as the queue holds fewer, that one has been
/// consumed. So the record does not depend on which thread is faster.
class KxVideoObservation::Watch
{
public:
    /// On the consumer's thread, after each picture.
    void Consumed(bool isWatching) { m_states[m_consumed++ % m_states.size()] = isWatching; }
    /// On the producer's thread, before each picture that it puts.
    bool BeforePut()
    {
        const std::size_t put = m_put++;
        return put >= Delay && m_states[(put - Delay) % m_states.size()];
    }

private:
    /// One picture more may be in the consumer's hands.
    static constexpr std::size_t Delay = KxPicturePipeline::MostQueued + 2;

    std::array<std::atomic_bool, Delay> m_states{};
    std::size_t m_consumed = 0;
    std::size_t m_put = 0;
};

/// Shrinks decoded pictures to what the observer takes.
class KxVideoObservation::Producer
{
public:
    Producer(const KxSubjectSampling& sampling, Watch& watch)
        : m_sampling(sampling)
        , m_watch(watch)
    {
    }

    /// Nothing if the picture is not wanted or cannot be converted.
    std::optional<KxPicturePipeline::Picture> Shrink(const KxVideoFrame& picture)
    {
        const qint64 frame = picture.Index();
        if (!m_sampling.Wants(frame)) {
            return std::nullopt;
        }
        KxPicturePipeline::Picture shrunk{frame, {}, Scaled(m_overview, picture, KxSubjectSampling::ShotSize)};
        if (shrunk.shot.isNull()) {
            return std::nullopt;
        }
        const bool isWatching = m_watch.BeforePut();
        if (isWatching || m_sampling.IsSample(frame, m_lastFrame)) {
            shrunk.image = Scaled(m_coarse, picture, m_sampling.WorkingSize());
        }
        m_lastFrame = frame;
        return shrunk;
    }

private:
    static QImage Scaled(KxPictureScaler& scaler, const KxVideoFrame& picture, KxIntSize size)
    {
        return scaler.Scale(picture, QSize(size.width, size.height), QImage::Format_BGR888);
    }

    const KxSubjectSampling& m_sampling;
    Watch& m_watch;
    KxPictureScaler m_overview{KxPictureScaler::Detail::Overview};
    KxPictureScaler m_coarse{KxPictureScaler::Detail::Coarse};
    std::optional<qint64> m_lastFrame;
};

KxVideoObservation::KxVideoObservation(KxVideoScanner& scanner, const KxCancelToken& cancel)
    : m_scanner(scanner)
    , m_cancel(cancel)
{
}

KxVideoObservation::~KxVideoObservation() = default;

KxError KxVideoObservation::Run(KxSubjectModels models, const std::function<void(int percent)>& onProgress)
{
    const KxSubjectOptions options;
    const KxSubjectSource source = SourceOf(*m_scanner.Facts().video);
    const KxSubjectSampling sampling(source, options.sampling);

    Watch watch;

    const auto decode = [&](const KxPicturePipeline::Put& put) {
        Producer producer(sampling, watch);
        int reported = -1;
        KxVideoFrame picture;
        while (!m_cancel.IsCancelled() && m_scanner.Next(picture) == KxReadStatus::Delivered) {
            std::optional<KxPicturePipeline::Picture> shrunk = producer.Shrink(picture);
            if (shrunk && !put(std::move(*shrunk))) {
                return;
            }
            const int percent = static_cast<int>(qMin<qint64>(picture.Index() * 100 / source.frameCount, 99));
            if (percent > reported) {
                reported = percent;
                onProgress(percent);
            }
        }
    };
    std::unique_ptr<KxSubjectObserver> observer;
    const auto begin = [&] {
        observer = std::make_unique<KxSubjectObserver>(source, models, options);
        models = {};
    };
    const auto observe = [&](const KxPicturePipeline::Picture& picture) {
        if (!m_cancel.IsCancelled()) {
            observer->AddPicture(picture.frame, ViewOf(picture.shot), ViewOf(picture.image));
            watch.Consumed(observer->WatchesMouths());
        }
    };
    KxError failure = KxPicturePipeline::Run(decode, observe, begin);
    if (!failure) {
        m_observer = std::move(observer);
    }
    return failure;
}

std::unique_ptr<KxSubjectObserver> KxVideoObservation::TakeObserver()
{
    return std::move(m_observer);
}
