#pragma once

#include <KxCore/KxExport.h>

#include <QByteArray>
#include <QString>

/// What differs between platforms when a program starts. Each platform has its own implementation.
namespace KxPlatform
{
/// Whether a session may offer X11 and Wayland at the same time.
KXCORE_API bool OffersX11AndWayland();

/// Whether the system scales screens by quarters, all of which it draws sharply. Elsewhere factors such as 1.04 come
/// from a monitor's size.
KXCORE_API bool ScalesByQuarters();

/// The plugin of Qt with which a program draws text and has no windows, for QT_QPA_PLATFORM; empty for the usual one.
KXCORE_API QByteArray PluginWithoutWindows();

/// Whether the program that starts this one replaces "*.mp4" by the names of the files.
KXCORE_API bool ShellExpandsWildcards();

/// Whether a translucent window of the program can lie over another one.
KXCORE_API bool CanOverlayWindows();
} // namespace KxPlatform
