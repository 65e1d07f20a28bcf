#pragma once

#include <KxMedia/Picture/KxFramePool.h>
#include <KxMedia/Picture/KxPlaneShrinker.h>

#include <QSize>

/// Shrinks a decoded picture at little cost by averaging its planes. One thread at a time.
class KxCoarsePicture
{
public:
    enum class Chroma { Half, Full };
    /// `picture` at `size`, as 8-bit YUV 4:2:0 (or, with full chroma, 4:4:4) or grey; valid until the next call. Null
    /// if the picture does not have separate luma and chroma planes, is smaller than `size`, or memory runs out.
    const AVFrame* Of(const AVFrame& picture, const QSize& size, Chroma chroma);

private:
    KxFramePool m_pool;
    KxPlaneShrinker m_shrinker;
    KxAvFrame m_small;
};
