#include <Apps/AutoReframe/Exports/ExportPanel.h>

#include <Apps/AutoReframe/Exports/ExportCard.h>
#include <Apps/AutoReframe/Exports/LinkButton.h>
#include <Apps/AutoReframe/Exports/QueueBar.h>

#include <KxWidgets/KxLabel.h>

#include <QFrame>
#include <QHBoxLayout>
#include <QScrollArea>
#include <QScrollBar>
#include <QVariant>

namespace
{

constexpr int WidthPx = 340;
constexpr int MarginPx = 16;
constexpr int CardGapPx = 10;

} // namespace

ExportPanel::ExportPanel(ExportQueue& queue, QWidget* parent)
    : KxWidget(parent)
    , m_queue(queue)
{
    setObjectName(QStringLiteral("ExportPanel"));
    setFixedWidth(WidthPx);
    setProperty("barLine", QStringLiteral("left"));
    setStyleSheet(QStringLiteral("#ExportPanel_list, #ExportPanel_content { background: transparent; }"));
    InitLayout();
    connect(m_clear, &QAbstractButton::clicked, &m_queue, &ExportQueue::RemoveFinished);
    connect(m_resume, &QAbstractButton::clicked, &m_queue, &ExportQueue::ResumeInterrupted);
    connect(m_discard, &QAbstractButton::clicked, &m_queue, &ExportQueue::DiscardInterrupted);
    connect(m_queueBar, &QueueBar::sigLook, this, [this] {
        if (const ExportItem* const item = m_queue.FirstToLookAt()) {
            Q_EMIT sigLook(item->id);
        }
    });
    connect(&m_queue, &ExportQueue::sigAdded, this, &ExportPanel::AddCard);
    connect(&m_queue, &ExportQueue::sigChanged, this, &ExportPanel::UpdateCard);
    connect(&m_queue, &ExportQueue::sigRemoved, this, &ExportPanel::RemoveCard);
    RetranslateUi();
    ShowHints();
}

ExportPanel::~ExportPanel() = default;

void ExportPanel::InitLayout()
{
    QLayout* const head = MakeHead();
    m_hint = KxLabel::CreateLabel(this, QString());
    m_hint->setObjectName(QStringLiteral("ExportPanel_hint"));
    m_hint->setProperty("textRole", QStringLiteral("muted"));
    m_hint->setWordWrap(true);

    m_resumeBar = MakeResumeBar();
    auto* const barRow = new QHBoxLayout;
    barRow->setContentsMargins(MarginPx, 0, MarginPx, 0);
    barRow->addWidget(m_resumeBar);
    m_queueBar = new QueueBar(m_queue, this);
    auto* const queueRow = new QHBoxLayout;
    queueRow->setContentsMargins(MarginPx, 0, MarginPx, 0);
    queueRow->addWidget(m_queueBar);

    QWidget* const list = MakeList();
    auto* const column = new QVBoxLayout(this);
    // The line between the areas takes one pixel at the left.
    column->setContentsMargins(1, 12, 0, 0);
    column->setSpacing(8);
    column->addLayout(head);
    column->addLayout(barRow);
    column->addLayout(queueRow);
    column->addWidget(list, 1);
}

QLayout* ExportPanel::MakeHead()
{
    m_heading = KxLabel::CreateLabel(this, QString());
    m_heading->setObjectName(QStringLiteral("ExportPanel_heading"));
    QFont bold = font();
    bold.setWeight(QFont::DemiBold);
    m_heading->setFont(bold);
    m_heading->setProperty("textRole", QStringLiteral("muted"));
    m_clear = new LinkButton(this);
    m_clear->setObjectName(QStringLiteral("ExportPanel_clear"));
    // The list must not move when the button appears.
    QSizePolicy clearPolicy = m_clear->sizePolicy();
    clearPolicy.setRetainSizeWhenHidden(true);
    m_clear->setSizePolicy(clearPolicy);
    auto* const head = new QHBoxLayout;
    head->setContentsMargins(MarginPx, 0, MarginPx, 0);
    head->addWidget(m_heading, 1);
    head->addWidget(m_clear);
    return head;
}

