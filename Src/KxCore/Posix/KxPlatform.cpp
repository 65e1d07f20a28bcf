#include <KxCore/KxPlatform.h>

#include <QGuiApplication>
#include <QX11Info>

bool KxPlatform::OffersX11AndWayland()
{
    return true;
}

bool KxPlatform::ScalesByQuarters()
{
    return false;
}

QByteArray KxPlatform::PluginWithoutWindows()
{
    return QByteArrayLiteral("offscreen");
}

bool KxPlatform::ShellExpandsWildcards()
{
    return true;
}

bool KxPlatform::CanOverlayWindows()
{
    if (QX11Info::isPlatformX11()) {
        return QX11Info::isCompositingManagerRunning();
    }
    return !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}
