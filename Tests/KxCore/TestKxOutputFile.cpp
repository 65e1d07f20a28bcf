#include <KxCore/KxOutputFile.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace
{

class KxOutputFileTest : public testing::Test
{
protected:
    QString Path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }
    QStringList Files() const { return QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name); }
    static QByteArray Content(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
    }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(KxOutputFileTest, TheNameAppearsOnlyOnCommit)
{
    auto output = KxOutputFile::Create(Path("a.txt"));
    ASSERT_TRUE(output);
    EXPECT_FALSE(QFile::exists(Path("a.txt")));
    EXPECT_TRUE(QFile::exists((*output)->TemporaryPath()));
    const auto written = (*output)->Commit(KxOutputFile::Existing::AddNumber);
    ASSERT_TRUE(written);
    EXPECT_EQ(*written, Path("a.txt"));
    EXPECT_EQ(Files(), QStringList(QStringLiteral("a.txt")));
}

TEST_F(KxOutputFileTest, LeavesNothingBehindWithoutCommit)
{
    ASSERT_TRUE(KxOutputFile::Create(Path("a.txt")));
    EXPECT_TRUE(Files().isEmpty());
}

TEST_F(KxOutputFileTest, AddsANumberWhenTheNameIsTaken)
{
    for (const char* expected : {"clip 9 16.mp4", "clip 9 16 (2).mp4", "clip 9 16 (3).mp4"}) {
        const auto written =
            KxOutputFile::Write(Path("clip 9 16.mp4"), QByteArray(expected), KxOutputFile::Existing::AddNumber);
        ASSERT_TRUE(written);
        EXPECT_EQ(*written, Path(expected));
    }
    EXPECT_EQ(Content(Path("clip 9 16.mp4")), QByteArray("clip 9 16.mp4"));
    EXPECT_EQ(Content(Path("clip 9 16 (3).mp4")), QByteArray("clip 9 16 (3).mp4"));
    EXPECT_EQ(Files().size(), 3);
}

TEST_F(KxOutputFileTest, ANameTakenAfterTheStartIsNotOverwritten)
{
    auto output = KxOutputFile::Create(Path("a"));
    ASSERT_TRUE(output);
    ASSERT_TRUE(KxOutputFile::Write(Path("a"), "other", KxOutputFile::Existing::AddNumber));
    const auto written = (*output)->Commit(KxOutputFile::Existing::AddNumber);
    ASSERT_TRUE(written);
    EXPECT_EQ(*written, Path("a (2)"));
    EXPECT_EQ(Content(Path("a")), QByteArray("other"));
}

TEST_F(KxOutputFileTest, ReplacesWhenAsked)
{
    ASSERT_TRUE(KxOutputFile::Write(Path("a.txt"), "old", KxOutputFile::Existing::AddNumber));
    const auto written = KxOutputFile::Write(Path("a.txt"), "new", KxOutputFile::Existing::Replace);
    ASSERT_TRUE(written);
    EXPECT_EQ(Content(Path("a.txt")), QByteArray("new"));
    EXPECT_EQ(Files().size(), 1);
}

TEST_F(KxOutputFileTest, NamesTheFileAndTheReasonWhenItCannotWrite)
{
    const auto noFolder = KxOutputFile::Create(Path("no/such/a.txt"));
    ASSERT_FALSE(noFolder);
    EXPECT_TRUE(noFolder.Message().contains(QStringLiteral("a.txt: the folder"))) << noFolder.Message().toStdString();

    ASSERT_TRUE(KxOutputFile::Write(Path("file"), "x", KxOutputFile::Existing::Replace));
    const auto inFile = KxOutputFile::Create(Path("file/a.txt"));
    ASSERT_FALSE(inFile);
    EXPECT_TRUE(inFile.Message().endsWith(QStringLiteral("is not a folder."))) << inFile.Message().toStdString();

    QDir(m_folder.path()).mkdir(QStringLiteral("folder"));
    const auto onFolder = KxOutputFile::Create(Path("folder"));
    ASSERT_FALSE(onFolder);
    EXPECT_TRUE(onFolder.Message().endsWith(QStringLiteral("folder: it is a folder.")))
        << onFolder.Message().toStdString();
}

TEST_F(KxOutputFileTest, ANameThatIsTooLongIsToldAtOnce)
{
    const auto output = KxOutputFile::Create(Path(QByteArray(300, 'a').constData()));
    ASSERT_FALSE(output);
    EXPECT_TRUE(output.Message().endsWith(QStringLiteral("aaa: its name is too long.")))
        << output.Message().toStdString();
}

TEST_F(KxOutputFileTest, WhatIsNoFileIsNotReplaced)
{
    const auto output = KxOutputFile::Create(QStringLiteral("/dev/null"));
    ASSERT_FALSE(output);
    EXPECT_EQ(output.Message(), QStringLiteral("Cannot write /dev/null: it is not a regular file."));
}

TEST_F(KxOutputFileTest, OthersMayReadWhatIsWritten)
{
    const auto written = KxOutputFile::Write(Path("a.txt"), "x", KxOutputFile::Existing::AddNumber);
    ASSERT_TRUE(written);
    EXPECT_TRUE(QFile::permissions(*written).testFlag(QFile::ReadOther));
}
