#pragma once

#include <QDBusObjectPath>
#include <QDBusUnixFileDescriptor>
#include <QObject>

/// Keeps the machine from being suspended: by the desktop portal, otherwise by logind. Both end it themselves when the
/// process has ended, in whatever way. Without either of them nothing happens. User-interface thread.
class SuspendLock : public QObject
{
    Q_OBJECT
public:
    SuspendLock(const QString& reason, QObject* parent);
    ~SuspendLock() override;

private:
    void AskPortal();
    void AskLogind();

    const QString m_reason;
    /// Empty unless the portal holds the lock.
    QDBusObjectPath m_request;
    /// Invalid unless logind holds the lock.
    QDBusUnixFileDescriptor m_descriptor;
};
