#pragma once

#include <KxCore/KxResult.h>
#include <KxMedia/Picture/KxHighRange.h>
#include <KxMedia/Picture/KxVideoFrame.h>

#include <QRect>
#include <QRectF>

#include <memory>

/// Shows a crop of decoded pictures completely in a picture of another shape: as large as it fits, over its own middle,
/// which fills the picture, blurred and darkened. Result and preview of every size look alike, because the blur grows
/// with the size. One thread at a time.
class KXMEDIA_API KxFittedCutter
{
public:
    /// `size` is that of the result: even and positive.
    explicit KxFittedCutter(const QSize& size, KxHighRange highRange = KxHighRange::ToneMapped);
    ~KxFittedCutter();

    const QSize& Size() const;

    /// As KxFrameCutter::Cut(), with the whole of `crop` in the result.
    KxResult<KxVideoFrame> Cut(const KxVideoFrame& picture, const QRectF& crop);

    /// Where a crop of the shape `shape` lies in a picture of size `size`: centred, with even sides and edges.
    static QRect PlaceOf(const QSizeF& shape, const QSize& size);

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};
