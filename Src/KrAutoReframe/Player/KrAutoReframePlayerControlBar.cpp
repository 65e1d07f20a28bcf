#include <KrAutoReframe/Player/KrAutoReframePlayerControlBar.h>

#include <KrAutoReframe/Engine/KrTimeCode.h>
#include <KrAutoReframe/Player/KrAutoReframePlayerToolSlider.h>

#include <KxPlayer/KxMediaPlayerPresenter.h>
#include <KxWidgets/IKxShortcutEditManager.h>
#include <KxWidgets/KxLabel.h>
#include <KxWidgets/KxSwitchToolButton.h>
#include <KxWidgets/KxToolButton.h>
#include <KxWidgets/KxToolTipHelper.h>

#include <QHBoxLayout>
#include <QShortcut>
#include <QVBoxLayout>

namespace
{

using Action = IKxShortcutEditManager::Action;

constexpr int TimeLabelWidthPx = 152;

QKeySequence KeysOf(int actionId)
{
    return IKxShortcutEditManager::GetInstance()->keySequence(actionId);
}

QString WithKeys(const QString& text, int actionId)
{
    return text.arg(KeysOf(actionId).toString(QKeySequence::PortableText));
}

} // namespace

KrAutoReframePlayerControlBar::KrAutoReframePlayerControlBar(KxMediaPlayerPresenter* presenter, QWidget* parent)
    : KxPlayerToolBarBase(parent, KrAutoReframePlayerToolSlider::CreateNormalSlider(parent, Qt::Horizontal), true)
    , m_slider(static_cast<KrAutoReframePlayerToolSlider*>(slider()))
{
    setObjectName(QStringLiteral("KrAutoReframe_controlBar"));
    setPlayerPresenter(presenter);
    InitLayout();
    if (presenter != nullptr) {
        ConnectSignals();
        ShowTime(0);
    }
    updateToolTip();
}

KrAutoReframePlayerControlBar::~KrAutoReframePlayerControlBar() = default;

void KrAutoReframePlayerControlBar::CreateButtons()
{
    m_undoButton = KxToolButton::CreateToolButton(this, QStringLiteral("KrAutoReframe_undo"));
    m_redoButton = KxToolButton::CreateToolButton(this, QStringLiteral("KrAutoReframe_redo"));
    m_previousButton = KxToolButton::CreateToolButton(this, QStringLiteral("KrAutoReframe_pre"));
    m_deleteButton = KxToolButton::CreateToolButton(this, QStringLiteral("KrAutoReframe_delete"));
    m_nextButton = KxToolButton::CreateToolButton(this, QStringLiteral("KrAutoReframe_next"));

    button(BackwardButton)->setVisible(true);
    button(ForwardButton)->setVisible(true);
    for (const Button number : {BackwardButton, PlayPauseButton, StopButton, ForwardButton}) {
        button(number)->setEnabled(false);
    }
}

void KrAutoReframePlayerControlBar::InitLayout()
{
    installEventFilter(KxToolTipHelper::GetInstance());

    m_slider->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_slider->SetAwaysEmitValueChangeStartEnd(false);

    m_timeLabel = KxLabel::CreateLabel(this, QString());
    m_timeLabel->setObjectName(QStringLiteral("KrAutoReframe_time"));
    m_timeLabel->setFixedWidth(TimeLabelWidthPx);
    m_timeLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);

    CreateButtons();

    m_row = new QHBoxLayout;
    m_row->setContentsMargins(0, 0, 0, 0);
    m_row->setSpacing(8);
    for (KxToolButton* const editing : {m_undoButton, m_redoButton, m_previousButton, m_deleteButton, m_nextButton}) {
        m_row->addWidget(editing);
    }
    m_row->addStretch();
    for (const Button number : {BackwardButton, PlayPauseButton, StopButton, ForwardButton}) {
        m_row->addWidget(button(number));
    }
    m_row->addStretch();
    m_row->addWidget(m_timeLabel, 0, Qt::AlignVCenter);

    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 16, 16, 24);
    layout->setSpacing(16);
    layout->addWidget(m_slider, 0, Qt::AlignVCenter);
    layout->addLayout(m_row);
}

void KrAutoReframePlayerControlBar::ConnectSignals()
{
    using Bar = KrAutoReframePlayerControlBar;
    connect(m_undoButton, &QAbstractButton::clicked, this, &Bar::sigUndo);
    connect(m_redoButton, &QAbstractButton::clicked, this, &Bar::sigRedo);
    connect(m_previousButton, &QAbstractButton::clicked, this, &Bar::sigPrevious);
    connect(m_deleteButton, &QAbstractButton::clicked, this, &Bar::sigDelete);
    connect(m_nextButton, &QAbstractButton::clicked, this, &Bar::sigNext);

    KxMediaPlayerPresenter* const presenter = playerPresenter();
    connect(presenter, &KxMediaPlayerPresenter::sigFrameChanged, this, &Bar::ShowTime);
    connect(presenter, &KxMediaPlayerPresenter::sigFrameChanged, m_slider,
            [this](int frame) { m_slider->slotRealCurrentFrame(static_cast<uint>(frame)); });

    ConnectShortcuts();
}

