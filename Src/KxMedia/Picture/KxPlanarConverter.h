#pragma once

#include <KxMedia/Container/KxAvHandles.h>
#include <KxMedia/Picture/KxFramePool.h>

/// Converts pictures of any pixel format to what the plane resampler supports: one plane per component, whole bytes or
/// native 16-bit words, aligned rows. Most pictures pass through unchanged. Caches its setup for the last format. One
/// thread at a time.
class KxPlanarConverter
{
public:
    /// `source` itself or a converted copy, which is valid until the next call: YUV with the source's subsampling or
    /// grey; what was RGB becomes 4:4:4 in BT.709, limited range. Its colour fields are set; the size is the same. Null
    /// if memory runs out or the format cannot be converted.
    const AVFrame* Convert(const AVFrame& source);

private:
    bool Prepare(const AVFrame& source, AVPixelFormat target);
    const AVFrame* CopyAligned(const AVFrame& source);

    KxFramePool m_pool;
    KxAvFrame m_converted;
    KxAvScaler m_scaler;
    AVPixelFormat m_sourceFormat = AV_PIX_FMT_NONE;
    QSize m_size;
};
