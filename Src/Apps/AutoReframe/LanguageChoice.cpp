#include <Apps/AutoReframe/LanguageChoice.h>

#include <KxCore/KxConfigFile.h>
#include <KxCore/KxLanguage.h>

#include <QSettings>

namespace
{

const QString Key = QStringLiteral("language");

} // namespace

QString LanguageChoice::Saved()
{
    const QString code = KxConfigFile::ReadAutoReframe(Key);
    return KxLanguage::Codes().contains(code) ? code : QString();
}

void LanguageChoice::Save(const QString& code)
{
    QSettings settings(KxConfigFile::Path(), QSettings::IniFormat);
    settings.beginGroup(QStringLiteral("Auto Reframe"));
    settings.setValue(Key, code);
}

QString LanguageChoice::Of(const QString& fromCommandLine)
{
    const QString wanted = fromCommandLine.isEmpty() ? Saved() : fromCommandLine;
    return wanted.isEmpty() ? KxLanguage::OfSystem() : wanted;
}
