#pragma once

#include <KxMedia/Picture/KxVideoFrame.h>

#include <QImage>

/// Converts decoded pictures to upright images of a given size, in one step. Caches its setup for the last size. One
/// thread at a time.
class KXMEDIA_API KxPictureScaler
{
public:
    enum class Detail {
        Full,
        Coarse,   ///< for analysis: when shrinking, chroma has half the resolution and some rows are skipped
        Overview, ///< the same with chroma of full resolution, for very small pictures
    };

    explicit KxPictureScaler(Detail detail = Detail::Full);
    ~KxPictureScaler();

    /// `size` is that of the upright image, in pixels. `format` is one of QImage::Format_RGB32, Format_BGR888 and
    /// Format_Grayscale8. Null if memory runs out or the picture's format cannot be converted.
    QImage Scale(const KxVideoFrame& picture, const QSize& size, QImage::Format format);

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};