QWidget* ExportPanel::MakeList()
{
    auto* const content = new QWidget;
    content->setObjectName(QStringLiteral("ExportPanel_content"));
    m_column = new QVBoxLayout(content);
    m_column->setContentsMargins(MarginPx, 0, MarginPx, MarginPx);
    m_column->setSpacing(CardGapPx);
    m_column->addWidget(m_hint);
    m_column->addStretch(1);
    auto* const area = new QScrollArea(this);
    area->setObjectName(QStringLiteral("ExportPanel_list"));
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidget(content);
    // The scroll bar lies in the margin, so that the cards stay aligned with the summary.
    QScrollBar* const bar = area->verticalScrollBar();
    connect(bar, &QScrollBar::rangeChanged, content, [this, bar](int top, int bottom) {
        const int barPx = top < bottom ? bar->sizeHint().width() : 0;
        m_column->setContentsMargins(MarginPx, 0, qMax(0, MarginPx - barPx), MarginPx);
    });
    return area;
}

QWidget* ExportPanel::MakeResumeBar()
{
    auto* const bar = new QFrame(this);
    bar->setObjectName(QStringLiteral("ExportPanel_resumeBar"));
    bar->setProperty("notice", true);
    m_interrupted = KxLabel::CreateLabel(bar, QString());
    m_interrupted->setObjectName(QStringLiteral("ExportPanel_interrupted"));
    m_interrupted->setWordWrap(true);
    m_resume = new LinkButton(bar);
    m_resume->setObjectName(QStringLiteral("ExportPanel_resume"));
    m_discard = new LinkButton(bar);
    m_discard->setObjectName(QStringLiteral("ExportPanel_discard"));
    auto* const row = new QHBoxLayout(bar);
    row->setContentsMargins(12, 8, 12, 8);
    row->setSpacing(12);
    row->addWidget(m_interrupted, 1);
    row->addWidget(m_resume);
    row->addWidget(m_discard);
    return bar;
}

void ExportPanel::RetranslateUi()
{
    m_heading->setText(tr("Exports"));
    m_clear->setText(tr("Clear finished"));
    m_resume->setText(tr("Resume"));
    m_discard->setText(tr("Discard"));
    m_clear->setToolTip(tr("Remove the finished exports from the list; their files stay"));
    m_resume->setToolTip(tr("Export those that the last run did not finish"));
    m_discard->setToolTip(tr("Remove those that the last run did not finish from the list"));
    ShowHints();
    m_hint->setText(tr("Videos that you export from the Auto Reframe window appear here."));
}

void ExportPanel::AddCard(int id)
{
    auto* const card = new ExportCard(m_column->parentWidget());
    m_cards.insert(id, card);
    connect(card, &ExportCard::sigCancel, &m_queue, [this, id] { m_queue.Cancel(id); });
    connect(card, &ExportCard::sigRetry, &m_queue, [this, id] { m_queue.Retry(id); });
    // Queued: the signal comes from the menu of the card, which must outlive it.
    connect(
        card, &ExportCard::sigRemove, &m_queue, [this, id] { m_queue.Remove(id); }, Qt::QueuedConnection);
    connect(card, &ExportCard::sigShowInFolder, this,
            [this, id] { Q_EMIT sigShowInFolder(m_queue.Find(id)->filePath); });
    connect(card, &ExportCard::sigLook, this, [this, id] { Q_EMIT sigLook(id); });
    // Before the stretch.
    m_column->insertWidget(m_column->count() - 1, card);
    UpdateCard(id);
}

void ExportPanel::UpdateCard(int id)
{
    const ExportItem* const item = m_queue.Find(id);
    if (ExportCard* const card = m_cards.value(id); card != nullptr && item != nullptr) {
        card->Show(*item);
    }
    ShowHints();
}

void ExportPanel::RemoveCard(int id)
{
    if (ExportCard* const card = m_cards.take(id)) {
        card->hide();
        card->deleteLater();
    }
    ShowHints();
}

void ExportPanel::SetLoading(bool isLoading)
{
    m_isLoading = isLoading;
    ShowHints();
}

void ExportPanel::ShowHints()
{
    m_queueBar->ShowState();
    m_hint->setVisible(m_cards.isEmpty() && !m_isLoading);
    m_clear->setVisible(m_queue.FinishedCount() > 0);
    const int interrupted = m_queue.InterruptedCount();
    m_resumeBar->setVisible(interrupted > 0);
    m_interrupted->setText(tr("%n exports not finished", nullptr, interrupted));
}
