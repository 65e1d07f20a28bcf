#include <Apps/AutoReframe/AutoReframeOptions.h>
#include <Apps/AutoReframe/AutoReframePlatform.h>

#include <gtest/gtest.h>

namespace
{

AutoReframeOptions::Parsed Parse(const QStringList& arguments)
{
    return AutoReframeOptions::Parse(QStringList(QStringLiteral("auto-reframe")) + arguments);
}

} // namespace

TEST(TestAutoReframeOptions, EverythingWithoutADashIsAFile)
{
    const auto parsed = Parse({QStringLiteral("a.mp4"), QStringLiteral("--"), QStringLiteral("-b")});
    EXPECT_EQ(parsed.options.files, (QStringList{QStringLiteral("a.mp4"), QStringLiteral("-b")}));
    EXPECT_TRUE(parsed.text.isEmpty());
}

TEST(TestAutoReframeOptions, HelpAndVersionArePrinted)
{
    for (const char* const option : {"--help", "-h"}) {
        const auto help = Parse({QLatin1String(option)});
        EXPECT_TRUE(help.text.contains(QLatin1String("[FILE...]")));
        EXPECT_TRUE(help.text.contains(QLatin1String("--version")));
        EXPECT_EQ(help.exitStatus, 0);
    }
    const auto version = Parse({QStringLiteral("--version")});
    EXPECT_EQ(version.text, QStringLiteral("auto-reframe " KR_VERSION "\n"));
    EXPECT_EQ(version.exitStatus, 0);
}

TEST(TestAutoReframeOptions, HelpIsPrintedDespiteOptionsOfQt)
{
    const auto parsed = Parse({QStringLiteral("-platform"), QStringLiteral("offscreen"), QStringLiteral("--help")});
    EXPECT_EQ(parsed.exitStatus, 0);
    EXPECT_TRUE(parsed.text.contains(QLatin1String("[FILE...]")));
}

TEST(TestAutoReframeOptions, HelpNamesTheLanguageOfTheMenu)
{
    const QString help = Parse({QStringLiteral("--help")}).text.simplified();
    EXPECT_TRUE(help.contains(QLatin1String("Otherwise the one chosen in the menu, or that of the system.")));
}

TEST(TestAutoReframeOptions, AnUnknownOptionIsWrongUse)
{
    const auto parsed = Parse({QStringLiteral("--frobnicate"), QStringLiteral("a.mp4")});
    EXPECT_EQ(parsed.text, QStringLiteral("Unknown option 'frobnicate'.\nTry auto-reframe --help.\n"));
    EXPECT_EQ(parsed.exitStatus, 2);
}

TEST(TestAutoReframeOptions, AnUnknownOptionWithPlaceMarkersIsQuotedAsItIs)
{
    const auto parsed = Parse({QStringLiteral("--50%1%2")});
    EXPECT_EQ(parsed.text, QStringLiteral("Unknown option '50%1%2'.\nTry auto-reframe --help.\n"));
}

TEST(TestAutoReframeOptions, OptionsOfQtAreKnownAndTheirValuesAreNotFiles)
{
    const auto parsed = Parse({QStringLiteral("-platform"), QStringLiteral("xcb"), QStringLiteral("--style=fusion"),
                               QStringLiteral("-display"), QStringLiteral(":7"), QStringLiteral("-reverse"),
                               QStringLiteral("-session"), QStringLiteral("10a_b"), QStringLiteral("a.mp4")});
    EXPECT_EQ(parsed.text, QString());
    EXPECT_EQ(parsed.options.files, QStringList(QStringLiteral("a.mp4")));
}

TEST(TestAutoReframePlatform, X11IsTakenWhereTheSessionOffersIt)
{
    EXPECT_EQ(AutoReframePlatform::Choose(":0", QByteArray()), QByteArray("xcb;wayland"));
}

TEST(TestAutoReframePlatform, QtChoosesWithoutADisplay)
{
    EXPECT_EQ(AutoReframePlatform::Choose(QByteArray(), QByteArray()), std::nullopt);
}

TEST(TestAutoReframePlatform, WhatThePersonAskedForIsKept)
{
    EXPECT_EQ(AutoReframePlatform::Choose(":0", "wayland"), std::nullopt);
}

TEST(TestAutoReframeOptions, ALanguageIsUnderstoodAsPeopleWriteIt)
{
    EXPECT_EQ(Parse({QStringLiteral("--language=pt-br")}).options.language, QStringLiteral("pt_BR"));
    EXPECT_EQ(Parse({QStringLiteral("a.mp4")}).options.language, QString());
    const auto parsed = Parse({QStringLiteral("--language"), QStringLiteral("xx")});
    EXPECT_TRUE(parsed.text.startsWith(QLatin1String("\"xx\" is not an available language")));
    EXPECT_EQ(parsed.exitStatus, 2);
}
