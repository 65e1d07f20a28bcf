#include <Apps/AutoReframe/Theme/SystemScheme.h>

#include <QGuiApplication>

#include <windows.h>

namespace
{

void Ask(const std::function<void(KxUIStyle::Scheme)>& found)
{
    // QSettings would create the key where it is missing.
    DWORD isLight = 0;
    DWORD size = sizeof isLight;
    if (RegGetValueW(HKEY_CURRENT_USER, L"Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize",
                     L"AppsUseLightTheme", RRF_RT_REG_DWORD, nullptr, &isLight, &size) == ERROR_SUCCESS) {
        found(isLight != 0 ? KxUIStyle::Scheme::Light : KxUIStyle::Scheme::Dark);
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
