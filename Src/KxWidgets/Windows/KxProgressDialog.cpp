#include <KxWidgets/KxProgressDialog.h>

#include <KxWidgets/Controls/KxGlyphLabel.h>
#include <KxWidgets/Style/KxTheme.h>

#include <KxWidgets/KxDialogButtonBar.h>
#include <KxWidgets/KxLabel.h>
#include <KxWidgets/KxPushButton.h>
#include <KxWidgets/KxTopLevelWindowTitleBar.h>

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QProgressBar>

namespace
{

constexpr int WidthPx = 440;
constexpr int MarginPx = 24;
constexpr int GapPx = 12;
constexpr int IconPx = 20;
constexpr int SecondaryButton = 1;

} // namespace

KxProgressDialog::KxProgressDialog(const QString& title, QWidget* parent)
    : KxFramelessDialog(title, parent, true, true)
{
    auto* content = new QWidget(this);
    m_icon = new KxGlyphLabel(IconPx, content);
    m_title = KxLabel::CreateLabel(content, QString());
    m_title->setObjectName(QStringLiteral("KxProgressDialog_title"));
    m_title->setWordWrap(true);
    m_bar = new QProgressBar(content);
    m_bar->setObjectName(QStringLiteral("KxProgressDialog_bar"));
    m_bar->setTextVisible(false);
    m_info = KxLabel::CreateLabel(content, QString());
    m_info->setObjectName(QStringLiteral("KxProgressDialog_info"));
    m_info->setProperty("textRole", QStringLiteral("muted"));
    m_info->setProperty("tabularFigures", true);
    m_cancel = GetButtonBar()->AddPushButton_R(SecondaryButton, -1);
    m_cancel->setObjectName(QStringLiteral("KxProgressDialog_cancel"));

    auto* head = new QHBoxLayout;
    head->setSpacing(GapPx);
    head->addWidget(m_icon);
    head->addWidget(m_title, 1);
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(MarginPx, MarginPx, MarginPx, GapPx);
    layout->setSpacing(GapPx);
    layout->addLayout(head);
    layout->addWidget(m_bar);
    layout->addWidget(m_info);
    m_icon->hide();
    SetContentWidget(content);
    setMinimumWidth(WidthPx);
    GetTitleBar()->SetButtons(KxTopLevelWindowTitleBar::CloseButton);

    connect(m_cancel, &QAbstractButton::clicked, this, [this] {
        m_closeReason = CancelButton;
        reject();
    });
    KxProgressDialog::RetranslateUi();
}

KxProgressDialog::~KxProgressDialog() = default;

void KxProgressDialog::SetRange(int minimum, int maximum)
{
    m_bar->setRange(minimum, maximum);
}

void KxProgressDialog::SetProgress(int progress)
{
    m_bar->setValue(progress);
}

void KxProgressDialog::SetProgressTitle(const QString& title, const QString& icon)
{
    m_title->setText(title);
    m_bar->setAccessibleName(title);
    m_icon->SetGlyph(icon, KxUIStyle::Role::Muted);
}

void KxProgressDialog::SetInfoText(const QString& text, const QString& toolTip, Qt::Alignment alignment)
{
    m_info->setText(text);
    m_info->setToolTip(toolTip);
    m_info->setAlignment(alignment);
}

QString KxProgressDialog::InfoText() const
{
    return m_info->text();
}

int KxProgressDialog::GetCloseReason() const
{
    return m_closeReason;
}

void KxProgressDialog::RetranslateUi()
{
    m_cancel->setText(tr("Cancel"));
}

void KxProgressDialog::showEvent(QShowEvent* event)
{
    if (!event->spontaneous()) {
        m_closeReason = NotClosed;
    }
    KxFramelessDialog::showEvent(event);
}

void KxProgressDialog::closeEvent(QCloseEvent* event)
{
    m_closeReason = WindowClosed;
    KxFramelessDialog::closeEvent(event);
}

void KxProgressDialog::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        m_closeReason = WindowClosed;
    }
    KxFramelessDialog::keyPressEvent(event);
}
