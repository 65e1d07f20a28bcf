#include <Tests/AutoReframe/Theme/Posix/OfferedPortal.h>

#include <QDBusConnection>
#include <QProcess>

#include <gtest/gtest.h>

namespace
{

/// Ends with the test program.
class SessionBus
{
public:
    SessionBus()
    {
        m_daemon.start(QStringLiteral("dbus-daemon"),
                       {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address")});
        if (m_daemon.waitForStarted() && m_daemon.waitForReadyRead()) {
            m_address = m_daemon.readLine().trimmed();
        }
    }
    ~SessionBus()
    {
        m_daemon.kill();
        m_daemon.waitForFinished();
    }
    SessionBus(const SessionBus&) = delete;
    SessionBus& operator=(const SessionBus&) = delete;

    const QByteArray& Address() const { return m_address; }

private:
    QProcess m_daemon;
    QByteArray m_address;
};

const QByteArray& AddressOfBus()
{
    static const SessionBus bus;
    return bus.Address();
}

} // namespace

OfferedPortal::OfferedPortal()
{
    qputenv("DBUS_SESSION_BUS_ADDRESS", AddressOfBus());
}

void OfferedPortal::Offer(uint scheme)
{
    m_scheme = scheme;
    ASSERT_FALSE(AddressOfBus().isEmpty()) << "dbus-daemon did not start";
    QDBusConnection desktop =
        QDBusConnection::connectToBus(QString::fromLocal8Bit(AddressOfBus()), QStringLiteral("desktop"));
    ASSERT_TRUE(desktop.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), this,
                                       QDBusConnection::ExportScriptableContents));
    ASSERT_TRUE(desktop.registerService(QStringLiteral("org.freedesktop.portal.Desktop")));
}

QDBusVariant OfferedPortal::Read(const QString& group, const QString& key)
{
    m_asked = group + QLatin1Char(' ') + key;
    return QDBusVariant(QVariant::fromValue(QDBusVariant(m_scheme)));
}
