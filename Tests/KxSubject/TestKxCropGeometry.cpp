#include <KxSubject/KxCropGeometry.h>

#include <gtest/gtest.h>

#include <cmath>

namespace
{

const std::vector<KxIntSize> Pictures{{1920, 1080}, {1280, 720}, {3840, 2160}, {1080, 1920}, {368, 480},
                                      {720, 720},   {853, 479},  {1919, 801},  {401, 1203},  {4096, 64}};
const std::vector<KxIntSize> Aspects{{9, 16}, {1, 1}, {16, 9}, {4, 3}, {4, 5}, {21, 9}};

void ExpectGood(const KxCropRect& crop, KxIntSize picture, KxIntSize aspect, const KxCropRect& content)
{
    EXPECT_GE(crop.x, content.x - 1e-12);
    EXPECT_GE(crop.y, content.y - 1e-12);
    EXPECT_LE(crop.x + crop.width, content.x + content.width + 1e-12);
    EXPECT_LE(crop.y + crop.height, content.y + content.height + 1e-12);
    const double widthPx = crop.width * picture.width;
    const double heightPx = crop.height * picture.height;
    EXPECT_LT(std::abs(widthPx - heightPx * aspect.width / aspect.height), 1.0)
        << picture.width << " x " << picture.height << ", " << aspect.width << ":" << aspect.height;
    EXPECT_TRUE(std::abs(crop.width - content.width) < 1e-12 || std::abs(crop.height - content.height) < 1e-12)
        << "not the largest";
}

} // namespace

TEST(KxCropGeometry, EveryPresetGivesTheLargestCropOfTheAspectInsideThePicture)
{
    for (const KxCropRect& content : {KxCropRect{}, KxCropRect{0.0, 0.12, 1.0, 0.76}, KxCropRect{0.2, 0.0, 0.6, 1.0}}) {
        for (const KxIntSize& picture : Pictures) {
            for (const KxIntSize& aspect : Aspects) {
                const KxCropGeometry geometry(picture, aspect, content);
                for (const double centre : {-1.0, 0.0, 0.21, 0.5, 0.83, 1.0, 7.0}) {
                    ExpectGood(geometry.At(centre), picture, aspect, content);
                    EXPECT_DOUBLE_EQ(geometry.At(centre).width, geometry.At(0.5).width);
                    EXPECT_DOUBLE_EQ(geometry.At(centre).height, geometry.At(0.5).height);
                }
            }
        }
    }
}

TEST(KxCropGeometry, TheCropMovesAlongItsFreeAxis)
{
    EXPECT_EQ(KxCropGeometry({1920, 1080}, {9, 16}, {}).FreeAxis(), KxAxis::Across);
    EXPECT_EQ(KxCropGeometry({1080, 1920}, {16, 9}, {}).FreeAxis(), KxAxis::UpDown);
    EXPECT_EQ(KxCropGeometry({1920, 1080}, {21, 9}, {}).FreeAxis(), KxAxis::UpDown);
    EXPECT_EQ(KxCropGeometry({1920, 1080}, {21, 9}, {0.0, 0.2, 1.0, 0.6}).FreeAxis(), KxAxis::Across);
}

TEST(KxCropGeometry, TheCentreIsKeptWherePossible)
{
    const KxCropGeometry geometry({1920, 1080}, {9, 16}, {});
    const KxCropRect crop = geometry.At(0.4);
    EXPECT_NEAR(crop.x + crop.width / 2.0, 0.4, 1e-12);
    EXPECT_NEAR(crop.width * 1920, 607.5, 1e-9);
    EXPECT_NEAR(geometry.At(0.0).x, 0.0, 1e-12);
}

TEST(KxCropGeometry, TheShareOfANarrowCropIsThatOfPixels)
{
    EXPECT_DOUBLE_EQ(KxCropGeometry({1920, 1080}, {9, 16}, {}).NarrowShare(), 1.0);
    EXPECT_DOUBLE_EQ(KxCropGeometry({1920, 1080}, {1, 2}, {}).NarrowShare(), 1.0) << "narrower than 9:16";
    EXPECT_DOUBLE_EQ(KxCropGeometry({1920, 1080}, {1, 1}, {}).NarrowShare(), 9.0 / 16.0);
    EXPECT_DOUBLE_EQ(KxCropGeometry({1920, 1080}, {4, 5}, {0.0, 0.12, 1.0, 0.76}).NarrowShare(), 45.0 / 64.0);
    EXPECT_DOUBLE_EQ(KxCropGeometry({1080, 1920}, {1, 1}, {}).NarrowShare(), 1.0) << "moves up and down";
}

TEST(KxCropGeometry, InvalidNumbersStillGiveARectangle)
{
    for (const KxIntSize& aspect : {KxIntSize{0, 0}, KxIntSize{-3, 4}, KxIntSize{1, 0}}) {
        const KxCropRect crop = KxCropGeometry({0, -5}, aspect, {}).At(0.5);
        EXPECT_GT(crop.width, 0.0);
        EXPECT_GT(crop.height, 0.0);
    }
}
