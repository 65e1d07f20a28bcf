#include <KxModel/KxVideoObservation.h>

#include <KxModel/KxAnalysisPictures.h>
#include <KxModel/KxPicturePipeline.h>
#include <KxModel/KxVideoSampling.h>

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

} // namespace

/// Passes on from the consumer to the producer whether mouths are watched, always with the same delay. The producer
/// learns what was so after the picture that it put `Delay` pictures ago; because the queue holds fewer, that one has
/// been consumed. So the record does not depend on which thread is faster.
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

/// Takes of each picture what the observer needs.
class KxVideoObservation::Producer
{
public:
    Producer(const KxSubjectSampling& sampling, Watch& watch)
        : m_sampling(sampling)
        , m_watch(watch)
    {
    }

    /// Nothing if the current one of `pictures`, that of `frame`, is not wanted or cannot be converted.
    std::optional<KxPicturePipeline::Picture> Take(qint64 frame, KxAnalysisPictures& pictures)
    {
        if (!m_sampling.Wants(frame)) {
            return std::nullopt;
        }
        KxPicturePipeline::Picture taken{frame, {}, pictures.Shot()};
        if (taken.shot.isNull()) {
            return std::nullopt;
        }
        const bool isSample = m_sampling.IsSample(frame, m_hasTaken ? std::optional(m_lastFrame) : std::nullopt);
        m_lastFrame = frame;
        m_hasTaken = true;
        if (m_watch.BeforePut() || isSample) {
            taken.image = pictures.Whole();
        }
        return taken;
    }

private:
    const KxSubjectSampling& m_sampling;
    Watch& m_watch;
    // Not std::optional: GCC 12 warns of it as not initialized once this is inlined.
    std::int64_t m_lastFrame = 0;
    bool m_hasTaken = false;
};

KxVideoObservation::KxVideoObservation(KxAnalysisPictures& pictures, const KxVideoFacts& video,
                                       const KxCancelToken& cancel)
    : m_pictures(pictures)
    , m_video(video)
    , m_cancel(cancel)
{
}

KxVideoObservation::~KxVideoObservation() = default;

KxError KxVideoObservation::Run(KxSubjectModels models, const std::function<void(int percent)>& onProgress)
{
    const KxSubjectOptions options;
    const KxSubjectSource source = KxVideoSampling::SourceOf(m_video);
    const KxSubjectSampling sampling = KxVideoSampling::Of(m_video);
    Watch watch;
    const auto decode = [&](const KxPicturePipeline::Put& put) {
        Producer producer(sampling, watch);
        int reported = -1;
        while (!m_cancel.IsCancelled()) {
            const std::optional<qint64> frame = m_pictures.Next();
            if (!frame) {
                return;
            }
            std::optional<KxPicturePipeline::Picture> taken = producer.Take(*frame, m_pictures);
            if (taken && !put(std::move(*taken))) {
                return;
            }
            const int percent = static_cast<int>(qMin<qint64>(*frame * 100 / source.frameCount, 99));
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
