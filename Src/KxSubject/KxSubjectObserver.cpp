#include <KxSubject/KxSubjectObserver.h>

#include <KxSubject/KxPictureView.h>
#include <KxSubject/KxSubjectModels.h>
#include <KxSubject/Shots/KxShotDetector.h>
#include <KxSubject/Signals/KxMouthTracks.h>
#include <KxSubject/Signals/KxOpenCvError.h>
#include <KxSubject/Signals/KxSignalRecorder.h>

#include <algorithm>
#include <cmath>

namespace
{

constexpr double UsualFrameRate = 25.0;
constexpr std::size_t BytesPerPixel = 3;

KxSubjectSource Checked(KxSubjectSource source)
{
    source.pictureWidthPx = std::max(source.pictureWidthPx, 1);
    source.pictureHeightPx = std::max(source.pictureHeightPx, 1);
    source.frameCount = std::max<std::int64_t>(source.frameCount, 0);
    if (!std::isfinite(source.frameRate) || source.frameRate <= 0.0) {
        source.frameRate = UsualFrameRate;
    }
    return source;
}

cv::Size WorkingSizeOf(const KxSubjectSource& source, const KxSubjectOptions::Sampling& options)
{
    const double scale =
        static_cast<double>(options.workingLongSidePx) / std::max(source.pictureWidthPx, source.pictureHeightPx);
    return {std::max(cvRound(source.pictureWidthPx * scale), options.workingShortSideMinPx),
            std::max(cvRound(source.pictureHeightPx * scale), options.workingShortSideMinPx)};
}

} // namespace

class KxSubjectObserver::Impl
{
public:
    Impl(const KxSubjectSource& source, const KxSubjectModels& models, const KxSubjectOptions& options)
        : m_source(Checked(source))
        , m_workingSize(WorkingSizeOf(m_source, options.sampling))
        , m_shots(options.shots,
                  [this](std::int64_t first, std::int64_t last) { return m_signals.InCommon(first, last); })
        , m_signals(options, m_workingSize, m_source.frameRate, models)
        , m_mouths(options.mouths, m_source.frameRate)
        , m_step(std::max<std::int64_t>(1, static_cast<std::int64_t>(std::floor(
                                               m_source.frameRate / options.sampling.wantedPicturesPerSecond + 0.01))))
    {
        m_shots.Reserve(m_source.frameCount);
        m_signals.Reserve(m_source.frameCount);
    }

    KxIntSize WorkingSize() const { return {m_workingSize.width, m_workingSize.height}; }
    bool IsFaceDetectorRefused() const { return m_signals.Faces().Finder().IsDetectorRefused(); }
    bool IsObjectDetectorRefused() const { return m_signals.IsObjectDetectorRefused(); }
    bool Wants(std::int64_t frame) const { return frame >= 0 && frame < m_source.frameCount && frame % m_step == 0; }
    void AddPicture(std::int64_t frame, const KxPictureView& view);
    KxSubjectRecord Finish();

private:
    KxSubjectSource m_source;
    cv::Size m_workingSize;
    KxShotDetector m_shots;
    KxSignalRecorder m_signals;
    KxMouthTracks m_mouths;
    std::int64_t m_step; ///< one frame of this many is wanted
    std::int64_t m_lastFrame = -1;
};

void KxSubjectObserver::Impl::AddPicture(std::int64_t frame, const KxPictureView& view)
{
    if (frame <= m_lastFrame || frame >= m_source.frameCount || view.data == nullptr || view.sizePx != WorkingSize() ||
        view.bytesPerRow < BytesPerPixel * static_cast<std::size_t>(view.sizePx.width)) {
        return;
    }
    m_lastFrame = frame;
    // cv::Mat cannot refer to constant data; nothing here writes to it.
    const cv::Mat picture(m_workingSize, CV_8UC3, const_cast<std::uint8_t*>(view.data), view.bytesPerRow);
    try {
        m_shots.AddPicture(frame, picture);
        m_signals.AddPicture(frame, picture);
        m_mouths.AddPicture(frame, picture, m_signals.Faces());
    } catch (const cv::Exception& problem) {
        KxThrowIfOutOfMemory(problem);
    }
}

KxSubjectRecord KxSubjectObserver::Impl::Finish()
{
    KxSubjectRecord record;
    record.boundaries = m_shots.Boundaries(m_source.frameRate);
    record.mouths = m_mouths.Finish(m_signals.Faces());
    m_signals.Finish(record);
    record.source = m_source;
    record.workingSizePx = WorkingSize();
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
    m_impl->AddPicture(frame, picture);
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
