#include <KxCore/KxSystemError.h>

#include <QFile>

#include <gtest/gtest.h>

#include <cerrno>

namespace
{

QString TextOf(int number)
{
    return KxSystemErrorText(std::error_code(number, std::generic_category()));
}

} // namespace

TEST(KxSystemError, GivesAReasonThatAPersonCanActOn)
{
    EXPECT_EQ(TextOf(ENOSPC), QStringLiteral("the disk is full"));
#ifdef EDQUOT
    EXPECT_EQ(TextOf(EDQUOT), QStringLiteral("the disk is full"));
#endif
    EXPECT_EQ(TextOf(EACCES), QStringLiteral("permission is denied"));
    EXPECT_EQ(TextOf(EPERM), QStringLiteral("permission is denied"));
    EXPECT_EQ(TextOf(ENAMETOOLONG), QStringLiteral("its name is too long"));
}

TEST(KxSystemError, AFullDiskIsNotAMissingPermission)
{
    const auto isFull = [](int number) { return KxIsDiskFull(std::error_code(number, std::generic_category())); };
    EXPECT_TRUE(isFull(ENOSPC));
#ifdef EDQUOT
    EXPECT_TRUE(isFull(EDQUOT));
#endif
    for (const int number : {0, EACCES, EPERM, EROFS, ENOENT, EIO}) {
        EXPECT_FALSE(isFull(number)) << number;
    }
}

TEST(KxSystemError, ASuccessAndUnknownErrorsHaveNoText)
{
    EXPECT_TRUE(TextOf(0).isEmpty());
    EXPECT_TRUE(TextOf(EDOM).isEmpty());
}

TEST(KxSystemError, ExplainsWhyAFileCannotBeUsed)
{
    QFile missing(QStringLiteral("/no/such/file"));
    ASSERT_FALSE(missing.open(QIODevice::ReadOnly));
    EXPECT_EQ(KxFileErrorText(missing), QStringLiteral("there is no such file"));
    QFile folder(QStringLiteral("."));
    ASSERT_FALSE(folder.open(QIODevice::ReadOnly));
    EXPECT_EQ(KxFileErrorText(folder), QStringLiteral("it is a folder"));
}