void KrAutoReframePlayerControlBar::ConnectShortcuts()
{
    using Bar = KrAutoReframePlayerControlBar;
    const struct {
        int actionId;
        void (Bar::*signal)();
    } shortcuts[] = {
        {Action::Undo, &Bar::sigUndo},          {Action::Redo, &Bar::sigRedo},
        {Action::Delete, &Bar::sigDelete},      {Action::PreviousEditPoint, &Bar::sigPrevious},
        {Action::NextEditPoint, &Bar::sigNext},
    };
    for (const auto& shortcut : shortcuts) {
        auto* const keys = new QShortcut(KeysOf(shortcut.actionId), this);
        keys->setContext(Qt::WindowShortcut);
        connect(keys, &QShortcut::activated, this, shortcut.signal);
    }
}

void KrAutoReframePlayerControlBar::ShowTime(int frame)
{
    const float frameRate = playerPresenter()->mediaFrameRate();
    m_timeLabel->setText(KrTimeCode::ToText(frame, frameRate, KrTimeCode::Detail::Frames));
}

KrAutoReframePlayerToolSlider& KrAutoReframePlayerControlBar::Slider() const
{
    return *m_slider;
}

void KrAutoReframePlayerControlBar::AddEditing(QWidget* buttons)
{
    m_row->insertWidget(m_row->indexOf(m_nextButton) + 1, buttons);
}

void KrAutoReframePlayerControlBar::AddViewing(QWidget* buttons)
{
    m_row->insertWidget(m_row->indexOf(m_timeLabel), buttons);
}

void KrAutoReframePlayerControlBar::SetUndoRedoEnabled(bool canUndo, bool canRedo)
{
    m_undoButton->setEnabled(canUndo);
    m_redoButton->setEnabled(canRedo);
}

bool KrAutoReframePlayerControlBar::IsUndoRedoEnabled() const
{
    return m_redoButton->isEnabled() && m_undoButton->isEnabled();
}

void KrAutoReframePlayerControlBar::SetDeleteEnabled(bool isEnabled)
{
    m_deleteButton->setEnabled(isEnabled);
}

void KrAutoReframePlayerControlBar::SetPrevNextEnabled(bool hasPrevious, bool hasNext)
{
    m_previousButton->setEnabled(hasPrevious);
    m_nextButton->setEnabled(hasNext);
}

void KrAutoReframePlayerControlBar::EnableTransport()
{
    for (const Button number : {PlayPauseButton, StopButton, ForwardButton}) {
        button(number)->setEnabled(true);
    }
}

void KrAutoReframePlayerControlBar::SlotUpdateSliderPaint(QList<uint> frameIndexs)
{
    auto* const marks = qobject_cast<KrAutoReframePlayerToolSlider*>(slider());
    if (marks == nullptr) {
        return;
    }
    marks->SetEditFrames(frameIndexs);
    // The slider does not repaint for an empty list, so the old marks would remain on the screen.
    if (frameIndexs.isEmpty() || m_undoButton->isEnabled() != m_redoButton->isEnabled()) {
        marks->update();
    }
}

void KrAutoReframePlayerControlBar::updateToolTip()
{
    button(BackwardButton)->setToolTip(WithKeys(tr("Backward (%1)"), Action::Backward));
    button(ForwardButton)->setToolTip(WithKeys(tr("Forward (%1)"), Action::Forward));
    button(StopButton)->setToolTip(WithKeys(tr("Stop (%1)"), Action::Stop));
    if (auto* const playPause = qobject_cast<KxSwitchToolButton*>(button(PlayPauseButton))) {
        playPause->AddTips(
            {WithKeys(tr("Play (%1)"), Action::PlayPause), WithKeys(tr("Pause (%1)"), Action::PlayPause)});
    }
    m_undoButton->setToolTip(WithKeys(tr("Undo (%1)"), Action::Undo));
    m_redoButton->setToolTip(WithKeys(tr("Redo (%1)"), Action::Redo));
    m_deleteButton->setToolTip(WithKeys(tr("Delete (%1)"), Action::Delete));
    m_previousButton->setToolTip(WithKeys(tr("Previous Edit Point (%1)"), Action::PreviousEditPoint));
    m_nextButton->setToolTip(WithKeys(tr("Next Edit Point (%1)"), Action::NextEditPoint));
}
