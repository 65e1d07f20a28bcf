#pragma once

#include <KxCore/KxExport.h>
#include <KxCore/KxSingleton.h>

#include <optional>

/// Properties of the current screen: that of the window with the focus, otherwise the primary one. Get it from
/// KxSingleton<KxScreen>. User-interface thread.
class KXCORE_API KxScreen
{
public:
    /// Device pixels per pixel of a widget; 1 without a screen.
    double devicePixelRatio() const;

    /// Replaces the screen's ratio by `ratio`; no value restores it. For a host that scales its windows itself.
    void setDevicePixelRatio(std::optional<double> ratio);

    /// Whether a translucent window of the program can lie over another one. False under X11 without a compositing
    /// manager, where it would be opaque, and under Wayland, where it cannot be placed.
    bool canOverlayWindows() const;

    /// Replaces the platform's answer; no value restores it.
    /// For a host that composes its windows itself.
    void setCanOverlayWindows(std::optional<bool> can);

private:
    std::optional<double> m_ratio;
    std::optional<bool> m_canOverlay;
};

template<>
KXCORE_API KxScreen* KxSingleton<KxScreen>::instance();
