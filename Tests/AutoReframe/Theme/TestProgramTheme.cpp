#include <Apps/AutoReframe/Theme/ProgramTheme.h>

#include <Tests/Support/Eventually.h>

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QPalette>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace
{

using KxUIStyle::Scheme;

/// What the desktop would offer.
class Portal : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")
public:
    uint scheme = 0;

public Q_SLOTS:
    Q_SCRIPTABLE QDBusVariant Read(const QString& group, const QString& key)
    {
        asked = group + QLatin1Char(' ') + key;
        return QDBusVariant(QVariant::fromValue(QDBusVariant(scheme)));
    }

Q_SIGNALS:
    Q_SCRIPTABLE void SettingChanged(const QString& group, const QString& key, const QDBusVariant& value);

public:
    QString asked;
};

class TestProgramTheme : public testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        KxUIStyle::Apply(*qApp);
        Bus().start(QStringLiteral("dbus-daemon"),
                    {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address")});
        if (Bus().waitForStarted() && Bus().waitForReadyRead()) {
            Address() = Bus().readLine().trimmed();
        }
    }
    static void TearDownTestSuite()
    {
        Bus().kill();
        Bus().waitForFinished();
    }
    TestProgramTheme()
    {
        qputenv("KX_CONFIG_FILE", m_folder.filePath(QStringLiteral("config.ini")).toLocal8Bit());
        qunsetenv("KX_THEME");
        qputenv("DBUS_SESSION_BUS_ADDRESS", Address());
    }
    ~TestProgramTheme() override { KxUIStyle::SetScheme(*qApp, Scheme::Dark); }

    void Offer(uint scheme)
    {
        ASSERT_FALSE(Address().isEmpty()) << "dbus-daemon did not start";
        m_portal.scheme = scheme;
        QDBusConnection desktop =
            QDBusConnection::connectToBus(QString::fromLocal8Bit(Address()), QStringLiteral("desktop"));
        ASSERT_TRUE(desktop.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), &m_portal,
                                           QDBusConnection::ExportScriptableContents));
        ASSERT_TRUE(desktop.registerService(QStringLiteral("org.freedesktop.portal.Desktop")));
    }
    static bool IsLight()
    {
        return KxUIStyle::ShownScheme() == Scheme::Light &&
               QApplication::palette().color(QPalette::Window).lightness() > 200;
    }
    static bool IsDark()
    {
        return KxUIStyle::ShownScheme() == Scheme::Dark &&
               QApplication::palette().color(QPalette::Window).lightness() < 60;
    }

    Portal m_portal;

private:
    static QProcess& Bus()
    {
        static QProcess bus;
        return bus;
    }
    static QByteArray& Address()
    {
        static QByteArray address;
        return address;
    }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(TestProgramTheme, TheProgramIsLightWhereTheSystemIs)
{
    Offer(2);
    ProgramTheme theme(*qApp);
    EXPECT_TRUE(IsDark()) << "until the system has answered for the first time";
    theme.FollowSystem();
    ASSERT_EVENTUALLY(IsLight());
    EXPECT_EQ(m_portal.asked, QStringLiteral("org.freedesktop.appearance color-scheme"));
    KxUIStyle::SetScheme(*qApp, Scheme::Dark);
    const ProgramTheme next(*qApp);
    EXPECT_TRUE(IsLight()) << "the next start begins with it";
}

TEST_F(TestProgramTheme, AChangeOfTheSystemIsFollowed)
{
    Offer(2);
    ProgramTheme theme(*qApp);
    theme.FollowSystem();
    ASSERT_EVENTUALLY(IsLight());
    const QString group = QStringLiteral("org.freedesktop.appearance");
    Q_EMIT m_portal.SettingChanged(group, QStringLiteral("color-scheme"), QDBusVariant(1U));
    ASSERT_EVENTUALLY(IsDark());
    Q_EMIT m_portal.SettingChanged(group, QStringLiteral("contrast"), QDBusVariant(0U));
    Q_EMIT m_portal.SettingChanged(group, QStringLiteral("color-scheme"), QDBusVariant(QStringLiteral("blue")));
    Q_EMIT m_portal.SettingChanged(group, QStringLiteral("color-scheme"), QDBusVariant(0U));
    ASSERT_EVENTUALLY(IsLight());
}

TEST_F(TestProgramTheme, WhatThePersonChoseCountsMore)
{
    Offer(2);
    qputenv("KX_THEME", "dark");
    ProgramTheme dark(*qApp);
    dark.FollowSystem();
    EXPECT_TRUE(IsDark());
    qputenv("KX_THEME", "light");
    const ProgramTheme light(*qApp);
    EXPECT_TRUE(IsLight());
    EXPECT_TRUE(m_portal.asked.isEmpty());
}

TEST_F(TestProgramTheme, WithoutASessionBusTheProgramIsDark)
{
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    qunsetenv("XDG_RUNTIME_DIR");
    ProgramTheme theme(*qApp);
    theme.FollowSystem();
    EXPECT_TRUE(IsDark());
}

#include "TestProgramTheme.moc"
