#include <KxSubject/KxPicturePrint.h>

#include <array>
#include <bitset>

namespace
{

constexpr int Columns = 9;
constexpr int Rows = 8;
/// Of 255; noise and compression stay below.
constexpr double LeastFall = 1.0;

/// The mean brightness of a part of the picture.
double Brightness(const KxPictureView& picture, int column, int row)
{
    const int left = column * picture.sizePx.width / Columns;
    const int right = (column + 1) * picture.sizePx.width / Columns;
    const int top = row * picture.sizePx.height / Rows;
    const int bottom = (row + 1) * picture.sizePx.height / Rows;
    std::int64_t sum = 0;
    for (int y = top; y < bottom; ++y) {
        const std::uint8_t* pixel =
            picture.data + static_cast<std::size_t>(y) * picture.bytesPerRow + 3 * static_cast<std::size_t>(left);
        for (int x = left; x < right; ++x, pixel += 3) {
            sum += pixel[0] + 2 * pixel[1] + pixel[2];
        }
    }
    return static_cast<double>(sum) / (4.0 * (right - left) * (bottom - top));
}

} // namespace

std::uint64_t KxPrintOf(const KxPictureView& picture)
{
    if (picture.data == nullptr || picture.sizePx.width < Columns || picture.sizePx.height < Rows) {
        return 0;
    }
    std::uint64_t bits = 0;
    for (int row = 0; row < Rows; ++row) {
        double left = Brightness(picture, 0, row);
        for (int column = 1; column < Columns; ++column) {
            const double right = Brightness(picture, column, row);
            bits = bits << 1U | (left - right > LeastFall ? 1U : 0U);
            left = right;
        }
    }
    return bits;
}

int KxPrintDistance(std::uint64_t a, std::uint64_t b)
{
    return static_cast<int>(std::bitset<64>(a ^ b).count());
}
