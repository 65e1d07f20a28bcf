#include <KxPlayer/KxPlayerToolBarImpl.h>

#include <KxWidgets/IKxShortcutEditManager.h>
#include <KxWidgets/KxSwitchToolButton.h>

#include <QCoreApplication>
#include <QEvent>
#include <QShortcut>

#include <algorithm>
#include <cmath>

namespace
{

// Without a new picture for longer than this, the slider seems to be stuck.
constexpr int PatienceMs = 250;

QString Tip(const char* text, int action)
{
    const QKeySequence keys = IKxShortcutEditManager::GetInstance()->keySequence(action);
    return QCoreApplication::translate("KxPlayerToolBarBase", text).arg(keys.toString(QKeySequence::NativeText));
}

int FrameOf(double sliderValue)
{
    return static_cast<int>(std::floor(sliderValue));
}

} // namespace

KxPlayerToolBarBase::Impl::Impl(KxPlayerToolBarBase* bar, KxToolSlider* slider, bool seeksWhileDragged)
    : QObject(bar)
    , m_bar(bar)
    , m_slider(slider)
    , m_seeksWhileDragged(seeksWhileDragged)
    , m_play(KxSwitchToolButton::CreateSwitchToolButton(bar, QStringLiteral("KxPlayerToolBar_play")))
    , m_patience(this)
{
    slider->setParent(bar);
    AddButton(PlayPauseButton, m_play, IKxShortcutEditManager::PlayPause);
    AddButton(StopButton, KxToolButton::CreateToolButton(bar, QStringLiteral("KxPlayerToolBar_stop")),
              IKxShortcutEditManager::Stop);
    AddButton(BackwardButton, KxToolButton::CreateToolButton(bar, QStringLiteral("KxPlayerToolBar_backward")),
              IKxShortcutEditManager::Backward);
    AddButton(ForwardButton, KxToolButton::CreateToolButton(bar, QStringLiteral("KxPlayerToolBar_forward")),
              IKxShortcutEditManager::Forward);
    // A derived bar that offers stepping shows them.
    m_buttons[BackwardButton]->hide();
    m_buttons[ForwardButton]->hide();
    m_patience.setObjectName(QStringLiteral("patience"));
    m_patience.setSingleShot(true);
    m_patience.setInterval(PatienceMs);
    connect(&m_patience, &QTimer::timeout, this, &Impl::TakeOver);
    ConnectSlider();
}

KxPlayerToolBarBase::Impl::~Impl() = default;

void KxPlayerToolBarBase::Impl::AddButton(int number, QAbstractButton* button, int action)
{
    m_buttons[number] = button;
    auto* const shortcut = new QShortcut(IKxShortcutEditManager::GetInstance()->keySequence(action), m_bar);
    shortcut->setContext(Qt::WindowShortcut);
    shortcut->setEnabled(button->isEnabled());
    connect(shortcut, &QShortcut::activated, button, &QAbstractButton::click);
    m_shortcuts[number] = shortcut;
    button->installEventFilter(this);
}

bool KxPlayerToolBarBase::Impl::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::EnabledChange) {
        for (auto it = m_buttons.cbegin(); it != m_buttons.cend(); ++it) {
            if (it.value() == watched) {
                m_shortcuts[it.key()]->setEnabled(it.value()->isEnabled());
            }
        }
    }
    return QObject::eventFilter(watched, event);
}

void KxPlayerToolBarBase::Impl::ConnectSlider()
{
    connect(m_slider, &KxToolSlider::sigValueChangeStart, this, &Impl::BeginDrag);
    connect(m_slider, &KxToolSlider::sigValueChanged, this, &Impl::Drag);
    connect(m_slider, &KxToolSlider::sigValueChangeEnd, this, &Impl::EndDrag);
    connect(m_play, &QAbstractButton::clicked, this, &Impl::TogglePlaying);
    connect(m_buttons[StopButton], &QAbstractButton::clicked, this, [this] {
        if (m_presenter) {
            m_presenter->stop();
        }
    });
    connect(m_buttons[BackwardButton], &QAbstractButton::clicked, this, [this] { Step(-1); });
    connect(m_buttons[ForwardButton], &QAbstractButton::clicked, this, [this] { Step(1); });
}

void KxPlayerToolBarBase::Impl::SetPresenter(KxMediaPlayerPresenter* presenter)
{
    if (m_presenter) {
        m_presenter->disconnect(this);
    }
    m_presenter = presenter;
    m_seeking.reset();
    m_nextSeek.reset();
    if (presenter != nullptr) {
        connect(presenter, &KxMediaPlayerPresenter::sigFrameChanged, this, &Impl::ShowFrame);
        connect(presenter, &KxMediaPlayerPresenter::sigPlayingChanged, this, &Impl::ShowPlaying);
        connect(presenter, &KxMediaPlayerPresenter::sigTimelineOpened, this, &Impl::TakeRange);
        connect(presenter, &KxMediaPlayerPresenter::sigFailed, this, &Impl::SeekNext);
        TakeRange();
        ShowPlaying(presenter->inPlaying());
    }
}

