#include <Apps/AutoReframe/Exports/ExportCard.h>

#include <Apps/AutoReframe/Exports/LinkButton.h>
#include <Apps/AutoReframe/Library/MediaText.h>

#include <KxWidgets/KxLabel.h>
#include <KxWidgets/KxToolButton.h>
#include <KxWidgets/KxUIStyle.h>

#include <QContextMenuEvent>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QMenu>
#include <QProgressBar>

namespace
{

using State = ExportItem::State;

constexpr int CancelPx = 24;
/// The right edge of the cross, not of its button, is aligned with the texts below.
constexpr int AroundCrossPx = 5;
constexpr int SmallPx = 11;

KxLabel* MakeSmall(QWidget* parent, const QString& name)
{
    KxLabel* const label = KxLabel::CreateLabel(parent, QString());
    label->setObjectName(name);
    // Everything but the size is inherited.
    QFont small;
    small.setPixelSize(SmallPx);
    label->setFont(small);
    label->setProperty("textRole", QStringLiteral("muted"));
    // The margins of a link button, so that their texts have one baseline.
    label->setContentsMargins(0, 4, 0, 4);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    return label;
}

} // namespace

ExportCard::ExportCard(QWidget* parent)
    : QFrame(parent)
{
    setObjectName(QStringLiteral("ExportCard"));
    setProperty("surface", true);
    m_name = KxLabel::CreateLabel(this, QString());
    m_name->setObjectName(QStringLiteral("ExportCard_name"));
    m_name->SetElideMode(Qt::ElideMiddle);
    m_cancel = KxToolButton::CreateToolButton(this, QStringLiteral("ExportCard_cancel"));
    m_cancel->SetGlyph(QStringLiteral("close"));
    m_cancel->setFixedSize(CancelPx, CancelPx);
    m_cancel->setFocusPolicy(Qt::TabFocus);
    m_bar = new QProgressBar(this);
    m_bar->setObjectName(QStringLiteral("ExportCard_progress"));
    m_bar->setRange(0, 10000);
    m_bar->setTextVisible(false);
    m_status = MakeSmall(this, QStringLiteral("ExportCard_status"));
    m_status->setWordWrap(true);
    m_size = MakeSmall(this, QStringLiteral("ExportCard_size"));
    m_retry = new LinkButton(this);
    m_retry->setObjectName(QStringLiteral("ExportCard_retry"));
    m_look = new LinkButton(this);
    m_look->setObjectName(QStringLiteral("ExportCard_look"));
    m_show = new LinkButton(this);
    m_show->setObjectName(QStringLiteral("ExportCard_show"));
    InitLayout();
    connect(m_cancel, &QAbstractButton::clicked, this, &ExportCard::sigCancel);
    connect(m_retry, &QAbstractButton::clicked, this, &ExportCard::sigRetry);
    connect(m_look, &QAbstractButton::clicked, this, &ExportCard::sigLook);
    connect(m_show, &QAbstractButton::clicked, this, &ExportCard::sigShowInFolder);
    RetranslateUi();
}

ExportCard::~ExportCard() = default;

void ExportCard::InitLayout()
{
    auto* const head = new QHBoxLayout;
    head->setSpacing(8);
    head->addWidget(m_name, 1);
    head->addWidget(m_cancel);
    auto* const foot = new QHBoxLayout;
    foot->setContentsMargins(0, 0, AroundCrossPx, 0);
    foot->setSpacing(12);
    foot->addWidget(m_status, 1);
    for (QWidget* const end : {static_cast<QWidget*>(m_size), static_cast<QWidget*>(m_retry),
                               static_cast<QWidget*>(m_look), static_cast<QWidget*>(m_show)}) {
        foot->addWidget(end, 0, Qt::AlignTop);
    }
    auto* const middle = new QHBoxLayout;
    middle->setContentsMargins(0, 0, AroundCrossPx, 0);
    middle->addWidget(m_bar);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(13, 8, 13 - AroundCrossPx, 7);
    column->setSpacing(3);
    column->addLayout(head);
    column->addLayout(middle);
    column->addLayout(foot);
}

