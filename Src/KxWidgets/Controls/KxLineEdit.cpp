#include <KxWidgets/KxLineEdit.h>

#include <KxWidgets/Controls/KxFileNameValidator.h>
#include <KxWidgets/Controls/KxVisibleCharacters.h>

namespace
{

constexpr int CompactHeightPx = 24;

} // namespace

KxLineEdit::KxLineEdit(QWidget* parent)
    : QLineEdit(parent)
{
}

KxLineEdit* KxLineEdit::creartNormalLineEdit(QWidget* parent, int heightPx)
{
    auto* edit = new KxLineEdit(parent);
    edit->setProperty("compact", heightPx <= CompactHeightPx);
    edit->setFixedHeight(heightPx);
    return edit;
}

KxLineEdit::~KxLineEdit() = default;

void KxLineEdit::setText(const QString& text)
{
    QLineEdit::setText(KxVisibleCharacters::Left(text, maxLength()));
}

void KxLineEdit::SetFileNameValidator(bool on)
{
    const QValidator* old = validator();
    setValidator(on ? new KxFileNameValidator(this) : nullptr);
    delete old;
}
