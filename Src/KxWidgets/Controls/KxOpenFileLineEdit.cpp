#include <KxWidgets/KxOpenFileLineEdit.h>

#include <KxWidgets/KxFileDialog.h>
#include <KxWidgets/KxLineEdit.h>
#include <KxWidgets/KxToolButton.h>

#include <QDir>
#include <QHBoxLayout>
#include <QResizeEvent>
#include <QStyle>
#include <QVariant>

namespace
{

constexpr int HeightPx = 24;
constexpr int GapPx = 4;

} // namespace

KxOpenFileLineEdit::KxOpenFileLineEdit(QWidget* parent)
    : KxWidget(parent)
    , m_edit(KxLineEdit::creartNormalLineEdit(this, HeightPx))
    , m_button(KxToolButton::CreateToolButton(this, QStringLiteral("KxOpenFileLineEdit_button")))
{
    m_edit->setObjectName(QStringLiteral("KxOpenFileLineEdit_edit"));
    m_button->SetGlyph(QStringLiteral("folder"));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(GapPx);
    layout->addWidget(m_edit, 1);
    layout->addWidget(m_button);
    setFocusProxy(m_edit);
    connect(m_edit, &QLineEdit::textChanged, this, &KxOpenFileLineEdit::sigTextChanged);
    connect(m_button, &QAbstractButton::clicked, this, &KxOpenFileLineEdit::PickFolder);
    KxOpenFileLineEdit::RetranslateUi();
}

KxOpenFileLineEdit* KxOpenFileLineEdit::CreateOpenFileLineEdit(QWidget* parent)
{
    return new KxOpenFileLineEdit(parent);
}

KxOpenFileLineEdit::~KxOpenFileLineEdit() = default;

QString KxOpenFileLineEdit::Text() const
{
    return m_edit->text();
}

void KxOpenFileLineEdit::SetText(const QString& text)
{
    m_edit->setText(text);
}

void KxOpenFileLineEdit::RetranslateUi()
{
    m_edit->setAccessibleName(tr("Folder"));
    m_button->setToolTip(tr("Choose a folder"));
}

void KxOpenFileLineEdit::resizeEvent(QResizeEvent* event)
{
    KxWidget::resizeEvent(event);
    m_edit->setFixedHeight(event->size().height());
    const bool isCompact = event->size().height() <= HeightPx;
    if (m_edit->property("compact").toBool() != isCompact) {
        m_edit->setProperty("compact", isCompact);
        // The style sheet reads properties only while a widget is polished.
        m_edit->style()->unpolish(m_edit);
        m_edit->style()->polish(m_edit);
    }
    m_button->setFixedSize(event->size().height() + GapPx, event->size().height());
}

void KxOpenFileLineEdit::PickFolder()
{
    const QString picked = KxFileDialog::getExistingDirectory(this, tr("Choose a folder"), Text());
    if (!picked.isEmpty()) {
        m_edit->setText(QDir::toNativeSeparators(picked));
    }
}
