#include <KxCore/KxSystemError.h>
#include <KxCore/KxSystemFile.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cerrno>

#include <windows.h>

namespace
{

std::error_code SystemError(DWORD code)
{
    return {static_cast<int>(code), std::system_category()};
}

} // namespace

TEST(KxSystemError, KnowsErrorsOfTheSystemsOwnCategory)
{
    EXPECT_EQ(KxSystemErrorText(SystemError(ERROR_ACCESS_DENIED)), QStringLiteral("permission is denied"));
    EXPECT_EQ(KxSystemErrorText(SystemError(ERROR_PATH_NOT_FOUND)), QStringLiteral("there is no such file"));
    EXPECT_EQ(KxSystemErrorText(SystemError(ERROR_SHARING_VIOLATION)), QStringLiteral("it is in use"));
    EXPECT_TRUE(KxIsDiskFull(SystemError(ERROR_DISK_FULL)));
    EXPECT_TRUE(KxIsDiskFull(SystemError(ERROR_HANDLE_DISK_FULL)));
    EXPECT_FALSE(KxIsDiskFull(SystemError(ERROR_ACCESS_DENIED)));
    EXPECT_TRUE(KxSystemErrorText(SystemError(ERROR_ARENA_TRASHED)).isEmpty());
}

TEST(KxSystemError, AnOlderErrorNumberIsNotTakenForTheReason)
{
    QFile missing(QStringLiteral("/no/such/file"));
    ASSERT_FALSE(missing.open(QIODevice::ReadOnly));
    errno = ENOSPC;
    SetLastError(ERROR_DISK_FULL);
    EXPECT_EQ(KxFileErrorText(missing), QStringLiteral("there is no such file"));
}

TEST(KxSystemError, AFileThatExistsIsRecognised)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("a")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    ASSERT_FALSE(file.open(QIODevice::WriteOnly | QIODevice::NewOnly));
    EXPECT_EQ(KxSystemFile::ToGeneric(KxSystemFile::ErrorOf(file)), std::errc::file_exists);
}

TEST(KxSystemFile, LongPathsGetTheFormThatHasNoLimit)
{
    const QString name(260, QLatin1Char('a'));
    EXPECT_EQ(KxSystemFile::NativePath(QStringLiteral("C:/b/clip.mp4")).wstring(), L"C:\\b\\clip.mp4");
    EXPECT_EQ(KxSystemFile::NativePath(QStringLiteral("C:/") + name).wstring(),
              (QStringLiteral("\\\\?\\C:\\") + name).toStdWString());
    EXPECT_EQ(KxSystemFile::NativePath(QStringLiteral("//server/share/") + name).wstring(),
              (QStringLiteral("\\\\?\\UNC\\server\\share\\") + name).toStdWString());
}

TEST(KxSystemFile, ALongPathThatHasThePrefixKeepsIt)
{
    const std::wstring name(300, L'n');
    for (const std::wstring prefix : {L"\\\\?\\C:\\", L"\\\\?\\UNC\\server\\share\\"}) {
        EXPECT_EQ(KxSystemFile::NativePath(QString::fromStdWString(prefix + name)).wstring(), prefix + name);
    }
}

TEST(KxSystemFile, CapitalLettersNameTheSameFile)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("Clip.mp4")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(KxSystemFile::Identity(folder.filePath(QStringLiteral("CLIP.MP4"))),
              KxSystemFile::Identity(folder.filePath(QStringLiteral("clip.mp4"))));
    EXPECT_NE(KxSystemFile::Identity(file.fileName()),
              KxSystemFile::Identity(folder.filePath(QStringLiteral("clip2.mp4"))));
}
