#include <Tests/AutoReframe/Theme/OfferedScheme.h>
#include <Tests/AutoReframe/Theme/ProgramThemeTest.h>

#include <Apps/AutoReframe/Theme/ProgramTheme.h>

#include <Tests/Support/Eventually.h>

using KxUIStyle::Scheme;

TEST_F(ProgramThemeTest, TheProgramIsLightWhereTheSystemIs)
{
    OfferedScheme system;
    system.Offer(Scheme::Light);
    ProgramTheme theme(*qApp);
    EXPECT_TRUE(IsDark()) << "until the system has answered for the first time";
    theme.FollowSystem();
    ASSERT_EVENTUALLY(IsLight());
    KxUIStyle::SetScheme(*qApp, Scheme::Dark);
    const ProgramTheme next(*qApp);
    EXPECT_TRUE(IsLight()) << "the next start begins with it";
}

TEST_F(ProgramThemeTest, AChangeOfTheSystemIsFollowed)
{
    OfferedScheme system;
    system.Offer(Scheme::Light);
    ProgramTheme theme(*qApp);
    theme.FollowSystem();
    ASSERT_EVENTUALLY(IsLight());
    system.Change(Scheme::Dark);
    ASSERT_EVENTUALLY(IsDark());
    system.Change(Scheme::Light);
    ASSERT_EVENTUALLY(IsLight());
}

TEST_F(ProgramThemeTest, WhatThePersonChoseCountsMore)
{
    OfferedScheme system;
    system.Offer(Scheme::Light);
    qputenv("KX_THEME", "dark");
    ProgramTheme dark(*qApp);
    dark.FollowSystem();
    system.Change(Scheme::Light);
    EXPECT_TRUE(IsDark());
    qputenv("KX_THEME", "light");
    const ProgramTheme light(*qApp);
    EXPECT_TRUE(IsLight());
}
