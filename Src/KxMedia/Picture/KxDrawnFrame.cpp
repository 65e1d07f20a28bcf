#include <KxMedia/Picture/KxDrawnFrame.h>

#include <KxMedia/Container/KxAvHandles.h>

namespace
{

void ReleaseImage(void* image, std::uint8_t*)
{
    delete static_cast<QImage*>(image);
}

} // namespace

KxVideoFrame KxDrawnFrame(const QImage& image, qint64 index)
{
    Q_ASSERT(image.format() == QImage::Format_RGB32);
    KxAvFrame frame(av_frame_alloc());
    auto shared = std::make_unique<QImage>(image);
    // libav* takes a non-const pointer, but never writes to a buffer that is marked read-only.
    auto* const pixels = const_cast<uchar*>(shared->constBits());
    if (frame == nullptr || pixels == nullptr) {
        return {};
    }
    frame->buf[0] = av_buffer_create(pixels, static_cast<std::size_t>(shared->sizeInBytes()), ReleaseImage,
                                     shared.get(), AV_BUFFER_FLAG_READONLY);
    if (frame->buf[0] == nullptr) {
        return {};
    }
    shared.release();
    frame->data[0] = pixels;
    frame->linesize[0] = image.bytesPerLine();
    frame->format = AV_PIX_FMT_0RGB32;
    frame->width = image.width();
    frame->height = image.height();
    return KxVideoFrame(std::move(frame), index, KxVideoFrame::Orientation(), image.size());
}
