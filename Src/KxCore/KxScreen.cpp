#include <KxCore/KxScreen.h>

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

template<>
KxScreen* KxSingleton<KxScreen>::instance()
{
    static KxScreen screen;
    return &screen;
}
