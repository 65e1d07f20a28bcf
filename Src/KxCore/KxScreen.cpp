#include <KxCore/KxScreen.h>

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>
#if defined(KX_HAS_X11)
#include <QX11Info>
#endif

double KxScreen::devicePixelRatio() const
{
    if (m_ratio) {
        return *m_ratio;
    }
    const QWindow* const window = QGuiApplication::focusWindow();
    const QScreen* const screen = window != nullptr ? window->screen() : QGuiApplication::primaryScreen();
    return screen != nullptr ? screen->devicePixelRatio() : 1.0;
}

void KxScreen::setDevicePixelRatio(std::optional<double> ratio)
{
    m_ratio = ratio;
}

bool KxScreen::canOverlayWindows() const
{
    if (m_canOverlay) {
        return *m_canOverlay;
    }
#if defined(KX_HAS_X11)
    if (QX11Info::isPlatformX11()) {
        return QX11Info::isCompositingManagerRunning();
    }
#endif
    return !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

void KxScreen::setCanOverlayWindows(std::optional<bool> can)
{
    m_canOverlay = can;
}

template<>
KxScreen* KxSingleton<KxScreen>::instance()
{
    static KxScreen screen;
    return &screen;
}
