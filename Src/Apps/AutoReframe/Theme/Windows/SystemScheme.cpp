#include <Apps/AutoReframe/Theme/SystemScheme.h>

#include <QGuiApplication>
#include <QSettings>

namespace
{

void Ask(const std::function<void(KxUIStyle::Scheme)>& found)
{
    const QSettings settings(
        QStringLiteral("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize"),
        QSettings::NativeFormat);
    const QVariant isLight = settings.value(QStringLiteral("AppsUseLightTheme"));
    if (isLight.isValid()) {
        found(isLight.toInt() != 0 ? KxUIStyle::Scheme::Light : KxUIStyle::Scheme::Dark);
    }
}

} // namespace

SystemScheme::SystemScheme(QObject* parent)
    : QObject(parent)
{
}

SystemScheme::~SystemScheme() = default;

void SystemScheme::Watch(const std::function<void(KxUIStyle::Scheme scheme)>& found)
{
    Ask(found);
    // The person changes it in another program and comes back.
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, [found](Qt::ApplicationState state) {
        if (state == Qt::ApplicationActive) {
            Ask(found);
        }
    });
}
