#pragma once

#include <KxMedia/Picture/KxFrameCutter.h>
#include <Tests/KxMedia/Picture/MadePicture.h>

#include <gtest/gtest.h>

/// Cuts for tests: a cut that fails fails the test, and its result is null.
namespace CutPicture
{
/// `crop` in pixels of the upright picture.
inline KxVideoFrame CutPixels(KxFrameCutter& cutter, const KxVideoFrame& picture, const QRectF& crop)
{
    const double width = picture.DisplayedSize().width();
    const double height = picture.DisplayedSize().height();
    KxResult<KxVideoFrame> cut =
        cutter.Cut(picture, QRectF(crop.x() / width, crop.y() / height, crop.width() / width, crop.height() / height));
    EXPECT_TRUE(cut) << cut.Message().toStdString();
    return cut ? *cut : KxVideoFrame();
}

inline KxVideoFrame Whole(KxFrameCutter& cutter, KxAvFrame picture)
{
    const KxVideoFrame wrapped = MadePicture::Wrap(std::move(picture));
    return CutPixels(cutter, wrapped, QRectF(QPointF(), QSizeF(wrapped.DisplayedSize())));
}

inline void ExpectSamePictures(const AVFrame& a, const AVFrame& b)
{
    ASSERT_EQ(QSize(a.width, a.height), QSize(b.width, b.height));
    for (int plane = 0; plane < 3; ++plane) {
        EXPECT_EQ(MadePicture::Psnr(a, b, plane), 100.0) << "plane " << plane;
    }
}
} // namespace CutPicture
