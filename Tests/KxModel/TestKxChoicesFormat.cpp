#include <KxModel/KxChoicesFormat.h>

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace
{

KxSubjectChoices OfEveryKind()
{
    KxSubjectChoice follow;
    follow.kind = KxChoiceKind::Follow;
    follow.fromSeconds = 2.002;
    follow.toSeconds = 9.643;
    follow.seeds = {{3.37, {0.35, 0.52, 0.19, 0.23}, KxSubjectSeed::Extent::Drawn},
                    {7.9, {0.51, 0.5, 0.0, 0.0}, KxSubjectSeed::Extent::Guessed}};
    KxSubjectChoice avoid = follow;
    avoid.kind = KxChoiceKind::Avoid;
    avoid.seeds.pop_back();
    KxSubjectChoice hold;
    hold.kind = KxChoiceKind::Hold;
    hold.fromSeconds = 9.643;
    hold.toSeconds = 12.1;
    hold.centreX = 0.25;
    hold.centreY = 0.75;
    KxSubjectChoice fit;
    fit.kind = KxChoiceKind::Fit;
    fit.boxes = {{0.1, 0.2, 0.2, 0.6}, {0.6, 0.2, 0.2, 0.6}};
    KxSubjectChoice automatic;
    automatic.fromSeconds = 20.0;
    // As left by a move to where its pictures are.
    KxSubjectChoice moved = hold;
    moved.fromSeconds = -1.5;
    moved.pictures = {{-1.5, 0}, {2.0 / 3.0, 0xFEDCBA9876543210U}, {12.06, 1}};
    return {follow, avoid, hold, fit, automatic, moved};
}

QString Problem(const QByteArray& text)
{
    const KxResult<KxSubjectChoices> read = KxChoicesFormat::Read(text, QStringLiteral("list.json"));
    return read ? QString() : read.Message();
}

QString ProblemOf(const QByteArray& choice)
{
    return Problem("{\"version\":1,\"choices\":[{\"kind\":\"automatic\"}," + choice + "]}");
}

void ExpectRefused(const QString& problem, const char* reason)
{
    EXPECT_TRUE(problem.startsWith(QStringLiteral("Cannot use list.json: "))) << problem.toStdString();
    EXPECT_TRUE(problem.contains(QLatin1String(reason))) << problem.toStdString();
    EXPECT_TRUE(problem.endsWith(QLatin1Char('.'))) << problem.toStdString();
}

} // namespace

TEST(KxChoicesFormat, WhatIsWrittenIsRead)
{
    const auto read = KxChoicesFormat::Read(KxChoicesFormat::Write(OfEveryKind()), QStringLiteral("list.json"));
    ASSERT_TRUE(read) << read.Message().toStdString();
    EXPECT_EQ(*read, OfEveryKind());
}

TEST(KxChoicesFormat, AnEmptyListIsValid)
{
    const auto read = KxChoicesFormat::Read(KxChoicesFormat::Write({}), QStringLiteral("list.json"));
    ASSERT_TRUE(read);
    EXPECT_TRUE(read->empty());
}

TEST(KxChoicesFormat, UnknownMembersAreIgnored)
{
    const auto read =
        KxChoicesFormat::Read("{\"version\":1,\"later\":{\"a\":[1]},\"choices\":[{\"kind\":\"hold\",\"centre\":[0.5,"
                              "0.5],\"colour\":\"red\"}]}",
                              QStringLiteral("list.json"));
    ASSERT_TRUE(read);
    ASSERT_EQ(read->size(), 1U);
    EXPECT_EQ(read->front().kind, KxChoiceKind::Hold);
}

TEST(KxChoicesFormat, AnotherVersionIsRefusedByNumber)
{
    ExpectRefused(Problem("{\"version\":2,\"choices\":[]}"), "version 2, and this program reads version 1");
    ExpectRefused(Problem("{\"choices\":[]}"), "no \"version\"");
}

TEST(KxChoicesFormat, TextThatIsNoListOfChoicesIsRefused)
{
    ExpectRefused(Problem(""), "no list of choices");
    ExpectRefused(Problem("[1,2]"), "no list of choices");
    ExpectRefused(Problem("{\"version\":1,"), "byte 13");
    ExpectRefused(Problem("{\"version\":1,\"choices\":7}"), "no list of \"choices\"");
}

