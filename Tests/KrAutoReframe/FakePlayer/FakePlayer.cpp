#include <Tests/KrAutoReframe/FakePlayer/FakePlayer.h>

#include <KxPlayer/IKxMediaPlayer.h>
#include <KxPlayer/KxMediaPlayerWidget.h>

#include <QHash>

#include <utility>

namespace
{

QHash<const KxMediaPlayerPresenter*, FakePlayer::Script*>& Scripts()
{
    static QHash<const KxMediaPlayerPresenter*, FakePlayer::Script*> scripts;
    return scripts;
}

QString ToText(bool isTrue)
{
    return isTrue ? QStringLiteral("true") : QStringLiteral("false");
}

class Factory final : public IKxMediaPlayerFactory
{
public:
    KxMediaPlayerWidget* createPlayerWidget(QWidget* parent) override { return new KxMediaPlayerWidget(parent); }
};

} // namespace

class KxMediaPlayerPresenter::Impl : public IKxMediaPlayer
{
public:
    QRect videoRect() const override { return script.videoRect; }

    FakePlayer::Script script;
};

FakePlayer::Script& FakePlayer::ScriptOf(const KxMediaPlayerPresenter& presenter)
{
    return *Scripts().value(&presenter);
}

void FakePlayer::ShowFrame(KxMediaPlayerPresenter& presenter, int frame)
{
    ScriptOf(presenter).currentFrame = frame;
    Q_EMIT presenter.sigFrameChanged(frame);
}

void FakePlayer::SetPlaying(KxMediaPlayerPresenter& presenter, bool isPlaying)
{
    if (std::exchange(ScriptOf(presenter).isPlaying, isPlaying) != isPlaying) {
        Q_EMIT presenter.sigPlayingChanged(isPlaying);
    }
}

void FakePlayer::ReachEnd(KxMediaPlayerPresenter& presenter)
{
    SetPlaying(presenter, false);
    Q_EMIT presenter.sigReachedEnd();
}

IKxMediaPlayer::~IKxMediaPlayer() = default;

KxMediaPlayerPresenter::KxMediaPlayerPresenter(QObject* parent)
    : QObject(parent)
    , m_impl(std::make_unique<Impl>())
{
    Scripts().insert(this, &m_impl->script);
}

KxMediaPlayerPresenter::~KxMediaPlayerPresenter()
{
    Scripts().remove(this);
}

bool KxMediaPlayerPresenter::inPlaying() const
{
    return m_impl->script.isPlaying;
}

int KxMediaPlayerPresenter::currentFrame() const
{
    return m_impl->script.currentFrame;
}

int KxMediaPlayerPresenter::frameCount() const
{
    return 100;
}

int KxMediaPlayerPresenter::DroppedFrames() const
{
    return 0;
}

float KxMediaPlayerPresenter::mediaFrameRate() const
{
    return m_impl->script.frameRate;
}

IKxMediaPlayer* KxMediaPlayerPresenter::mediaPlayer() const
{
    return m_impl.get();
}

void KxMediaPlayerPresenter::play()
{
    m_impl->script.calls.append(QStringLiteral("play"));
    FakePlayer::SetPlaying(*this, true);
}

void KxMediaPlayerPresenter::pause()
{
    m_impl->script.calls.append(QStringLiteral("pause"));
    FakePlayer::SetPlaying(*this, false);
}

void KxMediaPlayerPresenter::stop()
{
    m_impl->script.calls.append(QStringLiteral("stop"));
    FakePlayer::SetPlaying(*this, false);
    m_impl->script.currentFrame = 0;
}

void KxMediaPlayerPresenter::stepForward()
{
    m_impl->script.calls.append(QStringLiteral("stepForward"));
}

void KxMediaPlayerPresenter::stepBackward()
{
    m_impl->script.calls.append(QStringLiteral("stepBackward"));
}

void KxMediaPlayerPresenter::openTimeline(IKxTimeline* timeline, bool paused, bool keepPosition)
{
    m_impl->script.calls.append(QStringLiteral("open %1 %2").arg(ToText(paused), ToText(keepPosition)));
    m_impl->script.opened.append(timeline);
    if (!keepPosition) {
        m_impl->script.currentFrame = 0;
    }
    if (paused) {
        FakePlayer::SetPlaying(*this, false);
    }
}

void KxMediaPlayerPresenter::seek(int frame, int second, int third)
{
    m_impl->script.calls.append(
        QStringLiteral("seek %1 %2 %3").arg(QString::number(frame), QString::number(second), QString::number(third)));
}

KxMediaPlayerWidget::KxMediaPlayerWidget(QWidget* parent)
    : KxWidget(parent)
{
}

KxMediaPlayerWidget::~KxMediaPlayerWidget() = default;

KxMediaPlayerPresenter* KxMediaPlayerWidget::getOrCreatePresenter()
{
    if (m_presenter == nullptr) {
        m_presenter = new KxMediaPlayerPresenter(this);
    }
    return m_presenter;
}

void KxMediaPlayerWidget::paintEvent(QPaintEvent* event)
{
    KxWidget::paintEvent(event);
}

void KxMediaPlayerWidget::resizeEvent(QResizeEvent* event)
{
    KxWidget::resizeEvent(event);
}

IKxMediaPlayerFactory::~IKxMediaPlayerFactory() = default;

IKxMediaPlayerFactory* mediaPlayerFactory()
{
    static Factory factory;
    return &factory;
}
