#pragma once

#include <KxMedia/Picture/KxVideoFrame.h>

#include <QImage>

/// Turns decoded pictures into upright images of a wanted size, scaling and converting in one step. Keeps what it
/// prepared for the last size. One thread at a time.
class KXMEDIA_API KxPictureScaler
{
public:
    enum class Detail {
        Full,
        Coarse, ///< for machines to look at: of a picture made smaller, colours at half the size and not every row
    };

    explicit KxPictureScaler(Detail detail = Detail::Full);
    ~KxPictureScaler();

    /// `size` is that of the upright image, in pixels. `format` is one of QImage::Format_RGB32, Format_BGR888 and
    /// Format_Grayscale8. A null image when memory runs out or the picture's format cannot be converted.
    QImage Scale(const KxVideoFrame& picture, const QSize& size, QImage::Format format);

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};
