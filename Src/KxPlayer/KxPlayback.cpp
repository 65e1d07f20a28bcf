#include <KxPlayer/KxPlayback.h>

#include <QPointer>

#include <algorithm>

namespace
{

// A player that shows fewer than four pictures a second looks broken.
constexpr qint64 LongestStandstillUs = 250000;
constexpr qint64 UsPerMs = 1000;
constexpr int FramesLate = 1;
// The clock may be corrected while playback waits, so it is checked again after this time.
constexpr qint64 LongestWaitMs = 40;

} // namespace

KxPlayback::KxPlayback(Options options, QObject* parent)
    : QObject(parent)
    , m_clock(std::move(options.time))
    , m_sound(m_clock, std::move(options.sound))
    , m_wake(this)
    , m_engine(std::make_unique<KxPlayerEngine>(m_clock, [this] { PostLook(); }))
{
    m_wake.setSingleShot(true);
    m_wake.setTimerType(Qt::PreciseTimer);
    connect(&m_wake, &QTimer::timeout, this, &KxPlayback::Look);
}

KxPlayback::~KxPlayback()
{
    m_engine.reset();
}

void KxPlayback::Open(std::shared_ptr<const KxPlaySource> source, After after, Position position)
{
    const int frame = position == Position::Keep ? TargetFrame() : 0;
    const bool goesOn = m_isPlaying && after == After::GoOn && source;
    const QPointer<KxPlayback> alive(this);
    StopClock();
    m_sound.Close();
    m_engine->Open(source);
    m_source = std::move(source);
    m_picture.reset();
    m_wanted.reset();
    m_failure.reset();
    m_failedFrame = 0;
    m_dropped = 0;
    if (!goesOn) {
        SetPlaying(false);
    }
    if (alive && m_source) {
        Seek(frame);
    }
    if (alive) {
        Q_EMIT sigPictureChanged();
    }
}

void KxPlayback::Play()
{
    if (m_isPlaying || !m_source) {
        return;
    }
    const bool isAtEnd = TargetFrame() == m_source->LastFrame();
    m_isPlaying = true;
    if (isAtEnd || m_wanted || !m_picture) {
        Seek(isAtEnd ? 0 : TargetFrame());
    } else {
        m_engine->Play(m_picture->frame + 1);
    }
    Q_EMIT sigPlayingChanged(true);
}

void KxPlayback::Pause()
{
    if (m_isPlaying) {
        Halt();
        SetPlaying(false);
    }
}

void KxPlayback::Halt()
{
    StopClock();
    if (m_wanted) {
        m_engine->Show(*m_wanted);
    } else if (m_picture && m_picture->area != m_area) {
        m_engine->Show(m_picture->frame);
    } else {
        m_engine->Hold();
    }
}

void KxPlayback::Seek(int frame)
{
    if (!m_source) {
        return;
    }
    StopClock();
    m_wanted = std::clamp(frame, 0, m_source->LastFrame());
    if (m_isPlaying) {
        m_engine->Play(*m_wanted);
    } else {
        m_engine->Show(*m_wanted);
    }
}

void KxPlayback::Stop()
{
    const QPointer<KxPlayback> alive(this);
    Pause();
    if (alive) {
        Seek(0);
    }
}

void KxPlayback::Step(int frames)
{
    const QPointer<KxPlayback> alive(this);
    Pause();
    if (alive) {
        Seek(TargetFrame() + frames);
    }
}

void KxPlayback::SetArea(const QSize& area)
{
    if (area == m_area) {
        return;
    }
    m_area = area;
    const bool hasPicture = m_source && (m_wanted || m_picture);
    m_engine->SetArea(area, hasPicture ? std::optional<int>(TargetFrame()) : std::nullopt);
}

void KxPlayback::PostLook()
{
    if (!m_isLookPosted.exchange(true)) {
        QMetaObject::invokeMethod(
            this,
            [this] {
                m_isLookPosted = false;
                Look();
            },
            Qt::QueuedConnection);
    }
}

void KxPlayback::Look()
{
    if (IsFailureDue()) {
        if (const std::optional<QString> failure = m_engine->TakeFailure()) {
            Fail(*failure);
            return;
        }
    }
    // A slot that is called for a picture may do anything, even delete this player.
    const QPointer<KxPlayback> alive(this);
    TakeWanted();
    if (alive && m_isPlaying && !m_wanted && m_picture) {
        RunClock();
        ShowDue();
    }
}

bool KxPlayback::IsFailureDue() const
{
    const std::optional<qint64> now = m_clock.NowUs();
    return !now || !m_picture || *now >= m_source->TimeUs(m_picture->frame + 1);
}

