#include <KxWidgets/Windows/KxMessageBox.h>

#include <KxWidgets/Controls/KxGlyphLabel.h>
#include <KxWidgets/Style/KxTheme.h>

#include <KxWidgets/KxDialogButtonBar.h>
#include <KxWidgets/KxLabel.h>
#include <KxWidgets/KxTopLevelWindowTitleBar.h>

#include <QCheckBox>
#include <QHBoxLayout>
#include <QRegularExpression>

namespace
{

using KxUIStyle::Role;

constexpr int IconPx = 24;
constexpr int MarginPx = 24;
constexpr int GapPx = 16;
constexpr int TextGapPx = 8;
constexpr int NarrowTextPx = 300;
constexpr int WideTextPx = 420;
constexpr int SmallestButtonPx = 88;

QString GlyphOf(KrMessageType type)
{
    switch (type) {
    case KrMessageType::Question:
        return QStringLiteral("question");
    case KrMessageType::Information:
        return QStringLiteral("information");
    case KrMessageType::Warning:
        return QStringLiteral("warning");
    }
    return {};
}

// A path contains no spaces at which a line could be broken.
QString Breakable(QString text)
{
    static const QRegularExpression separator(QStringLiteral("([/\\\\_])"));
    return text.replace(separator, QStringLiteral("\\1\u200B"));
}

} // namespace

KxMessageBox::KxMessageBox(KrMessageType type, const Texts& texts, QWidget* parent)
    : KxFramelessDialog(texts.title, parent, true, true)
{
    GetTitleBar()->SetButtons(KxTopLevelWindowTitleBar::CloseButton);
    SetTitleName(texts.title, true);
    auto* content = new QWidget(this);
    auto* layout = new QHBoxLayout(content);
    layout->setContentsMargins(MarginPx, MarginPx, MarginPx, GapPx);
    layout->setSpacing(GapPx);
    auto* icon = new KxGlyphLabel(IconPx, content);
    icon->SetGlyph(GlyphOf(type), type == KrMessageType::Warning ? Role::Edited : Role::Accent);
    layout->addWidget(icon, 0, Qt::AlignTop);
    m_texts = new QVBoxLayout;
    m_texts->setSpacing(TextGapPx);
    layout->addLayout(m_texts, 1);
    SetContentWidget(content);
    m_texts->addStretch(1);
    AddText(texts.text, QString());
    AddText(texts.detail, QStringLiteral("muted"));
    if (!texts.link.isEmpty()) {
        auto* link =
            KxLabel::CreateLabel(content, QStringLiteral("<a href=\"%1\">%1</a>").arg(texts.link.toHtmlEscaped()));
        link->setObjectName(QStringLiteral("KxMessageBox_link"));
        link->setTextFormat(Qt::RichText);
        link->setOpenExternalLinks(true);
        link->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
        m_texts->addWidget(link);
    }
    m_texts->addStretch(1);
    setAccessibleDescription(texts.text);
}

KxMessageBox::~KxMessageBox() = default;

void KxMessageBox::AddText(const QString& text, const QString& role)
{
    if (text.isEmpty()) {
        return;
    }
    KxLabel* label = KxLabel::CreateLabel(m_texts->parentWidget(), Breakable(text));
    label->setObjectName(role.isEmpty() ? QStringLiteral("KxMessageBox_text") : QStringLiteral("KxMessageBox_detail"));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setProperty("textRole", role);
    label->ensurePolished();
    const int naturalPx = label->fontMetrics().size(0, text).width();
    label->setFixedWidth(qBound(NarrowTextPx, naturalPx + 1, WideTextPx));
    label->setFixedHeight(label->heightForWidth(label->width()));
    m_texts->addWidget(label);
}

void KxMessageBox::AddCheckBox()
{
    m_checkBox = new QCheckBox(tr("Do not show this again"), this);
    m_checkBox->setObjectName(QStringLiteral("KxMessageBox_again"));
    m_texts->insertWidget(m_texts->count() - 1, m_checkBox);
}

bool KxMessageBox::IsChecked() const
{
    return m_checkBox != nullptr && m_checkBox->isChecked();
}

void KxMessageBox::AddButton(const QString& text, Answer answer, bool isDefault)
{
    const bool confirms = answer == Answer::Confirm;
    KxPushButton* button = GetButtonBar()->AddPushButton_R(confirms ? 0 : 1, -1);
    button->setObjectName(confirms ? QStringLiteral("KxMessageBox_confirm") : QStringLiteral("KxMessageBox_refuse"));
    button->setText(text);
    button->setMinimumWidth(SmallestButtonPx);
    if (isDefault) {
        m_default = button;
        button->setFocus(Qt::OtherFocusReason);
    }
    // The button bar makes every primary button the default one.
    button->setDefault(false);
    if (m_default != nullptr) {
        m_default->setDefault(true);
    }
    connect(button, &QAbstractButton::clicked, this, confirms ? &QDialog::accept : &QDialog::reject);
}
