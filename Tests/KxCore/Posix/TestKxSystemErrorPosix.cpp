#include <KxCore/KxSystemError.h>

#include <QFile>

#include <gtest/gtest.h>

#include <cerrno>

TEST(KxSystemError, KnowsErrorsOfTheSystemsOwnCategory)
{
    EXPECT_EQ(KxSystemErrorText(std::error_code(EACCES, std::system_category())),
              QStringLiteral("permission is denied"));
    EXPECT_TRUE(KxIsDiskFull(std::error_code(ENOSPC, std::system_category())));
}

TEST(KxSystemError, WithoutAnErrorNumberQtExplainsWhyAFileCannotBeUsed)
{
    QFile missing(QStringLiteral("/no/such/file"));
    ASSERT_FALSE(missing.open(QIODevice::ReadOnly));
    errno = 0;
    EXPECT_EQ(KxFileErrorText(missing), missing.errorString().toLower());
}
