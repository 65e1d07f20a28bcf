#include <KxCore/KxOutputSize.h>

#include <gtest/gtest.h>

namespace
{

constexpr QSize CropSize(608, 1080);
const QSizeF Crop(607.5, 1080.0);

QSize SizeOf(const char* text)
{
    const std::optional<KxOutputSize> size = KxOutputSize::Parse(QLatin1String(text));
    EXPECT_TRUE(size) << text;
    const KxResult<QSize> result = size.value_or(KxOutputSize()).For(Crop, CropSize);
    EXPECT_TRUE(result) << result.Message().toStdString();
    return result ? *result : QSize();
}

} // namespace

TEST(KxOutputSize, WithoutAWishItIsThatOfTheCrop)
{
    EXPECT_EQ(*KxOutputSize().For(Crop, CropSize), CropSize);
}

TEST(KxOutputSize, AHeightGivesAnEvenWidthOfTheSameShape)
{
    EXPECT_EQ(SizeOf("1920p"), QSize(1080, 1920));
    EXPECT_EQ(SizeOf("2160p"), QSize(1216, 2160)); // exactly 1215
    EXPECT_EQ(SizeOf("720p"), QSize(406, 720));    // exactly 405
}

TEST(KxOutputSize, ASizeOfTheShapeOfTheCropIsTaken)
{
    EXPECT_EQ(SizeOf("1080x1920"), QSize(1080, 1920));
    EXPECT_EQ(SizeOf("406x720"), QSize(406, 720));
}

TEST(KxOutputSize, ASizeOfAnotherShapeIsRefusedWithTheOneThatFits)
{
    const auto size = KxOutputSize::Parse(QStringLiteral("1080x1080"));
    ASSERT_TRUE(size);
    const KxResult<QSize> result = size->For(Crop, CropSize);
    ASSERT_FALSE(result);
    EXPECT_EQ(result.Message(),
              QStringLiteral("the size 1080 x 1080 does not have the shape of the crop; 1080 x 1920 does"));
}

TEST(KxOutputSize, ASmallSizeMayBeAsFarFromTheShapeAsEvenNumbersAre)
{
    const QSizeF narrow(101.25, 180.0);
    EXPECT_EQ(*KxOutputSize::Parse(QStringLiteral("32x56"))->For(narrow, QSize(102, 180)), QSize(32, 56));
    EXPECT_EQ(*KxOutputSize::Parse(QStringLiteral("30x54"))->For(narrow, QSize(102, 180)), QSize(30, 54));
    const KxResult<QSize> refused = KxOutputSize::Parse(QStringLiteral("32x54"))->For(narrow, QSize(102, 180));
    ASSERT_FALSE(refused);
    EXPECT_EQ(refused.Message(), QStringLiteral("the size 32 x 54 does not have the shape of the crop; 32 x 56 does"));
}

TEST(KxOutputSize, AShorterSideIsThatOfEitherShape)
{
    KxOutputSize size;
    size.shortSidePx = 720;
    EXPECT_EQ(*size.For(Crop, CropSize), QSize(720, 1280));
    EXPECT_EQ(*size.For(QSizeF(1920.0, 822.9), QSize(1920, 822)), QSize(1680, 720));
}

TEST(KxOutputSize, WhatIsNoEvenSizeIsRefused)
{
    for (const char* const text : {"", "1080", "1080x", "x1920", "1081x1920", "1080x1919", "0x2", "1081p", "0p", "p",
                                   "-2x4", "20000x2", "1080X1920", "1080x1920p", "2.5x4"}) {
        EXPECT_FALSE(KxOutputSize::Parse(QLatin1String(text))) << text;
    }
}

TEST(KxOutputSize, OnlyALargerSideEnlarges)
{
    EXPECT_FALSE(KxOutputSize::Enlarges(CropSize, CropSize));
    EXPECT_FALSE(KxOutputSize::Enlarges(QSize(304, 540), CropSize));
    EXPECT_TRUE(KxOutputSize::Enlarges(QSize(1080, 1920), CropSize));
}
