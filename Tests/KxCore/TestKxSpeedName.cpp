#include <KxCore/KxSpeedName.h>

#include <gtest/gtest.h>

TEST(KxSpeedName, NumbersAreThoseOfTheAnalysis)
{
    EXPECT_EQ(KxSpeedName::Find(QStringLiteral("fast")), 8);
    EXPECT_EQ(KxSpeedName::Find(QStringLiteral("auto")), 16);
    EXPECT_EQ(KxSpeedName::Find(QStringLiteral("slow")), 24);
    EXPECT_EQ(KxSpeedName::Find(QStringLiteral("Fast")), std::nullopt);
    EXPECT_EQ(KxSpeedName::Find(QString()), std::nullopt);
}

TEST(KxSpeedName, EachNumberHasAName)
{
    EXPECT_EQ(KxSpeedName::Of(8), QStringLiteral("fast"));
    EXPECT_EQ(KxSpeedName::Of(16), QStringLiteral("auto"));
    EXPECT_EQ(KxSpeedName::Of(24), QStringLiteral("slow"));
    EXPECT_EQ(KxSpeedName::Of(0), QStringLiteral("auto"));
}