TEST(KxChoicesFormat, AnInvalidChoiceIsRefusedByItsNumber)
{
    ExpectRefused(ProblemOf("{\"kind\":\"chase\"}"), "choice 2 has no known \"kind\"");
    ExpectRefused(ProblemOf("7"), "choice 2 has no known \"kind\"");
    ExpectRefused(ProblemOf("{\"kind\":\"follow\"}"), "choice 2 has no \"seeds\"");
    ExpectRefused(ProblemOf("{\"kind\":\"avoid\",\"seeds\":{}}"), "choice 2 has \"seeds\" that are no list");
    ExpectRefused(ProblemOf("{\"kind\":\"follow\",\"seeds\":[{\"box\":[0,0,1,1]}]}"), "no valid time (\"time\")");
    ExpectRefused(ProblemOf("{\"kind\":\"follow\",\"seeds\":[{\"time\":1}]}"), "has a box that is not");
    ExpectRefused(ProblemOf("{\"kind\":\"hold\"}"), "no \"centre\"");
    ExpectRefused(ProblemOf("{\"kind\":\"hold\",\"centre\":[0.5,1.5]}"), "no \"centre\"");
    ExpectRefused(ProblemOf("{\"kind\":\"hold\",\"centre\":[0.5,0.5],\"from\":3,\"to\":3}"), "ends before it begins");
    ExpectRefused(ProblemOf("{\"kind\":\"automatic\",\"from\":-1}"), "no valid time (\"from\")");
    ExpectRefused(ProblemOf("{\"kind\":\"automatic\",\"to\":1e300}"), "no valid time (\"to\")");
}

TEST(KxChoicesFormat, ABoxMustTouchThePicture)
{
    const auto problem = [](const QByteArray& box) { return ProblemOf("{\"kind\":\"fit\",\"boxes\":[" + box + "]}"); };
    EXPECT_EQ(problem("[0,0,1,1]"), QString());
    EXPECT_EQ(problem("[-0.1,0.5,0.3,0.9]"), QString()) << "half outside";
    for (const char* box : {"[1,0,0.2,0.2]", "[-0.3,0,0.2,0.2]", "[0,0,-0.1,0.5]", "[0,0,1]", "[0,0,1,\"1\"]", "7",
                            "[0,0,1e300,1]", "[-2,0,3,1]"}) {
        ExpectRefused(problem(box), "has a box that is not");
    }
}

TEST(KxChoicesFormat, APictureHasATimeAndAPrint)
{
    const auto problem = [](const QByteArray& pictures) {
        return ProblemOf("{\"kind\":\"automatic\",\"pictures\":" + pictures + "}");
    };
    EXPECT_EQ(problem("{\"0.5\":\"0123456789abcdef\"}"), QString());
    EXPECT_EQ(problem("{}"), QString());
    for (const char* pictures : {"{\"soon\":\"0123456789abcdef\"}", "{\"1\":\"0123456789abcde\"}", "{\"1\":7}",
                                 "{\"1\":\"0123456789abcdeg\"}", "{\"1e300\":\"0123456789abcdef\"}", "[1]"}) {
        ExpectRefused(problem(pictures), "choice 2 has \"pictures\" that are not times with 16 hexadecimal digits");
    }
    QByteArray many;
    for (int i = 0; i <= KxChoicesFormat::MostPictures; ++i) {
        many += QByteArray(i == 0 ? "" : ",") + '"' + QByteArray::number(i) + "\":\"0123456789abcdef\"";
    }
    ExpectRefused(problem("{" + many + "}"), "choice 2 has more than 100 \"pictures\"");
}

TEST(KxChoicesFormat, LongListsAreRefused)
{
    QByteArray choices;
    for (int i = 0; i <= KxChoicesFormat::MostChoices; ++i) {
        choices += "{\"kind\":\"automatic\"},";
    }
    choices.chop(1);
    ExpectRefused(Problem("{\"version\":1,\"choices\":[" + choices + "]}"), "more than 1000 choices");
    QByteArray boxes;
    for (int i = 0; i <= KxChoicesFormat::MostSeeds; ++i) {
        boxes += "[0,0,1,1],";
    }
    boxes.chop(1);
    ExpectRefused(ProblemOf("{\"kind\":\"fit\",\"boxes\":[" + boxes + "]}"), "more than 1000 seeds and boxes");
    ExpectRefused(Problem(QByteArray(KxChoicesFormat::MostBytes + 1, ' ')), "longer than 4194304 bytes");
}

TEST(KxChoicesFormat, FilesAreReadAndNamedInErrors)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("choices.json"));
    EXPECT_TRUE(KxChoicesFormat::ReadFile(path).Message().startsWith(QStringLiteral("Cannot open ")));
    EXPECT_TRUE(KxChoicesFormat::ReadFile(folder.path()).Message().contains(QStringLiteral("not a regular file")));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(KxChoicesFormat::Write(OfEveryKind()));
    file.close();
    const auto read = KxChoicesFormat::ReadFile(path);
    ASSERT_TRUE(read);
    EXPECT_EQ(*read, OfEveryKind());
}
