#include <Tests/AutoReframe/Theme/Posix/OfferedPortal.h>
#include <Tests/AutoReframe/Theme/ProgramThemeTest.h>

#include <Apps/AutoReframe/Theme/ProgramTheme.h>

#include <Tests/Support/Eventually.h>

TEST_F(ProgramThemeTest, ThePortalIsAskedUnlessThePersonChose)
{
    OfferedPortal portal;
    portal.Offer(2);
    qputenv("KX_THEME", "dark");
    ProgramTheme chosen(*qApp);
    chosen.FollowSystem();
    EXPECT_TRUE(IsDark());
    EXPECT_TRUE(portal.Asked().isEmpty());
    qunsetenv("KX_THEME");
    ProgramTheme theme(*qApp);
    theme.FollowSystem();
    ASSERT_EVENTUALLY(IsLight());
    EXPECT_EQ(portal.Asked(), QStringLiteral("org.freedesktop.appearance color-scheme"));
}

TEST_F(ProgramThemeTest, OtherSettingsOfThePortalAreIgnored)
{
    OfferedPortal portal;
    portal.Offer(2);
    ProgramTheme theme(*qApp);
    theme.FollowSystem();
    ASSERT_EVENTUALLY(IsLight());
    const QString group = QStringLiteral("org.freedesktop.appearance");
    Q_EMIT portal.SettingChanged(group, QStringLiteral("color-scheme"), QDBusVariant(1U));
    ASSERT_EVENTUALLY(IsDark());
    Q_EMIT portal.SettingChanged(group, QStringLiteral("contrast"), QDBusVariant(0U));
    Q_EMIT portal.SettingChanged(group, QStringLiteral("color-scheme"), QDBusVariant(QStringLiteral("blue")));
    // No preference; it comes last, so that the others would have counted before.
    Q_EMIT portal.SettingChanged(group, QStringLiteral("color-scheme"), QDBusVariant(0U));
    ASSERT_EVENTUALLY(IsLight());
}

TEST_F(ProgramThemeTest, WithoutASessionBusTheProgramIsDark)
{
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    qunsetenv("XDG_RUNTIME_DIR");
    ProgramTheme theme(*qApp);
    theme.FollowSystem();
    EXPECT_TRUE(IsDark());
}
