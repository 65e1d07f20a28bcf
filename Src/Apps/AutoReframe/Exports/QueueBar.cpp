#include <Apps/AutoReframe/Exports/QueueBar.h>

#include <Apps/AutoReframe/Exports/ExportQueue.h>
#include <Apps/AutoReframe/Exports/LinkButton.h>
#include <Apps/AutoReframe/Library/MediaText.h>

#include <KxWidgets/KxLabel.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QProgressBar>
#include <QVariant>

namespace
{

constexpr int SmallPx = 11;

LinkButton* MakeLink(QWidget* parent, const char* name)
{
    auto* const link = new LinkButton(parent);
    link->setObjectName(QLatin1String(name));
    return link;
}

} // namespace

QueueBar::QueueBar(ExportQueue& queue, QWidget* parent)
    : QFrame(parent)
    , m_queue(queue)
{
    setObjectName(QStringLiteral("QueueBar"));
    setProperty("surface", true);
    InitLayout();
    connect(m_pause, &QAbstractButton::clicked, this, [this] { m_queue.SetPaused(!m_queue.IsPaused()); });
    connect(m_cancel, &QAbstractButton::clicked, &m_queue, &ExportQueue::CancelPlanned);
    connect(m_retry, &QAbstractButton::clicked, &m_queue, &ExportQueue::RetryFailed);
    connect(m_look, &QAbstractButton::clicked, this, &QueueBar::sigLook);
    ShowState();
}

QueueBar::~QueueBar() = default;

void QueueBar::InitLayout()
{
    m_text = KxLabel::CreateLabel(this, QString());
    m_text->setObjectName(QStringLiteral("QueueBar_text"));
    m_text->setWordWrap(true);
    m_timeLeft = KxLabel::CreateLabel(this, QString());
    m_timeLeft->setObjectName(QStringLiteral("QueueBar_timeLeft"));
    m_timeLeft->setProperty("textRole", QStringLiteral("muted"));
    QFont small = font();
    small.setPixelSize(SmallPx);
    m_timeLeft->setFont(small);
    m_bar = new QProgressBar(this);
    m_bar->setObjectName(QStringLiteral("QueueBar_progress"));
    constexpr int wholeProgress = 10000;
    m_bar->setRange(0, wholeProgress);
    m_bar->setTextVisible(false);
    m_look = MakeLink(this, "QueueBar_look");
    m_retry = MakeLink(this, "QueueBar_retry");
    m_pause = MakeLink(this, "QueueBar_pause");
    m_cancel = MakeLink(this, "QueueBar_cancel");
    constexpr int gapPx = 14;
    auto* const links = new QHBoxLayout;
    links->setSpacing(gapPx);
    links->addWidget(m_timeLeft);
    links->addStretch(1);
    for (LinkButton* const link : {m_retry, m_look, m_pause, m_cancel}) {
        links->addWidget(link);
    }
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(13, 10, 13, 7);
    constexpr int lineGapPx = 6;
    column->setSpacing(lineGapPx);
    column->addWidget(m_text);
    column->addWidget(m_bar);
    column->addLayout(links);
}

QString QueueBar::StateText() const
{
    const QueueSummary summary = m_queue.Summary();
    if (summary.active > 0) {
        const QString count = tr("%1 of %2 done").arg(QString::number(summary.done), QString::number(summary.planned));
        return summary.failed > 0 ? count + tr(", ") + tr("%n failed", nullptr, summary.failed) : count;
    }
    QStringList parts{tr("%n done", nullptr, summary.done)};
    if (summary.failed > 0) {
        parts += tr("%n failed", nullptr, summary.failed);
    }
    if (summary.cancelled > 0) {
        parts += tr("%n cancelled", nullptr, summary.cancelled);
    }
    if (summary.toLookAt > 0) {
        parts += tr("%n to look at", nullptr, summary.toLookAt);
    }
    if (summary.withoutEdits > 0) {
        parts += tr("%n without all edits", nullptr, summary.withoutEdits);
    }
    return parts.join(tr(", "));
}

void QueueBar::ShowState()
{
    const QueueSummary summary = m_queue.Summary();
    setVisible(summary.planned > 0);
    const bool isActive = summary.active > 0;
    m_text->setText(StateText());
    m_timeLeft->setText(!isActive             ? QString()
                        : m_queue.IsPaused()  ? tr("Paused")
                        : summary.secondsLeft ? MediaText::TimeLeft(*summary.secondsLeft)
                                              : QString());
    m_timeLeft->setVisible(isActive);
    m_bar->setVisible(isActive);
    m_bar->setValue(summary.progress);
    m_bar->setAccessibleName(tr("Progress of all exports"));
    m_pause->setVisible(isActive);
    m_pause->setText(m_queue.IsPaused() ? tr("Continue") : tr("Pause"));
    m_pause->setToolTip(m_queue.IsPaused() ? tr("Go on with the exports") : tr("Interrupt the exports for a while"));
    m_cancel->setVisible(isActive);
    m_cancel->setText(tr("Cancel all"));
    m_cancel->setToolTip(tr("Cancel all exports of Reframe All that are not done"));
    m_retry->setVisible(!isActive && summary.failed > 0);
    m_retry->setText(tr("Retry failed"));
    m_retry->setToolTip(tr("Export those that failed again"));
    m_look->setVisible(!isActive && summary.toLookAt > 0);
    m_look->setText(tr("Look at them"));
    m_look->setToolTip(tr("Open the first video that has doubtful shots"));
}

void QueueBar::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        ShowState();
    }
    QFrame::changeEvent(event);
}
