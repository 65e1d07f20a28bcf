#include <KrAutoReframe/Extensions/KrDoubtfulShots.h>

#include <KrAutoReframe/Player/KrAutoReframePlayerControlBar.h>
#include <KrAutoReframe/Player/KrAutoReframePlayerToolSlider.h>
#include <KrAutoReframe/Player/KrAutoReframePlayerView.h>
#include <KrAutoReframe/Settings/KrAutoReframePropertyPanel.h>

#include <KxPlayer/KxMediaPlayerPresenter.h>
#include <KxWidgets/IKxShortcutEditManager.h>
#include <KxWidgets/KxToolButton.h>

#include <QHBoxLayout>
#include <QShortcut>

namespace
{

using Action = IKxShortcutEditManager::Action;

// A shot that the slider is dragged through does not count as seen.
constexpr int LookMs = 1000;

QKeySequence KeysOf(int actionId)
{
    return IKxShortcutEditManager::GetInstance()->keySequence(actionId);
}

QString KeyText(int actionId)
{
    return KeysOf(actionId).toString(QKeySequence::PortableText);
}

} // namespace

KrDoubtfulShots::KrDoubtfulShots(KrAutoReframePlayerView& view, KrAutoReframePropertyPanel& panel)
    : KxWidget(&view.ControlBar())
    , m_view(view)
    , m_panel(panel)
    , m_previousButton(KxToolButton::CreateToolButton(this, QStringLiteral("KrAutoReframe_previousDoubt")))
    , m_nextButton(KxToolButton::CreateToolButton(this, QStringLiteral("KrAutoReframe_nextDoubt")))
{
    setObjectName(QStringLiteral("KrAutoReframe_doubtfulShots"));
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(16, 0, 0, 0);
    row->setSpacing(8);
    row->addWidget(m_previousButton);
    row->addWidget(m_nextButton);
    m_view.ControlBar().AddEditing(this);
    connect(m_previousButton, &QAbstractButton::clicked, this, &KrDoubtfulShots::GoToPrevious);
    connect(m_nextButton, &QAbstractButton::clicked, this, &KrDoubtfulShots::GoToNext);
    ConnectShortcut(Action::PreviousDoubtfulShot, &KrDoubtfulShots::GoToPrevious);
    ConnectShortcut(Action::NextDoubtfulShot, &KrDoubtfulShots::GoToNext);
    connect(&m_view.Presenter(), &KxMediaPlayerPresenter::sigFrameChanged, this, &KrDoubtfulShots::HandleFrameChanged);
    m_look.setSingleShot(true);
    m_look.setInterval(LookMs);
    connect(&m_look, &QTimer::timeout, this, &KrDoubtfulShots::HandleLooked);
    RetranslateUi();
    UpdateButtons();
}

KrDoubtfulShots::~KrDoubtfulShots() = default;

void KrDoubtfulShots::ConnectShortcut(int actionId, void (KrDoubtfulShots::*go)())
{
    auto* const keys = new QShortcut(KeysOf(actionId), this);
    keys->setContext(Qt::WindowShortcut);
    connect(keys, &QShortcut::activated, this, go);
}

void KrDoubtfulShots::RetranslateUi()
{
    m_previousButton->setToolTip(tr("Previous Doubtful Shot (%1)").arg(KeyText(Action::PreviousDoubtfulShot)));
    m_nextButton->setToolTip(tr("Next Doubtful Shot (%1)").arg(KeyText(Action::NextDoubtfulShot)));
    ShowMarks();
}

void KrDoubtfulShots::SetShots(const KrShotList& shots)
{
    m_shots = shots;
    m_goingTo.reset();
    m_watched = -1;
    m_look.stop();
    ShowMarks();
    if (!m_shots.Shots().isEmpty()) {
        HandleFrameChanged(m_view.Presenter().currentFrame());
    }
    UpdateButtons();
}

void KrDoubtfulShots::GoToFirstToLookAt()
{
    GoTo(m_shots.FirstToLookAt());
}

void KrDoubtfulShots::GoToPrevious()
{
    GoTo(m_shots.PreviousDoubtful(CurrentFrame()));
}

void KrDoubtfulShots::GoToNext()
{
    GoTo(m_shots.NextDoubtful(CurrentFrame()));
}

void KrDoubtfulShots::GoTo(int index)
{
    if (index < 0) {
        return;
    }
    m_view.Pause();
    m_goingTo = m_shots.Shots().at(index).first;
    m_view.Presenter().seek(static_cast<int>(*m_goingTo), 0, 0);
}

qint64 KrDoubtfulShots::CurrentFrame() const
{
    return m_goingTo.value_or(m_view.Presenter().currentFrame());
}

void KrDoubtfulShots::HandleFrameChanged(int frame)
{
    m_goingTo.reset();
    const int shown = m_shots.IndexAt(frame);
    if (shown != m_watched) {
        m_watched = shown;
        m_look.start();
    }
    UpdateButtons();
}

void KrDoubtfulShots::HandleLooked()
{
    if (m_shots.MarkSeen(m_watched)) {
        ShowMarks();
        Q_EMIT sigSeen();
    }
}

void KrDoubtfulShots::UpdateButtons()
{
    m_previousButton->setEnabled(m_shots.PreviousDoubtful(CurrentFrame()) >= 0);
    m_nextButton->setEnabled(m_shots.NextDoubtful(CurrentFrame()) >= 0);
}

void KrDoubtfulShots::ShowMarks()
{
    using Mark = KrAutoReframePlayerToolSlider::ShotMark;
    QList<Mark> marks;
    const QList<KxAutoReframeShot>& shots = m_shots.Shots();
    for (int index = 0; index < shots.size(); ++index) {
        const Mark::Kind kind = !m_shots.IsDoubtful(index) ? Mark::Kind::Sure
                                : m_shots.IsSeen(index)    ? Mark::Kind::Seen
                                                           : Mark::Kind::Doubtful;
        marks.append({shots.at(index).first, shots.at(index).end, kind, ToolTipOf(index)});
    }
    m_view.ControlBar().Slider().SetShots(marks);

    QString fact = shots.isEmpty() ? QString() : QStringLiteral("");
    if (m_shots.CountToLookAt() > 0) {
        fact = tr("%1 of %n shots to look at", nullptr, shots.size()).arg(m_shots.CountToLookAt());
    } else if (m_shots.CountDoubtful() > 0) {
        fact = tr("All doubtful shots seen");
    }
    m_panel.SetFact(fact);
}

QString KrDoubtfulShots::ToolTipOf(int index) const
{
    const QString name = tr("Shot %1 of %2").arg(QString::number(index + 1), QString::number(m_shots.Shots().size()));
    QString reason;
    switch (m_shots.Shots().at(index).doubt) {
    case KxAutoReframeDoubt::None:
        return name;
    case KxAutoReframeDoubt::NothingStandsOut:
        reason = tr("nothing stands out");
        break;
    case KxAutoReframeDoubt::SeveralPlaces:
        reason = tr("what stands out is in several places, far apart");
        break;
    case KxAutoReframeDoubt::SeveralPeople:
        reason = tr("several people or animals, far apart");
        break;
    }
    return tr("%1: %2").arg(name, reason);
}