void ExportCard::Show(const ExportItem& item)
{
    m_item = item;
    const bool isActive = item.IsActive();
    m_cancel->setVisible(isActive);
    m_name->setContentsMargins(0, 0, isActive ? 0 : AroundCrossPx, 0);
    m_cancel->setEnabled(item.state != State::Cancelling);
    m_bar->setVisible(isActive);
    m_bar->setValue(item.progress);
    m_size->setVisible(isActive);
    m_retry->setVisible(!isActive && item.state != State::Done);
    m_look->setVisible(item.state == State::Done && !item.shotsToLookAt.isEmpty());
    m_show->setVisible(item.state == State::Done);
    KxUIStyle::SetTextRole(*m_status, item.state == State::Failed ? QStringLiteral("error") : QStringLiteral("muted"));
    ShowTexts();
}

void ExportCard::ShowTexts()
{
    const QString name = QFileInfo(m_item.filePath).fileName();
    m_name->setText(name);
    m_name->setToolTip(QDir::toNativeSeparators(m_item.filePath));
    m_status->setText(StatusText());
    m_status->setToolTip(m_item.message);
    m_size->setText(SizeText());
    m_look->setText(tr("%n to look at", nullptr, m_item.shotsToLookAt.size()));
    m_bar->setAccessibleName(tr("Progress of %1").arg(name));
    m_cancel->setAccessibleName(tr("Cancel %1").arg(name));
    m_retry->setAccessibleName(tr("Retry %1").arg(name));
    m_look->setAccessibleName(tr("Look at the doubtful shots of %1").arg(name));
    m_show->setAccessibleName(tr("Show %1 in its folder").arg(name));
}

QString ExportCard::SizeText() const
{
    const QSize resolution = m_item.request.settings.resolution;
    if (!resolution.isEmpty() || !m_item.plan) {
        return MediaText::Resolution(resolution);
    }
    return MediaText::Aspect(m_item.plan->aspect);
}

QString ExportCard::ProgressText() const
{
    const QString percent = tr("%1 %").arg(m_item.progress / 100);
    if (m_item.isPaused) {
        return tr("Paused · %1").arg(percent);
    }
    return m_item.secondsLeft ? QStringLiteral("%1 · %2").arg(percent, MediaText::TimeLeft(*m_item.secondsLeft))
                              : percent;
}

QString ExportCard::DoneText() const
{
    QStringList parts{tr("Done · %1").arg(MediaText::FileSize(m_item.fileBytes))};
    parts += MediaText::MissingEdits(m_item.missingEdits);
    parts += m_item.message;
    parts.removeAll(QString());
    return parts.join(QStringLiteral(" · "));
}

QString ExportCard::StatusText() const
{
    switch (m_item.state) {
    case State::Waiting:
        return tr("Waiting");
    case State::Analyzing:
        return tr("Analyzing · %1").arg(ProgressText());
    case State::Running:
        return ProgressText();
    case State::Cancelling:
        return tr("Cancelling…");
    case State::Done:
        return DoneText();
    case State::Failed:
        return m_item.message;
    case State::Cancelled:
        return tr("Cancelled");
    case State::Interrupted:
        return tr("Not finished");
    }
    return {};
}

void ExportCard::RetranslateUi()
{
    m_cancel->setToolTip(tr("Cancel"));
    m_retry->setText(tr("Retry"));
    m_show->setText(tr("Show in Folder"));
    m_retry->setToolTip(tr("Export it again"));
    m_look->setToolTip(tr("Opens the video at these settings and its first doubtful shot; N leads to the next one."));
    m_show->setToolTip(tr("Show the file in its folder"));
}

void ExportCard::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        RetranslateUi();
        ShowTexts();
    }
    QFrame::changeEvent(event);
}

void ExportCard::contextMenuEvent(QContextMenuEvent* event)
{
    QMenu menu(this);
    menu.setObjectName(QStringLiteral("ExportCardMenu"));
    if (m_item.IsActive()) {
        menu.addAction(tr("Cancel"), this, &ExportCard::sigCancel);
    } else {
        if (m_item.state == State::Done) {
            menu.addAction(tr("Show in Folder"), this, &ExportCard::sigShowInFolder);
        } else {
            menu.addAction(tr("Retry"), this, &ExportCard::sigRetry);
        }
        menu.addAction(tr("Remove from List"), this, &ExportCard::sigRemove);
    }
    menu.exec(event->globalPos());
}
