#include <KxCore/KxScreen.h>

#include <KxCore/KxMachineFacts.h>
#include <KxCore/KxPlatform.h>

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

double KxScreen::devicePixelRatio() const
{
    if (const std::optional<double> ratio = KxMachineFacts::Replaced().devicePixelRatio) {
        return *ratio;
    }
    const QWindow* const window = QGuiApplication::focusWindow();
    const QScreen* const screen = window != nullptr ? window->screen() : QGuiApplication::primaryScreen();
    return screen != nullptr ? screen->devicePixelRatio() : 1.0;
}

bool KxScreen::canOverlayWindows() const
{
    const std::optional<bool> replaced = KxMachineFacts::Replaced().canOverlayWindows;
    return replaced ? *replaced : KxPlatform::CanOverlayWindows();
}

template<>
KxScreen* KxSingleton<KxScreen>::instance()
{
    static KxScreen screen;
    return &screen;
}
