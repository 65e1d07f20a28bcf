#pragma once

#include <QByteArray>

#include <optional>

namespace AutoReframePlatform
{
/// The platform plugins that Qt is to try, for QT_QPA_PLATFORM; nothing to leave the choice to Qt. On X11 the crop can
/// be drawn in a window over the player; Wayland lets no program place its windows. So X11 is taken where the session
/// offers it (`display`, the value of DISPLAY, is not empty) and the person asked for nothing (`wanted`, the value of
/// QT_QPA_PLATFORM, is empty). Pure.
std::optional<QByteArray> Choose(const QByteArray& display, const QByteArray& wanted);

/// Before the application object is made.
void Apply();
/// Once it is made: programs that this one starts (a file manager) make their own choice.
void Restore();
} // namespace AutoReframePlatform
