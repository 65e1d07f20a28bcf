#pragma once

#include <KxWidgets/KxUIStyle.h>

#include <QDBusVariant>
#include <QObject>

#include <functional>

/// Asks the desktop portal, which all larger desktops offer on the session bus, for dark or light windows, and listens
/// for changes. User-interface thread.
class DesktopPortal : public QObject
{
    Q_OBJECT
public:
    using Found = std::function<void(KxUIStyle::Scheme scheme)>;

    DesktopPortal(const Found& found, QObject* parent);
    ~DesktopPortal() override;

private Q_SLOTS:
    void HandleChange(const QString& group, const QString& key, const QDBusVariant& value);

private:
    void Report(const QDBusVariant& value);

    const Found m_found;
};
