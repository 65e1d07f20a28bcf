#include <Apps/AutoReframe/AutoReframePlatform.h>

#include <KxCore/KxPlatform.h>

#include <QByteArray>
#include <QtGlobal>

namespace
{

constexpr const char* Variable = "QT_QPA_PLATFORM";
const QByteArray X11First = QByteArrayLiteral("xcb;wayland");

} // namespace

std::optional<QByteArray> AutoReframePlatform::Choose(const QByteArray& display, const QByteArray& wanted)
{
    return display.isEmpty() || !wanted.isEmpty() ? std::nullopt : std::optional<QByteArray>(X11First);
}

void AutoReframePlatform::Apply()
{
    if (!KxPlatform::OffersX11AndWayland()) {
        return;
    }
    if (const std::optional<QByteArray> platform = Choose(qgetenv("DISPLAY"), qgetenv(Variable))) {
        qputenv(Variable, *platform);
    }
}

void AutoReframePlatform::Restore()
{
    if (qgetenv(Variable) == X11First) {
        qunsetenv(Variable);
    }
}
