#pragma once

#include <KxMedia/Picture/KxFramePool.h>
#include <KxMedia/Picture/KxPlaneShrinker.h>

#include <QSize>

/// Makes a decoded picture small at little cost, by averaging its planes. One thread at a time.
class KxCoarsePicture
{
public:
    /// `picture` at `size`, as 8-bit YUV 4:2:0 or grey; lives until the next call. Null where the picture is not of
    /// separate planes of luma and chroma, or is the smaller one, or memory runs out.
    const AVFrame* Of(const AVFrame& picture, const QSize& size);

private:
    KxFramePool m_pool;
    KxPlaneShrinker m_shrinker;
    KxAvFrame m_small;
};
