#include <KxPlayer/KxMediaPlayerPresenterImpl.h>

#include <KxPlayer/KxPicturePlace.h>
#include <KxPlayer/KxQtSoundDevice.h>

#include <KxModel/IKxTimeline.h>

#include <algorithm>

namespace
{

constexpr float DefaultFrameRate = 25.0F;

} // namespace

IKxMediaPlayer::~IKxMediaPlayer() = default;

KxMediaPlayerPresenter::Impl::Impl()
    : playback(KxPlayback::Options{{}, &KxQtSoundDevice::Open})
{
}

KxMediaPlayerPresenter::Impl::~Impl() = default;

QRect KxMediaPlayerPresenter::Impl::videoRect() const
{
    const QRect place = PicturePlace();
    return QRect((QPointF(place.topLeft()) / m_pixelRatio).toPoint(), place.size());
}

QRect KxMediaPlayerPresenter::Impl::PicturePlace() const
{
    QSizeF shape;
    if (playback.Picture()) {
        shape = playback.Picture()->shape;
    } else if (const auto& source = playback.Source()) {
        shape = source->ShapeAt(playback.TargetFrame(), source->resolution);
    }
    return KxPicturePlace::In(m_area, shape);
}

void KxMediaPlayerPresenter::Impl::SetArea(const QSize& devicePixels, double pixelRatio)
{
    m_area = devicePixels;
    m_pixelRatio = pixelRatio;
    playback.SetArea(devicePixels);
}

KxMediaPlayerPresenter::KxMediaPlayerPresenter(QObject* parent)
    : QObject(parent)
    , m_impl(std::make_unique<Impl>())
{
    const KxPlayback* const playback = &m_impl->playback;
    connect(playback, &KxPlayback::sigFrameChanged, this, &KxMediaPlayerPresenter::sigFrameChanged);
    connect(playback, &KxPlayback::sigPlayingChanged, this, &KxMediaPlayerPresenter::sigPlayingChanged);
    connect(playback, &KxPlayback::sigReachedEnd, this, &KxMediaPlayerPresenter::sigReachedEnd);
    connect(playback, &KxPlayback::sigFailed, this, &KxMediaPlayerPresenter::sigFailed);
}

KxMediaPlayerPresenter::~KxMediaPlayerPresenter() = default;

bool KxMediaPlayerPresenter::inPlaying() const
{
    return m_impl->playback.IsPlaying();
}

int KxMediaPlayerPresenter::currentFrame() const
{
    return m_impl->playback.CurrentFrame();
}

int KxMediaPlayerPresenter::frameCount() const
{
    const auto& source = m_impl->playback.Source();
    return source ? source->frameCount : 0;
}

float KxMediaPlayerPresenter::mediaFrameRate() const
{
    const auto& source = m_impl->playback.Source();
    return source ? std::max(1.0F, static_cast<float>(source->frameRate.ToDouble())) : DefaultFrameRate;
}

int KxMediaPlayerPresenter::DroppedFrames() const
{
    return m_impl->playback.DroppedFrames();
}

IKxMediaPlayer* KxMediaPlayerPresenter::mediaPlayer() const
{
    return m_impl.get();
}

void KxMediaPlayerPresenter::play()
{
    m_impl->playback.Play();
}

void KxMediaPlayerPresenter::pause()
{
    m_impl->playback.Pause();
}

void KxMediaPlayerPresenter::stop()
{
    m_impl->playback.Stop();
}

void KxMediaPlayerPresenter::stepForward()
{
    m_impl->playback.Step(1);
}

void KxMediaPlayerPresenter::stepBackward()
{
    m_impl->playback.Step(-1);
}

void KxMediaPlayerPresenter::openTimeline(IKxTimeline* timeline, bool paused, bool keepPosition)
{
    std::shared_ptr<const KxPlaySource> source = timeline != nullptr ? KxPlaySource::Of(*timeline) : nullptr;
    const bool isEmpty = timeline != nullptr && !source;
    m_impl->playback.Open(std::move(source), paused ? KxPlayback::After::Pause : KxPlayback::After::GoOn,
                          keepPosition ? KxPlayback::Position::Keep : KxPlayback::Position::Start);
    if (isEmpty) {
        const auto report = [this] { Q_EMIT sigFailed(tr("Cannot show the timeline: it holds no video.")); };
        QMetaObject::invokeMethod(this, report, Qt::QueuedConnection);
    }
    Q_EMIT sigTimelineOpened();
}

void KxMediaPlayerPresenter::seek(int frame, int, int)
{
    m_impl->playback.Seek(frame);
}
