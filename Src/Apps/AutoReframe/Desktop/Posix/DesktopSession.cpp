#include <Apps/AutoReframe/Desktop/DesktopSession.h>

#include <Apps/AutoReframe/Desktop/Posix/SuspendLock.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace
{

/// Speaks to the desktop over D-Bus, by the interfaces of freedesktop.org; for the launcher by the entry that several
/// desktops have adopted.
class BusSession final : public QObject, public DesktopSession
{
public:
    void Notify(const QString& title, const QString& text) override
    {
        const QString name = QStringLiteral("org.freedesktop.Notifications");
        constexpr int shownAsUsual = -1;
        QDBusMessage call = QDBusMessage::createMethodCall(name, QStringLiteral("/org/freedesktop/Notifications"), name,
                                                           QStringLiteral("Notify"));
        // The text may contain markup, the title may not.
        call << QStringLiteral("Auto Reframe") << m_notification << QStringLiteral("auto-reframe") << title
             << text.toHtmlEscaped() << QStringList()
             << QVariantMap{{QStringLiteral("desktop-entry"), QStringLiteral("auto-reframe")}} << shownAsUsual;
        auto* const answer = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), this);
        connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
            answer->deleteLater();
            const QDBusPendingReply<uint> reply = *answer;
            m_notification = reply.isError() ? 0 : reply.value();
        });
    }

    void PreventSuspend(const QString& reason) override { m_lock = std::make_unique<SuspendLock>(reason, nullptr); }

    void AllowSuspend() override { m_lock.reset(); }

    void ShowProgress(std::optional<double> progress) override
    {
        QDBusMessage update =
            QDBusMessage::createSignal(QStringLiteral("/com/canonical/unity/launcherentry/autoreframe"),
                                       QStringLiteral("com.canonical.Unity.LauncherEntry"), QStringLiteral("Update"));
        update << QStringLiteral("application://auto-reframe.desktop")
               << QVariantMap{{QStringLiteral("progress"), progress.value_or(0.0)},
                              {QStringLiteral("progress-visible"), progress.has_value()}};
        QDBusConnection::sessionBus().send(update);
    }

private:
    /// The last one, which the next one replaces; 0 is none.
    uint m_notification = 0;
    std::unique_ptr<SuspendLock> m_lock;
};

} // namespace

std::unique_ptr<DesktopSession> DesktopSession::Make()
{
    return std::make_unique<BusSession>();
}
