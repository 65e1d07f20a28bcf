#include <KxCore/KxWindowsNames.h>

#include <gtest/gtest.h>

namespace
{

std::string ReasonFor(const QString& path)
{
    return KxWindowsNames::ReasonNotToName(path).value_or(QStringLiteral("possible")).toStdString();
}

} // namespace

TEST(KxWindowsNames, OrdinaryPathsArePossible)
{
    for (const char16_t* path : {u"C:/Videos/clip.mp4", u"C:\\Videos\\clip 9 16 (2).mp4", u"//server/share/clip.mp4",
                                 u"\\\\?\\C:\\Videos\\clip.mp4", u"D:/Видео/Ünïcode \u4e2d\u6587 \U0001F3A5.mp4",
                                 u"C:/a/../b/./clip.mp4", u"C:/.hidden", u"C:/a.b.c/d", u"C:/50%1.mp4"}) {
        EXPECT_EQ(ReasonFor(QString::fromUtf16(path)), "possible") << QString::fromUtf16(path).toStdString();
    }
}

TEST(KxWindowsNames, ForbiddenCharactersAreNamed)
{
    for (const char character : {'<', '>', ':', '"', '|', '?', '*'}) {
        const QString path = QStringLiteral("C:/Videos/a%1b.mp4").arg(QLatin1Char(character));
        EXPECT_EQ(ReasonFor(path), std::string("a name cannot contain the character ") + character);
    }
    EXPECT_EQ(ReasonFor(QStringLiteral("C:/Videos/a\tb.mp4")), "its name contains a control character");
    EXPECT_EQ(ReasonFor(QStringLiteral("C:/a?b/clip.mp4")), "a name cannot contain the character ?");
    EXPECT_EQ(ReasonFor(QStringLiteral("C:/Videos/c:/clip.mp4")), "a name cannot contain the character :");
}

TEST(KxWindowsNames, DevicesAreNoFilesEvenWithASuffix)
{
    for (const char* name : {"con", "PRN", "aux", "Nul", "com1", "LPT9"}) {
        EXPECT_EQ(ReasonFor(QStringLiteral("C:/Videos/%1.mp4").arg(QLatin1String(name))),
                  std::string(name) + " is the name of a device");
        EXPECT_EQ(ReasonFor(QStringLiteral("C:/%1").arg(QLatin1String(name))),
                  std::string(name) + " is the name of a device");
    }
    EXPECT_EQ(ReasonFor(QStringLiteral("C:/con /clip.mp4")), "con is the name of a device");
    for (const char* name : {"console.mp4", "com.mp4", "com10.mp4", "nul-1.mp4", "my con.mp4", "lpt0.mp4"}) {
        EXPECT_EQ(ReasonFor(QStringLiteral("C:/Videos/%1").arg(QLatin1String(name))), "possible") << name;
    }
}

TEST(KxWindowsNames, ADotOrSpaceAtTheEndWouldBeLost)
{
    for (const char* name : {"clip.", "clip ", "clip.mp4.", "clip.mp4 ", "folder./clip.mp4", "folder /clip.mp4"}) {
        EXPECT_EQ(ReasonFor(QStringLiteral("C:/%1").arg(QLatin1String(name))),
                  "a name cannot end with a dot or a space")
            << name;
    }
}

TEST(KxWindowsNames, ANameHasAtMost255Characters)
{
    const QString folder = QStringLiteral("C:/Videos/");
    EXPECT_EQ(ReasonFor(folder + QString(255, QLatin1Char('a'))), "possible");
    EXPECT_EQ(ReasonFor(folder + QString(256, QLatin1Char('a'))), "its name is too long");
    EXPECT_EQ(ReasonFor(folder + QString(256, QLatin1Char('a')) + QStringLiteral("/b")), "its name is too long");
}

TEST(KxWindowsNames, APathMayBeMuchLongerThanAName)
{
    const QString part = QString(200, QLatin1Char('a')) + QLatin1Char('/');
    EXPECT_EQ(ReasonFor(QStringLiteral("C:/") + part.repeated(100)), "possible");
    EXPECT_EQ(ReasonFor(QStringLiteral("C:/") + part.repeated(170)), "its name is too long");
}
