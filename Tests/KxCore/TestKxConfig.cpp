#include <Tests/Support/TestSystem.h>

#include <KxCore/KxConfig.h>
#include <KxCore/KxConfigFile.h>
#include <KxCore/KxCustomProductInfo.h>
#include <KxCore/KxDir.h>
#include <KxCore/KxMachineFacts.h>

#include <QDir>
#include <QFile>
#include <QRect>
#include <QSettings>
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
        KxMachineFacts::Replaced() = {};
        qputenv("KX_CONFIG_FILE", m_configBefore);
    }

    /// Makes the configuration file; `lines` belong to the program's group.
    QString Configure(const QByteArray& lines) const
    {
        QDir(folder.path()).mkpath(QStringLiteral("made"));
        QFile file(folder.filePath(QStringLiteral("made/config.ini")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("[Auto%20Reframe]\nUsageLog=usage.log\n" + lines + "\n");
        return file.fileName();
    }

    /// Whether the file is used, read and written through QSettings as the module does it.
    static bool IsUsed(const QString& file)
    {
        const QString path = KxConfig::GetKorviConfigFile();
        QSettings(path, QSettings::IniFormat).setValue(QStringLiteral("Auto Reframe/Probe"), 1);
        EXPECT_EQ(QSettings(path, QSettings::IniFormat).value(QStringLiteral("Auto Reframe/Probe")).toInt(), 1);
        return path == file;
    }

    QTemporaryDir folder;

private:
    QByteArray m_configBefore;
};

} // namespace

TEST_F(KxConfigTest, TheImportFolderIsSaved)
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

TEST_F(KxConfigTest, FreeSpaceIsThatOfTheFileSystemOfTheFolder)
{
    const qint64 here = KxConfig::GetDiskFreeSpaceSize(nullptr, folder.path());
    const qint64 measured = QStorageInfo(folder.path()).bytesAvailable() / 1048576;
    EXPECT_GT(here, 0);
    EXPECT_NEAR(double(here), double(measured), 200.0) << "other programs write to the disk, too";
    EXPECT_GT(KxConfig::GetDiskFreeSpaceSize(nullptr, folder.filePath(QStringLiteral("not/yet/there"))), 0);
}

TEST_F(KxConfigTest, FactsOfTheMachineCanBeReplaced)
{
    EXPECT_TRUE(KxConfig::Instance().algorithmEnabled(4));
    EXPECT_FALSE(KxConfig::Instance().algorithmEnabled(5));
    KxMachineFacts::Replaced().algorithmEnabled = [](int algorithm) { return algorithm == 5; };
    KxMachineFacts::Replaced().freeSpaceMb = [](const QString& path) { return qint64(path.size()); };
    EXPECT_FALSE(KxConfig::Instance().algorithmEnabled(4));
    EXPECT_TRUE(KxConfig::Instance().algorithmEnabled(5));
    EXPECT_EQ(KxConfig::GetDiskFreeSpaceSize(nullptr, QStringLiteral("C:")), 2);
    KxMachineFacts::Replaced() = {};
    EXPECT_TRUE(KxConfig::Instance().algorithmEnabled(4));
}

TEST_F(KxConfigTest, TheExportFolderIsAnAbsolutePath)
{
    EXPECT_TRUE(QDir::isAbsolutePath(KxConfig::GetKorviOutputDirectory()));
    EXPECT_EQ(KxCustomProductInfo::GetInstance()->KrGetProductName(), QStringLiteral("Auto Reframe"));
}

TEST_F(KxConfigTest, AFolderIsTriedWithAFileThatIsRemoved)
{
    EXPECT_TRUE(KxDir::IsPathWriteAndReadable(folder.path()));
    EXPECT_TRUE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).isEmpty());
    EXPECT_FALSE(KxDir::IsPathWriteAndReadable(folder.filePath(QStringLiteral("missing"))));
    EXPECT_FALSE(KxDir::IsPathWriteAndReadable(QStringLiteral("/proc")));
}

