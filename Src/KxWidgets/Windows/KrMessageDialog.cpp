#include <KxWidgets/Windows/KxMessageResponder.h>

#include <KxCore/KxConfigFile.h>
#include <KxWidgets/Windows/KxMessageBox.h>

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QSettings>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(KrMessageDialog)
};

KrMessageDialog::Responder& CurrentResponder()
{
    static KrMessageDialog::Responder responder;
    return responder;
}

QString TitleOrProduct(const QString& title)
{
    if (!title.isEmpty()) {
        return title;
    }
    const QString product = QCoreApplication::applicationName();
    return product.isEmpty() ? Texts::tr("Auto Reframe") : product;
}

// Boxes are identified by their text. Its hash serves as the key because a key may not contain every character.
QString HiddenKey(const QString& text)
{
    const QByteArray digest = QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha1);
    return QStringLiteral("Hidden Messages/") + QString::fromLatin1(digest.toHex());
}

QString ConfirmText(KrStandardButton buttons)
{
    return buttons == KrStandardButton::Yes  ? Texts::tr("Yes")
           : buttons == KrStandardButton::No ? Texts::tr("No")
                                             : Texts::tr("OK");
}

} // namespace

void KrMessageDialog::Infomation(const QString& text, QWidget* parent, KrStandardButton buttons, const QString& detail,
                                 const QString& title, const QString& link, bool withCheckBox)
{
    QSettings settings(KxConfigFile::Path(), QSettings::IniFormat);
    if (withCheckBox && settings.value(HiddenKey(text)).toBool()) {
        return;
    }
    const QString shownTitle = TitleOrProduct(title);
    if (CurrentResponder()) {
        Shown shown;
        shown.text = text;
        shown.title = shownTitle;
        shown.confirmText = ConfirmText(buttons);
        shown.parent = parent;
        CurrentResponder()(shown);
        return;
    }
    KxMessageBox box(KrMessageType::Information, {shownTitle, text, detail, link}, parent);
    box.setObjectName(QStringLiteral("KrMessageDialog"));
    if (withCheckBox) {
        box.AddCheckBox();
    }
    box.AddButton(ConfirmText(buttons), KxMessageBox::Answer::Confirm, true);
    box.DoModal();
    if (box.IsChecked()) {
        settings.setValue(HiddenKey(text), true);
    }
}

bool KrMessageDialog::Question_CustomYesNo(const QString& question, const QString& refuseText,
                                           const QString& confirmText, QWidget* parent, KrStandardButton defaultButton,
                                           const QString& detail, const QString& title, KrMessageType type)
{
    const QString shownTitle = TitleOrProduct(title);
    if (CurrentResponder()) {
        return CurrentResponder()({type, question, shownTitle, refuseText, confirmText, defaultButton, parent});
    }
    const bool refuses = defaultButton == KrStandardButton::No;
    KxMessageBox box(type, {shownTitle, question, detail, QString()}, parent);
    box.setObjectName(QStringLiteral("KrMessageDialog"));
    box.AddButton(refuseText, KxMessageBox::Answer::Refuse, refuses);
    box.AddButton(confirmText, KxMessageBox::Answer::Confirm, !refuses);
    return box.DoModal() == QDialog::Accepted;
}

void KrMessageDialog::SetResponder(Responder responder)
{
    CurrentResponder() = std::move(responder);
}
