#include <KxCore/KxPlatform.h>

bool KxPlatform::OffersX11AndWayland()
{
    return false;
}

bool KxPlatform::ScalesByQuarters()
{
    return true;
}

QByteArray KxPlatform::PluginWithoutWindows()
{
    // "offscreen" does not know the fonts of Windows; the usual plugin needs no desktop.
    return {};
}

bool KxPlatform::ShellExpandsWildcards()
{
    return false;
}

bool KxPlatform::CanOverlayWindows()
{
    return true;
}
