#include <Apps/AutoReframe/Desktop/Posix/SuspendLock.h>

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QPointer>

namespace
{

const QString Portal = QStringLiteral("org.freedesktop.portal.Desktop");

void Close(const QDBusObjectPath& request)
{
    QDBusConnection::sessionBus().asyncCall(QDBusMessage::createMethodCall(
        Portal, request.path(), QStringLiteral("org.freedesktop.portal.Request"), QStringLiteral("Close")));
}

} // namespace

SuspendLock::SuspendLock(const QString& reason, QObject* parent)
    : QObject(parent)
    , m_reason(reason)
{
    AskPortal();
}

SuspendLock::~SuspendLock()
{
    if (!m_request.path().isEmpty()) {
        Close(m_request);
    }
}

void SuspendLock::AskPortal()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        AskLogind();
        return;
    }
    constexpr uint suspend = 4;
    QDBusMessage call =
        QDBusMessage::createMethodCall(Portal, QStringLiteral("/org/freedesktop/portal/desktop"),
                                       QStringLiteral("org.freedesktop.portal.Inhibit"), QStringLiteral("Inhibit"));
    call << QString() << suspend << QVariantMap{{QStringLiteral("reason"), m_reason}};
    // The answer may come after this lock has been given up; then it is given back at once.
    auto* const answer = new QDBusPendingCallWatcher(bus.asyncCall(call), QCoreApplication::instance());
    const QPointer<SuspendLock> lock(this);
    connect(answer, &QDBusPendingCallWatcher::finished, answer, [answer, lock] {
        answer->deleteLater();
        const QDBusPendingReply<QDBusObjectPath> reply = *answer;
        if (reply.isError() && lock) {
            lock->AskLogind();
        } else if (!reply.isError() && lock) {
            lock->m_request = reply.value();
        } else if (!reply.isError()) {
            Close(reply.value());
        }
    });
}

void SuspendLock::AskLogind()
{
    QDBusConnection bus = QDBusConnection::systemBus();
    if (!bus.isConnected()) {
        return;
    }
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.login1"), QStringLiteral("/org/freedesktop/login1"),
        QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("Inhibit"));
    call << QStringLiteral("sleep") << QStringLiteral("Auto Reframe") << m_reason << QStringLiteral("block");
    // An answer for a lock that has been given up is destroyed with its descriptor, which ends it.
    auto* const answer = new QDBusPendingCallWatcher(bus.asyncCall(call), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        const QDBusPendingReply<QDBusUnixFileDescriptor> reply = *answer;
        if (!reply.isError()) {
            m_descriptor = reply.value();
        }
    });
}
