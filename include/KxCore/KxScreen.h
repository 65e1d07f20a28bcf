#pragma once

#include <KxCore/KxExport.h>
#include <KxCore/KxSingleton.h>

/// Properties of the current screen: that of the window with the focus, otherwise the primary one. Get it from
/// KxSingleton<KxScreen>. User-interface thread.
class KXCORE_API KxScreen
{
public:
    /// Device pixels per pixel of a widget; 1 without a screen.
    double devicePixelRatio() const;

    /// Whether a translucent window of the program can lie over another one. False under X11 without a compositing
    /// manager, where it would be opaque, and under Wayland, where it cannot be placed.
    bool canOverlayWindows() const;
};

template<>
KXCORE_API KxScreen* KxSingleton<KxScreen>::instance();
