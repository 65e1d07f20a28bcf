#include <Apps/AutoReframe/Theme/SystemScheme.h>

#include <Apps/AutoReframe/Theme/Posix/DesktopPortal.h>

#include <QFileInfo>

namespace
{

/// Without a bus Qt would start one.
bool HasSessionBus()
{
    return !qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS") ||
           QFileInfo::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus"));
}

} // namespace

SystemScheme::SystemScheme(QObject* parent)
    : QObject(parent)
{
}

SystemScheme::~SystemScheme() = default;

void SystemScheme::Watch(const std::function<void(KxUIStyle::Scheme scheme)>& found)
{
    if (HasSessionBus()) {
        new DesktopPortal(found, this);
    }
}