void KxPlayback::TakeWanted()
{
    if (m_wanted) {
        if (std::optional<KxPlayerPicture> picture = m_engine->Take(*m_wanted)) {
            m_wanted.reset();
            SetPicture(std::move(*picture));
        }
    } else if (m_picture && !m_isPlaying) {
        if (std::optional<KxPlayerPicture> picture = m_engine->Take(m_picture->frame)) {
            m_picture = std::move(*picture);
            Q_EMIT sigPictureChanged();
        }
    }
}

void KxPlayback::RunClock()
{
    if (!m_clock.IsRunning() && m_engine->IsPrimed()) {
        const qint64 startUs = m_source->TimeUs(m_picture->frame);
        m_shownUs = startUs;
        m_sound.Start(m_source, *m_picture->fileClock, m_clock.Start(startUs));
    }
}

void KxPlayback::ShowDue()
{
    const std::optional<qint64> now = m_clock.NowUs();
    if (!now) {
        return;
    }
    const int due = m_source->FrameAt(*now);
    const int last = m_source->LastFrame();
    if (m_picture->frame == last && due > last) {
        ReachEnd();
        return;
    }
    const QPointer<KxPlayback> alive(this);
    if (const std::optional<int> next = m_engine->NextFrame(); next && *now >= ShowTimeUs(*next)) {
        const bool isInTime = *next >= due - FramesLate;
        std::optional<KxPlayerPicture> picture = m_engine->TakeUpTo(isInTime ? *next : due);
        if (picture && IsWorthShowing(*picture, due, *now)) {
            m_dropped += std::max(0, picture->frame - m_picture->frame - 1);
            m_shownUs = *now;
            SetPicture(std::move(*picture));
        }
    }
    if (alive && m_clock.IsRunning()) {
        WakeForNext(*now);
    }
}

bool KxPlayback::IsWorthShowing(const KxPlayerPicture& picture, int due, qint64 nowUs) const
{
    return picture.frame >= due - FramesLate || picture.frame == m_source->LastFrame() ||
           nowUs - m_shownUs >= LongestStandstillUs;
}

qint64 KxPlayback::ShowTimeUs(int frame) const
{
    const qint64 halfFrameUs = (m_source->TimeUs(frame) - m_source->TimeUs(frame - 1)) / 2;
    return std::max(m_source->TimeUs(frame), m_shownUs + halfFrameUs);
}

void KxPlayback::WakeForNext(qint64 nowUs)
{
    const int last = m_source->LastFrame();
    if (m_picture->frame == last) {
        WakeAt(m_source->TimeUs(last + 1), nowUs);
    } else if (const std::optional<int> next = m_engine->NextFrame()) {
        WakeAt(ShowTimeUs(*next), nowUs);
    } else if (m_engine->HasFailed()) {
        // The last picture before the failure is shown for its full duration.
        WakeAt(m_source->TimeUs(m_picture->frame + 1), nowUs);
    }
}

void KxPlayback::WakeAt(qint64 timeUs, qint64 nowUs)
{
    const qint64 waitMs = (timeUs - nowUs + UsPerMs - 1) / UsPerMs;
    m_wake.start(static_cast<int>(std::clamp<qint64>(waitMs, 0, LongestWaitMs)));
}

void KxPlayback::StopClock()
{
    m_wake.stop();
    if (m_clock.IsRunning()) {
        m_clock.Stop();
        m_sound.Stop();
    }
}

void KxPlayback::SetPlaying(bool playing)
{
    if (m_isPlaying != playing) {
        m_isPlaying = playing;
        Q_EMIT sigPlayingChanged(playing);
    }
}

void KxPlayback::ReachEnd()
{
    const QPointer<KxPlayback> alive(this);
    Pause();
    if (alive) {
        Q_EMIT sigReachedEnd();
    }
}

void KxPlayback::Fail(const QString& message)
{
    const QPointer<KxPlayback> alive(this);
    StopClock();
    m_failure = message;
    m_failedFrame = TargetFrame();
    m_wanted.reset();
    m_picture.reset();
    SetPlaying(false);
    if (alive) {
        Q_EMIT sigPictureChanged();
    }
    if (alive) {
        Q_EMIT sigFailed(message);
    }
}

void KxPlayback::SetPicture(KxPlayerPicture picture)
{
    const QPointer<KxPlayback> alive(this);
    const int frame = picture.frame;
    m_picture = std::move(picture);
    m_failure.reset();
    Q_EMIT sigPictureChanged();
    if (alive) {
        Q_EMIT sigFrameChanged(frame);
    }
}
