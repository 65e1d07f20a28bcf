#include <KxCore/KxConfig.h>
#include <KxCore/KxCustomProductInfo.h>
#include <KxCore/KxDir.h>

#include <QDir>
#include <QFile>
#include <QStorageInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace
{

class KxConfigTest : public testing::Test
{
protected:
    KxConfigTest()
        : m_configBefore(qgetenv("KX_CONFIG_FILE"))
    {
        qputenv("KX_CONFIG_FILE", QFile::encodeName(folder.filePath(QStringLiteral("made/config.ini"))));
    }
    ~KxConfigTest() override
    {
        KxConfig::SetMachineFacts({});
        qputenv("KX_CONFIG_FILE", m_configBefore);
    }

    QTemporaryDir folder;

private:
    QByteArray m_configBefore;
};

} // namespace

TEST_F(KxConfigTest, TheImportFolderIsKept)
{
    KxConfig& config = KxConfig::Instance();
    const QString fallback = QStringLiteral("/films");
    EXPECT_EQ(config.getDefaultImportDir(fallback), fallback);
    config.setDefaultImportDir(folder.path());
    EXPECT_EQ(config.getDefaultImportDir(fallback), folder.path());
    EXPECT_TRUE(QFile::exists(KxConfig::GetKorviConfigFile()));
    config.setDefaultImportDir(folder.filePath(QStringLiteral("gone")));
    EXPECT_EQ(config.getDefaultImportDir(fallback), fallback);
}

TEST_F(KxConfigTest, FreeSpaceIsThatOfTheFileSystemThatHoldsTheFolder)
{
    const qint64 here = KxConfig::GetDiskFreeSpaceSize(nullptr, folder.path());
    const qint64 measured = QStorageInfo(folder.path()).bytesAvailable() / 1048576;
    EXPECT_GT(here, 0);
    EXPECT_NEAR(double(here), double(measured), 200.0) << "others write to the disk meanwhile";
    EXPECT_GT(KxConfig::GetDiskFreeSpaceSize(nullptr, folder.filePath(QStringLiteral("not/yet/there"))), 0);
}

TEST_F(KxConfigTest, TheMachineCanBeAnsweredFor)
{
    EXPECT_TRUE(KxConfig::Instance().algorithmEnabled(4));
    EXPECT_FALSE(KxConfig::Instance().algorithmEnabled(5));
    KxConfig::MachineFacts facts;
    facts.algorithmEnabled = [](int algorithm) { return algorithm == 5; };
    facts.freeSpaceMb = [](const QString& path) { return qint64(path.size()); };
    KxConfig::SetMachineFacts(facts);
    EXPECT_FALSE(KxConfig::Instance().algorithmEnabled(4));
    EXPECT_TRUE(KxConfig::Instance().algorithmEnabled(5));
    EXPECT_EQ(KxConfig::GetDiskFreeSpaceSize(nullptr, QStringLiteral("C:")), 2);
    KxConfig::SetMachineFacts({});
    EXPECT_TRUE(KxConfig::Instance().algorithmEnabled(4));
}

TEST_F(KxConfigTest, ExportsGoToAFolderThatCanBeNamed)
{
    EXPECT_TRUE(QDir::isAbsolutePath(KxConfig::GetKorviOutputDirectory()));
    EXPECT_EQ(KxCustomProductInfo::GetInstance()->KrGetProductName(), QStringLiteral("Auto Reframe"));
}

TEST_F(KxConfigTest, AFolderIsTriedByMakingAFileThatDoesNotStay)
{
    EXPECT_TRUE(KxDir::IsPathWriteAndReadable(folder.path()));
    EXPECT_TRUE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).isEmpty());
    EXPECT_FALSE(KxDir::IsPathWriteAndReadable(folder.filePath(QStringLiteral("missing"))));
    EXPECT_FALSE(KxDir::IsPathWriteAndReadable(QStringLiteral("/proc")));
}
