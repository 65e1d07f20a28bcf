#include <KxCore/KxWildcards.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace
{

class KxWildcardsTest : public testing::Test
{
protected:
    KxWildcardsTest()
    {
        for (const char* name : {"b.mp4", "a.mp4", "a1.mov", "a2.mov", "a22.mov"}) {
            QFile file(Path(name));
            EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        }
        EXPECT_TRUE(QDir(m_folder.path()).mkdir(QStringLiteral("folder.mp4")));
    }
    QString Path(const char* name) const { return m_folder.filePath(QString::fromUtf8(name)); }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(KxWildcardsTest, AStarIsReplacedByTheFilesInOrder)
{
    EXPECT_EQ(KxWildcards::Expand({Path("*.mp4")}), (QStringList{Path("a.mp4"), Path("b.mp4")}));
}

TEST_F(KxWildcardsTest, AQuestionMarkIsOneCharacter)
{
    EXPECT_EQ(KxWildcards::Expand({Path("a?.mov")}), (QStringList{Path("a1.mov"), Path("a2.mov")}));
}

TEST_F(KxWildcardsTest, TheFolderStaysAsItWasWritten)
{
    const QString folder = m_folder.path() + QStringLiteral("/./folder.mp4/../");
    EXPECT_EQ(KxWildcards::Expand({folder + QStringLiteral("a.*")}), QStringList{folder + QStringLiteral("a.mp4")});
}

TEST_F(KxWildcardsTest, WhatMatchesNothingIsKept)
{
    const QStringList paths{Path("*.avi"), Path("no/such/*.mp4"), Path("*/b.mp4"), Path("a.mp4"), QString()};
    EXPECT_EQ(KxWildcards::Expand(paths), paths);
}

TEST_F(KxWildcardsTest, OtherPathsKeepTheirPlaces)
{
    EXPECT_EQ(KxWildcards::Expand({Path("x"), Path("*.mp4"), Path("y")}),
              (QStringList{Path("x"), Path("a.mp4"), Path("b.mp4"), Path("y")}));
}
