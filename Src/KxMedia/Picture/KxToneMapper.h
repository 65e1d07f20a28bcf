#pragma once

#include <KxMedia/Picture/KxPictureFilter.h>

/// Tone-maps pictures in high dynamic range (PQ, HLG) to BT.709. Caches its setup for the last format. One thread at a
/// time.
class KxToneMapper
{
public:
    /// `picture` is planar YUV; unspecified colour fields count as BT.2020. The result is 8-bit 4:2:0 of the same size
    /// with the colour fields of BT.709, limited range.
    KxResult<KxAvFrame> Map(const AVFrame& picture);

private:
    KxPictureFilter m_filter;
};
