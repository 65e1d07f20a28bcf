#include <KxSubject/KxSubjectObserver.h>

#include <KxSubject/KxPictureView.h>
#include <KxSubject/KxSubjectModels.h>
#include <KxSubject/KxSubjectSampling.h>
#include <KxSubject/Shots/KxShotDetector.h>
#include <KxSubject/Signals/KxMouthTracks.h>
#include <KxSubject/Signals/KxOpenCvError.h>
#include <KxSubject/Signals/KxSignalRecorder.h>

#include <algorithm>
#include <array>

namespace
{

constexpr std::size_t BytesPerPixel = 3;

bool IsUsable(const KxPictureView& view, KxIntSize sizePx)
{
    return view.data != nullptr && view.sizePx == sizePx &&
           view.bytesPerRow >= BytesPerPixel * static_cast<std::size_t>(sizePx.width);
}

cv::Mat MatOf(const KxPictureView& view)
{
    // cv::Mat cannot refer to constant data; nothing here writes to it.
    return {view.sizePx.height, view.sizePx.width, CV_8UC3, const_cast<std::uint8_t*>(view.data), view.bytesPerRow};
}

} // namespace

class KxSubjectObserver::Impl
{
public:
    Impl(const KxSubjectSource& source, const KxSubjectModels& models, const KxSubjectOptions& options)
        : m_sampling(source, options.sampling)
        , m_models{models.objectDetectorFile, models.faces.detectorFile}
        , m_shots(options.shots, options.bars,
                  [this](std::int64_t first, std::int64_t last) { return m_signals.InCommon(first, last); })
        , m_signals(options, {WorkingSize().width, WorkingSize().height}, m_sampling.Source().frameRate, models)
        , m_mouths(options.mouths, m_sampling.Source().frameRate)
    {
        // A header may claim any length: beyond four hours, memory grows with the pictures.
        constexpr std::int64_t mostPictures = 500000;
        const auto pictures = static_cast<std::size_t>(std::min(m_sampling.Source().frameCount, mostPictures));
        m_shots.Reserve(pictures);
        m_prints.reserve(pictures);
        m_signals.Reserve(m_sampling.Source().frameCount);
    }

    KxIntSize WorkingSize() const { return m_sampling.WorkingSize(); }
    bool IsFaceDetectorRefused() const { return m_signals.Faces().Finder().IsDetectorRefused(); }
    bool IsObjectDetectorRefused() const { return m_signals.IsObjectDetectorRefused(); }
    bool Wants(std::int64_t frame) const { return m_sampling.Wants(frame); }
    bool WatchesMouths() const { return m_mouths.IsWatching(); }
    void AddPicture(std::int64_t frame, const KxPictureView& shot, const KxPictureView& whole);
    KxSubjectRecord Finish();

private:
    void AddPrint(std::int64_t frame, const KxPictureView& picture);

    KxSubjectSampling m_sampling;
    std::array<KxUsedModel, 2> m_models; ///< of objects and faces; an empty name: none
    KxShotDetector m_shots;
    KxSignalRecorder m_signals;
    KxMouthTracks m_mouths;
    std::vector<KxPicturePrint> m_prints;
    std::optional<std::int64_t> m_lastFrame;
};

void KxSubjectObserver::Impl::AddPicture(std::int64_t frame, const KxPictureView& shot, const KxPictureView& whole)
{
    if (frame < 0 || (m_lastFrame && frame <= *m_lastFrame) || frame >= m_sampling.Source().frameCount) {
        return;
    }
    const bool isSample = m_sampling.IsSample(frame, m_lastFrame);
    m_lastFrame = frame;
    AddPrint(frame, shot);
    try {
        m_shots.AddPicture(frame, MatOf(shot));
        if (whole.data != nullptr) {
            if (isSample) {
                m_signals.AddPicture(frame, MatOf(whole));
            }
            m_mouths.AddPicture(frame, MatOf(whole), m_signals.Faces());
        }
    } catch (const cv::Exception& problem) {
        KxThrowIfOutOfMemory(problem);
    }
}

void KxSubjectObserver::Impl::AddPrint(std::int64_t frame, const KxPictureView& picture)
{
    const std::uint64_t bits = KxPrintOf(picture);
    m_prints.push_back(
        {static_cast<std::int32_t>(frame), static_cast<std::uint32_t>(bits >> 32U), static_cast<std::uint32_t>(bits)});
}

KxSubjectRecord KxSubjectObserver::Impl::Finish()
{
    KxSubjectRecord record;
    record.boundaries = m_shots.Boundaries(m_sampling.Source().frameRate);
    record.mouths = m_mouths.Finish(m_signals.Faces());
    record.prints = std::move(m_prints);
    m_signals.Finish(record);
    record.source = m_sampling.Source();
    record.workingSizePx = WorkingSize();
    const std::array<bool, 2> refused{IsObjectDetectorRefused(), IsFaceDetectorRefused()};
    for (std::size_t i = 0; i < m_models.size(); ++i) {
        if (!m_models[i].name.empty() && !refused[i]) {
            record.models.push_back(m_models[i]);
        }
    }
    return record;
}

KxSubjectObserver::KxSubjectObserver(const KxSubjectSource& source, const KxSubjectModels& models,
                                     const KxSubjectOptions& options)
    : m_impl(std::make_unique<Impl>(source, models, options))
{
}

KxSubjectObserver::~KxSubjectObserver() = default;

KxIntSize KxSubjectObserver::WorkingSize() const
{
    return m_impl->WorkingSize();
}

bool KxSubjectObserver::Wants(std::int64_t frame) const
{
    return m_impl->Wants(frame);
}

void KxSubjectObserver::AddPicture(std::int64_t frame, const KxPictureView& picture)
{
    if (IsUsable(picture, WorkingSize())) {
        m_impl->AddPicture(frame, picture, picture);
    }
}

void KxSubjectObserver::AddPicture(std::int64_t frame, const KxPictureView& shot, const KxPictureView& whole)
{
    if (IsUsable(shot, KxSubjectSampling::ShotSize) && (whole.data == nullptr || IsUsable(whole, WorkingSize()))) {
        m_impl->AddPicture(frame, shot, whole);
    }
}

bool KxSubjectObserver::WatchesMouths() const
{
    return m_impl->WatchesMouths();
}

KxSubjectRecord KxSubjectObserver::Finish()
{
    return m_impl->Finish();
}

bool KxSubjectObserver::IsFaceDetectorRefused() const
{
    return m_impl->IsFaceDetectorRefused();
}

bool KxSubjectObserver::IsObjectDetectorRefused() const
{
    return m_impl->IsObjectDetectorRefused();
}
