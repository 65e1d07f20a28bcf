#include <Tests/KxMedia/Picture/MadePicture.h>

extern "C" {
#include <libavutil/pixdesc.h>
}

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace
{

bool IsWide(const AVFrame& picture)
{
    return av_pix_fmt_desc_get(static_cast<AVPixelFormat>(picture.format))->comp[0].depth > 8;
}

} // namespace

QSize MadePicture::PlaneSize(const AVFrame& picture, int plane)
{
    const AVPixFmtDescriptor& format = *av_pix_fmt_desc_get(static_cast<AVPixelFormat>(picture.format));
    if (plane == 0 || plane == 3) {
        return {picture.width, picture.height};
    }
    return {AV_CEIL_RSHIFT(picture.width, format.log2_chroma_w), AV_CEIL_RSHIFT(picture.height, format.log2_chroma_h)};
}

KxAvFrame MadePicture::Make(AVPixelFormat format, const QSize& size, const Value& value)
{
    KxAvFrame picture(av_frame_alloc());
    picture->format = format;
    picture->width = size.width();
    picture->height = size.height();
    if (av_frame_get_buffer(picture.get(), 0) < 0) {
        return nullptr;
    }
    for (int plane = 0; plane < av_pix_fmt_count_planes(format); ++plane) {
        const QSize samples = PlaneSize(*picture, plane);
        for (int y = 0; y < samples.height(); ++y) {
            std::uint8_t* const row = picture->data[plane] + static_cast<std::ptrdiff_t>(y) * picture->linesize[plane];
            for (int x = 0; x < samples.width(); ++x) {
                if (IsWide(*picture)) {
                    reinterpret_cast<std::uint16_t*>(row)[x] = static_cast<std::uint16_t>(value(plane, x, y));
                } else {
                    row[x] = static_cast<std::uint8_t>(value(plane, x, y));
                }
            }
        }
    }
    return picture;
}

KxVideoFrame MadePicture::Wrap(KxAvFrame picture, qint64 index, const KxVideoFrame::Orientation& turn)
{
    const QSize size(picture->width, picture->height);
    const bool isQuarter = turn.clockwiseDegrees % 180 != 0;
    return {std::shared_ptr<const AVFrame>(std::move(picture)), index, turn, isQuarter ? size.transposed() : size};
}

int MadePicture::Sample(const AVFrame& picture, int plane, int x, int y)
{
    const std::uint8_t* const row = picture.data[plane] + static_cast<std::ptrdiff_t>(y) * picture.linesize[plane];
    return IsWide(picture) ? reinterpret_cast<const std::uint16_t*>(row)[x] : row[x];
}

double MadePicture::Mean(const AVFrame& picture, int plane)
{
    const QSize samples = PlaneSize(picture, plane);
    double sum = 0;
    for (int y = 0; y < samples.height(); ++y) {
        for (int x = 0; x < samples.width(); ++x) {
            sum += Sample(picture, plane, x, y);
        }
    }
    return sum / (samples.width() * samples.height());
}

double MadePicture::Psnr(const AVFrame& a, const AVFrame& b, int plane)
{
    const QSize samples = PlaneSize(a, plane);
    double squares = 0;
    for (int y = 0; y < samples.height(); ++y) {
        for (int x = 0; x < samples.width(); ++x) {
            const double difference = Sample(a, plane, x, y) - Sample(b, plane, x, y);
            squares += difference * difference;
        }
    }
    const double mean = squares / (samples.width() * samples.height());
    return mean > 0 ? std::min(100.0, 10 * std::log10(255.0 * 255.0 / mean)) : 100.0;
}

int MadePicture::Texture(int plane, int x, int y)
{
    const double wave = 40 * std::sin(x * 0.11 + plane) + 30 * std::cos(y * 0.07) + 12 * std::sin((x + 2 * y) * 0.5);
    const unsigned grain = ((static_cast<unsigned>(x) * 73856093U) ^ (static_cast<unsigned>(y) * 19349663U) ^
                            (static_cast<unsigned>(plane) * 83492791U)) &
                           7U;
    return static_cast<int>(std::lround(124 + wave)) + static_cast<int>(grain);
}
