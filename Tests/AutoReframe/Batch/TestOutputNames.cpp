#include <Apps/AutoReframe/Batch/OutputNames.h>

#include <gtest/gtest.h>

namespace
{

OutputNames::Facts Facts(const QString& name = QStringLiteral("walk"))
{
    OutputNames::Facts facts;
    facts.name = name;
    facts.aspect = QSize(9, 16);
    facts.speed = 24;
    facts.date = QDate(2024, 2, 29);
    facts.number = 7;
    return facts;
}

QString Expand(const char* pattern, const QString& name = QStringLiteral("walk"))
{
    return OutputNames::Expand(QString::fromUtf8(pattern), Facts(name));
}

TEST(OutputNamesTest, PlaceholdersAreReplaced)
{
    EXPECT_EQ(Expand("{name}-{ratio}"), QStringLiteral("walk-9x16"));
    EXPECT_EQ(Expand("{date} {number} {speed} {name}{name}"), QStringLiteral("2024-02-29 7 slow walkwalk"));
    EXPECT_EQ(Expand("without"), QStringLiteral("without"));
}

TEST(OutputNamesTest, ANameThatLooksLikeAPlaceholderIsKept)
{
    EXPECT_EQ(Expand("{name}-{ratio}", QStringLiteral("{ratio}")), QStringLiteral("{ratio}-9x16"));
}

TEST(OutputNamesTest, ForbiddenCharactersAreReplaced)
{
    EXPECT_EQ(Expand("{name}", QStringLiteral("a/b\\c:d*e?f\"g<h>i|j\tk")), QStringLiteral("a-b-c-d-e-f-g-h-i-j-k"));
    EXPECT_EQ(Expand("{name}.. ", QStringLiteral("walk")), QStringLiteral("walk"));
    EXPECT_EQ(Expand("{name}", QStringLiteral("con")), QStringLiteral("_con"));
}

TEST(OutputNamesTest, ALongNameIsShortenedBetweenCharacters)
{
    const QString smile = QString::fromUtf8("\xF0\x9F\x98\x80");
    const QString name = Expand("{name}", smile.repeated(100));
    EXPECT_EQ(name, smile.repeated(58));
    EXPECT_LE(Expand("{name}", QString(1000, QLatin1Char('a'))).size(), 235);
}

TEST(OutputNamesTest, OfALongNameTheRatioIsKept)
{
    const QString name = Expand("{name}-{ratio}", QString(300, QLatin1Char('a')));
    EXPECT_EQ(name, QString(230, QLatin1Char('a')) + QStringLiteral("-9x16"));
    const QString text(300, QLatin1Char('b'));
    EXPECT_EQ(Expand((text + QStringLiteral("{name}")).toLatin1().constData(), QStringLiteral("walk")), text.left(235));
}

TEST(OutputNamesTest, APatternThatNamesNothingIsAProblem)
{
    EXPECT_FALSE(OutputNames::Problem(QStringLiteral("{name}-{ratio}")).has_value());
    EXPECT_FALSE(OutputNames::Problem(QStringLiteral("{name")).has_value());
    EXPECT_EQ(OutputNames::Problem(QStringLiteral("{name}-{size}")).value_or(QString()),
              QStringLiteral("There is no {size}. Use {name}, {ratio}, {speed}, {date}, {number}."));
    for (const char* const empty : {"", "  ", "..", " . "}) {
        EXPECT_EQ(OutputNames::Problem(QLatin1String(empty)).value_or(QString()), QStringLiteral("Enter a file name."))
            << empty;
    }
}

TEST(OutputNamesTest, EachFileHasAPathOfItsOwn)
{
    OutputNames::Unique paths([](const QString& path) { return path.toLower() == QLatin1String("/out/walk (2).mp4"); });
    const QString folder = QStringLiteral("/out");
    EXPECT_EQ(paths.Path(folder, QStringLiteral("walk")), QStringLiteral("/out/walk.mp4"));
    EXPECT_EQ(paths.Path(folder, QStringLiteral("WALK")), QStringLiteral("/out/WALK (3).mp4"));
    EXPECT_EQ(paths.Path(folder, QStringLiteral("walk")), QStringLiteral("/out/walk (4).mp4"));
}

} // namespace
