#include <KxMedia/Picture/KxPictureTurner.h>

extern "C" {
#include <libavutil/pixdesc.h>
}

#include <algorithm>
#include <cstdint>

namespace
{

struct Walk {
    std::ptrdiff_t first = 0; ///< of the source sample that becomes the target's top left one
    std::ptrdiff_t right = 0; ///< step in the source for a step to the right in the target
    std::ptrdiff_t down = 0;
};

// In samples; `width` and `height` are those of the source plane.
Walk WalkOf(const KxVideoFrame::Orientation& turn, std::ptrdiff_t stride, int width, int height)
{
    // Mirroring comes first: the rotation then reads the plane from right to left.
    const std::ptrdiff_t across = turn.mirror ? -1 : 1;
    const std::ptrdiff_t left = turn.mirror ? width - 1 : 0;
    const std::ptrdiff_t right = width - 1 - left;
    const std::ptrdiff_t bottom = (height - 1) * stride;
    switch (turn.clockwiseDegrees) {
    case 90:
        return {bottom + left, -stride, across};
    case 180:
        return {bottom + right, -across, -stride};
    case 270:
        return {right, stride, -across};
    default:
        return {left, across, stride};
    }
}

// In square blocks for the cache, because either source or target is accessed by column.
template<typename Sample>
void TurnPlane(const Sample* source, const Walk& walk, Sample* target, std::ptrdiff_t targetStride, int width,
               int height)
{
    constexpr int square = 32;
    for (int top = 0; top < height; top += square) {
        const int bottom = std::min(top + square, height);
        for (int left = 0; left < width; left += square) {
            const int right = std::min(left + square, width);
            for (int y = top; y < bottom; ++y) {
                const Sample* from = source + walk.first + y * walk.down + left * walk.right;
                Sample* to = target + y * targetStride + left;
                for (int x = left; x < right; ++x, from += walk.right) {
                    *to++ = *from;
                }
            }
        }
    }
}

} // namespace

void KxPictureTurner::Turn(const AVFrame& source, const KxVideoFrame::Orientation& turn, AVFrame& target)
{
    const AVPixFmtDescriptor* const format = av_pix_fmt_desc_get(static_cast<AVPixelFormat>(source.format));
    const bool isWide = format->comp[0].depth > 8;
    const int planes = av_pix_fmt_count_planes(static_cast<AVPixelFormat>(source.format));
    for (int plane = 0; plane < planes; ++plane) {
        const bool isChroma = plane == 1 || plane == 2;
        const auto shift = [&](int length, int shiftBits) {
            return isChroma ? AV_CEIL_RSHIFT(length, shiftBits) : length;
        };
        const int sourceWidth = shift(source.width, format->log2_chroma_w);
        const int sourceHeight = shift(source.height, format->log2_chroma_h);
        const int width = shift(target.width, format->log2_chroma_w);
        const int height = shift(target.height, format->log2_chroma_h);
        if (isWide) {
            const Walk walk = WalkOf(turn, source.linesize[plane] / 2, sourceWidth, sourceHeight);
            TurnPlane(reinterpret_cast<const std::uint16_t*>(source.data[plane]), walk,
                      reinterpret_cast<std::uint16_t*>(target.data[plane]), target.linesize[plane] / 2, width, height);
        } else {
            const Walk walk = WalkOf(turn, source.linesize[plane], sourceWidth, sourceHeight);
            TurnPlane<std::uint8_t>(source.data[plane], walk, target.data[plane], target.linesize[plane], width,
                                    height);
        }
    }
}
