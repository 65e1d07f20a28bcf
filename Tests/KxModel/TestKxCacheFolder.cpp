#include <KxModel/KxCacheFolder.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace
{

using Kind = KxCacheFolder::Kind;

class KxCacheFolderTest : public testing::Test
{
protected:
    KxCacheFolderTest() { m_cache.SetPath(m_folder.path()); }
    void SetAge(const char* file, int hours)
    {
        QFile aged(m_folder.filePath(QLatin1String(file)));
        ASSERT_TRUE(aged.open(QIODevice::ReadWrite));
        ASSERT_TRUE(aged.setFileTime(QDateTime::currentDateTimeUtc().addSecs(-3600 * hours),
                                     QFileDevice::FileModificationTime));
    }
    QStringList Files() const { return QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden); }

    QTemporaryDir m_folder;
    KxCacheFolder m_cache{10};
};

} // namespace

TEST_F(KxCacheFolderTest, AFileIsFoundByItsKindAndName)
{
    m_cache.Write(Kind::Record, "a", "one");
    m_cache.Write(Kind::Track, "a", "");
    EXPECT_EQ(m_cache.Read(Kind::Record, "a"), QByteArray("one"));
    EXPECT_EQ(m_cache.Read(Kind::Track, "a"), QByteArray("")) << "an empty file is a file";
    EXPECT_FALSE(m_cache.Read(Kind::Record, "b"));
    m_cache.Remove(Kind::Record, "a");
    EXPECT_FALSE(m_cache.Read(Kind::Record, "a"));
    EXPECT_TRUE(m_cache.Read(Kind::Track, "a"));
}

TEST_F(KxCacheFolderTest, WithoutAFolderOrANameNothingIsWrittenOrFound)
{
    m_cache.Write(Kind::Record, "", "one");
    m_cache.SetPath({});
    m_cache.Write(Kind::Record, "a", "one");
    EXPECT_FALSE(m_cache.Read(Kind::Record, "a"));
    m_cache.Remove(Kind::Record, "a");
    EXPECT_TRUE(Files().isEmpty());
    EXPECT_FALSE(QFile::exists(QStringLiteral("/a.record")));
}

TEST_F(KxCacheFolderTest, BothKindsCountForTheLimitAndTheFilesUsedLastStay)
{
    m_cache.Write(Kind::Record, "a", "1234");
    SetAge("a.record", 3);
    m_cache.Write(Kind::Track, "b", "1234");
    SetAge("b.track", 2);
    EXPECT_TRUE(m_cache.Read(Kind::Record, "a"));
    m_cache.Write(Kind::Record, "c", "12");
    EXPECT_EQ(Files(),
              QStringList({QStringLiteral("a.record"), QStringLiteral("b.track"), QStringLiteral("c.record")}));
    m_cache.Write(Kind::Track, "d", "1");
    EXPECT_EQ(Files(),
              QStringList({QStringLiteral("a.record"), QStringLiteral("c.record"), QStringLiteral("d.track")}));
}

TEST_F(KxCacheFolderTest, WhatIsOverTheLimitAloneIsNotWritten)
{
    m_cache.Write(Kind::Record, "a", "1");
    m_cache.Write(Kind::Track, "large", "12345678901");
    EXPECT_EQ(Files(), QStringList(QStringLiteral("a.record")));
}

TEST_F(KxCacheFolderTest, TheFirstProblemIsKept)
{
    m_cache.Write(Kind::Record, "a", "1");
    EXPECT_FALSE(m_cache.Problem());
    const QString file = m_folder.filePath(QStringLiteral("a.record"));
    m_cache.SetPath(file + QStringLiteral("/cache"));
    m_cache.Write(Kind::Record, "b", "1");
    m_cache.SetPath(file + QStringLiteral("/other"));
    m_cache.Write(Kind::Record, "b", "1");
    ASSERT_TRUE(m_cache.Problem());
    EXPECT_TRUE(m_cache.Problem()->startsWith(QStringLiteral("Cannot make the cache folder %1/cache: ").arg(file)))
        << m_cache.Problem()->toStdString();
}

TEST_F(KxCacheFolderTest, FilesOfOthersStay)
{
    QFile other(m_folder.filePath(QStringLiteral("notes.txt")));
    ASSERT_TRUE(other.open(QIODevice::WriteOnly));
    other.write("more than ten bytes");
    other.close();
    m_cache.Write(Kind::Record, "a", "1234567890");
    EXPECT_EQ(Files(), QStringList({QStringLiteral("a.record"), QStringLiteral("notes.txt")}));
}
