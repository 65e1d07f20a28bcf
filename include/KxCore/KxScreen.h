#pragma once

#include <KxCore/KxExport.h>
#include <KxCore/KxSingleton.h>

#include <optional>

/// Facts of the screen that the program is worked on: that of the window with the focus, else the primary one. Get it
/// from KxSingleton<KxScreen>. User-interface thread.
class KXCORE_API KxScreen
{
public:
    /// Device pixels in a pixel of a widget; 1 without a screen.
    double devicePixelRatio() const;

    /// From now on `ratio` is told in place of the screen's; without a value the screen's again. For a host that scales
    /// its windows by itself.
    void setDevicePixelRatio(std::optional<double> ratio);

private:
    std::optional<double> m_ratio;
};

template<>
KXCORE_API KxScreen* KxSingleton<KxScreen>::instance();