void KxPlayerToolBarBase::Impl::UpdateTips()
{
    m_play->AddTips({Tip(QT_TRANSLATE_NOOP("KxPlayerToolBarBase", "Play (%1)"), IKxShortcutEditManager::PlayPause),
                     Tip(QT_TRANSLATE_NOOP("KxPlayerToolBarBase", "Pause (%1)"), IKxShortcutEditManager::PlayPause)});
    m_buttons[StopButton]->setToolTip(
        Tip(QT_TRANSLATE_NOOP("KxPlayerToolBarBase", "Stop (%1)"), IKxShortcutEditManager::Stop));
    m_buttons[BackwardButton]->setToolTip(
        Tip(QT_TRANSLATE_NOOP("KxPlayerToolBarBase", "Backward (%1)"), IKxShortcutEditManager::Backward));
    m_buttons[ForwardButton]->setToolTip(
        Tip(QT_TRANSLATE_NOOP("KxPlayerToolBarBase", "Forward (%1)"), IKxShortcutEditManager::Forward));
    const auto name = [](QWidget* control, const char* text) {
        control->setAccessibleName(QCoreApplication::translate("KxPlayerToolBarBase", text));
    };
    name(m_play, QT_TRANSLATE_NOOP("KxPlayerToolBarBase", "Play or pause"));
    name(m_buttons[StopButton], QT_TRANSLATE_NOOP("KxPlayerToolBarBase", "Stop"));
    name(m_buttons[BackwardButton], QT_TRANSLATE_NOOP("KxPlayerToolBarBase", "Backward"));
    name(m_buttons[ForwardButton], QT_TRANSLATE_NOOP("KxPlayerToolBarBase", "Forward"));
    if (m_slider) {
        name(m_slider, QT_TRANSLATE_NOOP("KxPlayerToolBarBase", "Position"));
    }
}

void KxPlayerToolBarBase::Impl::TogglePlaying()
{
    if (m_presenter && m_presenter->inPlaying()) {
        m_presenter->pause();
    } else if (m_presenter) {
        m_presenter->play();
    }
}

void KxPlayerToolBarBase::Impl::ShowPlaying(bool playing)
{
    m_play->SetFace(playing ? 1 : 0);
}

void KxPlayerToolBarBase::Impl::TakeRange()
{
    m_seeking.reset();
    m_nextSeek.reset();
    if (m_slider) {
        m_slider->setDuration(std::max(1, m_presenter->frameCount()));
        m_slider->setValue(m_presenter->currentFrame(), false);
    }
}

void KxPlayerToolBarBase::Impl::ShowFrame(int frame)
{
    SeekNext();
    if (m_slider && !m_isDragging && (!m_seeking || m_isStepping)) {
        m_slider->setValue(frame, false);
    }
}

void KxPlayerToolBarBase::Impl::Step(int frames)
{
    if (!m_presenter || m_presenter->frameCount() == 0) {
        return;
    }
    m_isStepping = true;
    const int from = m_nextSeek.value_or(m_seeking.value_or(m_presenter->currentFrame()));
    const int frame = std::clamp(from + frames, 0, m_presenter->frameCount() - 1);
    if (m_seeking) {
        if (m_presenter->inPlaying()) {
            m_presenter->pause();
        }
        SeekTo(frame);
        return;
    }
    m_seeking = frame;
    m_patience.start();
    if (frames > 0) {
        m_presenter->stepForward();
    } else {
        m_presenter->stepBackward();
    }
}

void KxPlayerToolBarBase::Impl::BeginDrag()
{
    m_isStepping = false;
    m_isDragging = true;
}

void KxPlayerToolBarBase::Impl::Drag(double value)
{
    m_isStepping = false;
    // Keys and the wheel move the slider without a drag.
    if (m_seeksWhileDragged || !m_isDragging) {
        SeekTo(FrameOf(value));
    }
}

void KxPlayerToolBarBase::Impl::EndDrag(double value)
{
    m_isDragging = false;
    SeekTo(FrameOf(value));
}

void KxPlayerToolBarBase::Impl::SeekTo(int frame)
{
    if (m_seeking) {
        m_nextSeek = frame == *m_seeking ? std::nullopt : std::optional<int>(frame);
        if (!m_patience.isActive()) {
            TakeOver();
        }
    } else if (m_presenter && m_presenter->frameCount() > 0) {
        m_seeking = frame;
        m_patience.start();
        m_presenter->seek(frame, 0, 0);
    }
}

void KxPlayerToolBarBase::Impl::TakeOver()
{
    if (m_nextSeek) {
        SeekNext();
    }
}

void KxPlayerToolBarBase::Impl::SeekNext()
{
    m_seeking.reset();
    if (const std::optional<int> frame = std::exchange(m_nextSeek, std::nullopt)) {
        SeekTo(*frame);
    }
}
