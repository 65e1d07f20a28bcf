#pragma once

#include <KxCore/KxResult.h>
#include <KxMedia/Picture/KxHighRange.h>
#include <KxMedia/Picture/KxVideoFrame.h>

#include <QRectF>

#include <memory>

/// Cuts a rectangle out of decoded pictures and scales it, once, to an upright 4:2:0 picture of a fixed size with 8
/// bits, or with 10 where high dynamic range is kept.
///
/// The rectangle is accurate to a fraction of a pixel, in luma and chroma, so that slow pans move evenly. One thread at
/// a time.
class KXMEDIA_API KxFrameCutter
{
public:
    /// `size` is that of the result: even and positive.
    explicit KxFrameCutter(const QSize& size, KxHighRange highRange = KxHighRange::ToneMapped);
    ~KxFrameCutter();

    /// `crop` is in fractions of the upright picture; a rectangle that extends beyond it is moved inside. The result
    /// keeps the picture's place on the frame grid, is upright, has square pixels and carries the colour tags of the
    /// source (those of BT.709 after tone mapping).
    KxResult<KxVideoFrame> Cut(const KxVideoFrame& picture, const QRectF& crop);

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};
