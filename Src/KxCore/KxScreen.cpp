#include <KxCore/KxScreen.h>

#include <KxCore/KxPlatform.h>

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

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
    return KxPlatform::CanOverlayWindows();
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