TEST_F(KxConfigTest, ValuesThatQSettingsWritesAreAccepted)
{
    const QString file = Configure({});
    {
        QSettings settings(file, QSettings::IniFormat);
        settings.setValue(QStringLiteral("Main Window/Geometry"), QByteArray("\x01\xd9\xd0\xcb\0\x03", 6));
        settings.setValue(QStringLiteral("a/Rect"), QRect(1, 2, 3, 4));
        settings.setValue(QStringLiteral("a/Text"), QStringLiteral("@Variant(no \"data\"); \\ 50 % caf\u00e9"));
        settings.setValue(QStringLiteral("a/List"), QStringList{QStringLiteral("x"), QStringLiteral("y, z")});
    }
    EXPECT_TRUE(IsUsed(file));
    EXPECT_EQ(KxConfigFile::ReadAutoReframe(QStringLiteral("UsageLog")), QStringLiteral("usage.log"));
    const QSettings settings(KxConfigFile::Path(), QSettings::IniFormat);
    EXPECT_EQ(settings.value(QStringLiteral("a/Text")).toString(),
              QStringLiteral("@Variant(no \"data\"); \\ 50 % caf\u00e9"));
}

TEST_F(KxConfigTest, AFileWithASerialisedValueIsLeftAlone)
{
    // A list of 2^31 - 1 elements, written as QSettings does and in other spellings that it understands.
    for (const char* value :
         {"@Variant(\\0\\0\\0\\t\\x7f\\xff\\xff\\xff)", "\\x40Variant(\\0\\0\\0\\t\\x7f\\xff\\xff\\xff)",
          "\"@Var\"iant(\\0\\0\\0\\t\\x7f\\xff\\xff\\xff)", "\\100Variant(\\0\\0\\0\\t\\x7f\\xff\\xff\\xff)",
          "@Vari\\\nant(\\0\\0\\0\\t\\x7f\\xff\\xff\\xff)", "a, @Variant(\\0\\0\\0\\t\\x7f\\xff\\xff\\xff)",
          "\\x10040Variant(\\0\\0\\0\\t\\x7f\\xff\\xff\\xff)", "@DateTime(\\0\\0\\0\\t\\x7f\\xff\\xff\\xff)"}) {
        SCOPED_TRACE(value);
        const QString file = Configure(QByteArray("Models=") + value);
        QFile before(file);
        ASSERT_TRUE(before.open(QIODevice::ReadOnly));
        const QByteArray content = before.readAll();
        EXPECT_EQ(KxConfigFile::ReadAutoReframe(QStringLiteral("Models")), QString());
        EXPECT_FALSE(IsUsed(file));
        ASSERT_TRUE(before.seek(0));
        EXPECT_EQ(before.readAll(), content) << "the person has to repair it";
    }
}

TEST_F(KxConfigTest, APipeOrADeviceIsNotRead)
{
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("made")));
    const QString pipe = folder.filePath(QStringLiteral("made/config.ini"));
    if (!TestSystem::MakeNamedPipe(pipe)) {
        GTEST_SKIP() << "this system has no pipes in folders";
    }
    EXPECT_EQ(KxConfigFile::ReadAutoReframe(QStringLiteral("Models")), QString());
    EXPECT_FALSE(IsUsed(pipe));
}

TEST_F(KxConfigTest, AHugeFileIsNotRead)
{
    const QString file = Configure({});
    ASSERT_TRUE(QFile::resize(file, 2LL * 1024 * 1024 * 1024));
    EXPECT_EQ(KxConfigFile::ReadAutoReframe(QStringLiteral("UsageLog")), QString());
    EXPECT_FALSE(IsUsed(file));
}

TEST_F(KxConfigTest, AFileOfUpToOneMiBIsUsed)
{
    for (const int beyond : {0, 1}) {
        QFile file(Configure({}));
        ASSERT_TRUE(file.open(QIODevice::Append));
        file.write(QByteArray(static_cast<int>(1024 * 1024 + beyond - file.size()), '\n'));
        file.close();
        EXPECT_EQ(KxConfigFile::ReadAutoReframe(QStringLiteral("UsageLog")),
                  beyond == 0 ? QStringLiteral("usage.log") : QString());
    }
}

TEST_F(KxConfigTest, ARepairedFileIsUsedAgain)
{
    const QString file = Configure("Models=@Variant(\\0)");
    EXPECT_FALSE(IsUsed(file));
    Configure({});
    EXPECT_TRUE(IsUsed(file));
}
