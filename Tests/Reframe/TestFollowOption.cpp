#include <Apps/Reframe/FollowOption.h>
#include <Apps/Reframe/ReframeOptions.h>

#include <gtest/gtest.h>

namespace
{

const FollowOption::Video Video{QSize(1280, 720), 25.0, 250};

KxResult<KxSubjectSeed> Seed(const char* text)
{
    const std::optional<FollowOption> option = FollowOption::Parse(QLatin1String(text));
    EXPECT_TRUE(option) << text;
    return option ? option->SeedIn(Video) : KxResult<KxSubjectSeed>::Failure({});
}

ReframeOptions::Parsed Parse(const QStringList& arguments)
{
    return ReframeOptions::Parse(QStringList(QStringLiteral("reframe")) + arguments);
}

} // namespace

TEST(FollowOption, SecondsAndFramesAreTheSameTime)
{
    EXPECT_DOUBLE_EQ(Seed("3@10,10")->seconds, 3.0);
    EXPECT_DOUBLE_EQ(Seed("75f@10,10")->seconds, 3.0);
    EXPECT_DOUBLE_EQ(Seed("0.04@10,10")->seconds, 0.04);
}

TEST(FollowOption, PixelsAndFractionsAreTheSamePlace)
{
    for (const char* text : {"1@640,180,128,360", "1@0.5,0.25,0.1,0.5"}) {
        const auto seed = Seed(text);
        ASSERT_TRUE(seed) << text;
        EXPECT_NEAR(seed->box.x, 0.5, 1e-12);
        EXPECT_NEAR(seed->box.y, 0.25, 1e-12);
        EXPECT_NEAR(seed->box.width, 0.1, 1e-12);
        EXPECT_NEAR(seed->box.height, 0.5, 1e-12);
        EXPECT_EQ(seed->extent, KxSubjectSeed::Extent::Drawn);
    }
}

TEST(FollowOption, APointHasAnExtentThatIsGuessed)
{
    const auto seed = Seed("1@640,360");
    ASSERT_TRUE(seed);
    EXPECT_EQ(seed->box.width, 0.0);
    EXPECT_EQ(seed->box.height, 0.0);
    EXPECT_EQ(seed->extent, KxSubjectSeed::Extent::Guessed);
}

TEST(FollowOption, WhatIsNoTimeAndPlaceIsRefused)
{
    for (const char* text : {"", "3", "3@", "3@1", "3@1,2,3", "3@1,2,3,4,5", "@1,2", "x@1,2", "3@a,2", "-1@1,2",
                             "1.5f@1,2", "nan@1,2", "inf@1,2", "3@nan,2", "3@1,2,0,4", "3@1,2,-3,4", "3@1,2@4"}) {
        EXPECT_FALSE(FollowOption::Parse(QLatin1String(text))) << text;
    }
}

TEST(FollowOption, WhatLiesOutsideTheVideoIsRefused)
{
    EXPECT_TRUE(Seed("249f@10,10"));
    EXPECT_EQ(Seed("250f@10,10").Message(), QStringLiteral("the video ends after 10.00 s"));
    EXPECT_EQ(Seed("1@1280,10").Message(), QStringLiteral("it lies outside the picture of 1280x720 pixels"));
    EXPECT_FALSE(Seed("1@10,720"));
    EXPECT_FALSE(Seed("1@-200,10,100,100"));
    EXPECT_FALSE(Seed("1@10,-200,100,100"));
    EXPECT_FALSE(Seed("1@-100,10,100,100"));
    EXPECT_FALSE(Seed("1@10,-100,100,100"));
    EXPECT_FALSE(Seed("1@-1,10"));
    EXPECT_TRUE(Seed("1@-50,10,100,100"));
    EXPECT_TRUE(Seed("1@10,-50,100,100"));
}

TEST(FollowOption, AllCornersOfThePictureAreInside)
{
    for (const char* const text : {"1@0,0", "1@1279,0", "1@0,719", "1@1279,719"}) {
        EXPECT_TRUE(Seed(text)) << text;
    }
}

TEST(FollowOption, SeveralCanBeGivenOnTheCommandLine)
{
    const auto parsed = Parse({QStringLiteral("--follow"), QStringLiteral("3@10,10"), QStringLiteral("--follow"),
                               QStringLiteral("7@20,20,5,5"), QStringLiteral("--choices"), QStringLiteral("list.json"),
                               QStringLiteral("a.mp4")});
    ASSERT_TRUE(parsed.options);
    ASSERT_EQ(parsed.options->follow.size(), 2);
    EXPECT_EQ(parsed.options->follow[1].place, QRectF(20, 20, 5, 5));
    EXPECT_EQ(parsed.options->choices, QStringLiteral("list.json"));
}

TEST(FollowOption, ContradictionsAreReported)
{
    const auto wrong = Parse({QStringLiteral("--follow"), QStringLiteral("10,10"), QStringLiteral("a.mp4")});
    EXPECT_FALSE(wrong.options);
    EXPECT_TRUE(wrong.text.startsWith(QStringLiteral("\"10,10\" is nothing to follow"))) << wrong.text.toStdString();
    EXPECT_FALSE(
        Parse({QStringLiteral("--follow"), QStringLiteral("3@1,1"), QStringLiteral("a.mp4"), QStringLiteral("b.mp4")})
            .options);
    EXPECT_FALSE(Parse({QStringLiteral("--choices"), QStringLiteral("list.json"), QStringLiteral("--apply"),
                        QStringLiteral("t.csv"), QStringLiteral("a.mp4")})
                     .options);
}
