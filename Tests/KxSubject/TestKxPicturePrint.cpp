#include <KxSubject/KxPicturePrint.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <vector>

namespace
{

struct Picture {
    KxIntSize size;
    std::vector<std::uint8_t> bytes;

    Picture(KxIntSize sizePx, const std::function<int(double x, double y)>& brightness)
        : size(sizePx)
    {
        for (int y = 0; y < size.height; ++y) {
            for (int x = 0; x < size.width; ++x) {
                const int level = std::clamp(brightness((x + 0.5) / size.width, (y + 0.5) / size.height), 0, 255);
                bytes.insert(bytes.end(), 3, static_cast<std::uint8_t>(level));
            }
        }
    }
    std::uint64_t Print() const { return KxPrintOf({bytes.data(), size, 3 * static_cast<std::size_t>(size.width)}); }
};

int Hill(double x, double y)
{
    return static_cast<int>(200.0 - 300.0 * ((x - 0.4) * (x - 0.4) + (y - 0.6) * (y - 0.6)));
}

} // namespace

TEST(KxPicturePrint, EachBitSaysWhetherThePictureDarkensToTheRight)
{
    const auto print = [](const std::function<int(double, double)>& brightness) {
        return Picture({64, 36}, brightness).Print();
    };
    EXPECT_EQ(print([](double, double) { return 128; }), 0U) << "even";
    EXPECT_EQ(print([](double x, double) { return static_cast<int>(255 * x); }), 0U) << "brighter to the right";
    EXPECT_EQ(print([](double x, double) { return static_cast<int>(255 - 255 * x); }), ~std::uint64_t{0});
    EXPECT_EQ(print([](double x, double y) { return y < 0.5 ? static_cast<int>(255 - 255 * x) : 0; }),
              0xFFFFFFFF00000000U)
        << "the upper half comes first";
}

TEST(KxPicturePrint, SizeAndBrightnessChangeFewBits)
{
    const std::uint64_t print = Picture({64, 36}, Hill).Print();
    EXPECT_LT(KxPrintDistance(print, Picture({320, 180}, Hill).Print()), 6);
    const auto dark = [](double x, double y) { return Hill(x, y) * 3 / 4 - 10; };
    EXPECT_LT(KxPrintDistance(print, Picture({64, 36}, dark).Print()), 6);
    const auto other = [](double x, double y) { return Hill(1.0 - x, y); };
    EXPECT_GT(KxPrintDistance(print, Picture({64, 36}, other).Print()), 12);
}

TEST(KxPicturePrint, APictureThatIsTooSmallHasNone)
{
    const auto falling = [](double x, double) { return static_cast<int>(255 - 255 * x); };
    EXPECT_EQ(Picture({8, 8}, falling).Print(), 0U);
    EXPECT_EQ(Picture({9, 8}, falling).Print(), ~std::uint64_t{0});
    EXPECT_EQ(KxPrintOf({}), 0U);
}
