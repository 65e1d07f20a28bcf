#include <Apps/AutoReframe/Theme/ProgramTheme.h>

#include <KxCore/KxConfigFile.h>

#include <QApplication>
#include <QSettings>

namespace
{

using KxUIStyle::Scheme;

const QString ChosenKey = QStringLiteral("Theme");
const QString LastKey = QStringLiteral("SystemTheme");
const QString Light = QStringLiteral("light");
const QString Dark = QStringLiteral("dark");

} // namespace

ProgramTheme::ProgramTheme(QApplication& application)
    : m_application(application)
    , m_system(nullptr)
{
    QString chosen = qEnvironmentVariable("KX_THEME");
    if (chosen.isEmpty()) {
        chosen = KxConfigFile::ReadAutoReframe(ChosenKey);
    }
    m_follows = chosen != Light && chosen != Dark;
    const QString shown = m_follows ? KxConfigFile::ReadAutoReframe(LastKey) : chosen;
    KxUIStyle::SetScheme(m_application, shown == Light ? Scheme::Light : Scheme::Dark);
}

void ProgramTheme::FollowSystem()
{
    if (m_follows) {
        m_system.Watch([this](Scheme scheme) { Show(scheme); });
    }
}

void ProgramTheme::Show(Scheme scheme)
{
    if (scheme != KxUIStyle::ShownScheme()) {
        KxUIStyle::SetScheme(m_application, scheme);
        QSettings(KxConfigFile::Path(), QSettings::IniFormat)
            .setValue(QStringLiteral("Auto Reframe/") + LastKey, scheme == Scheme::Light ? Light : Dark);
    }
}
