#pragma once

#include <KxMedia/Picture/KxFilterChain.h>

/// Brings pictures of high dynamic range (PQ, HLG) into the range of BT.709. Keeps what it prepared for the last
/// format. One thread at a time.
class KxToneMapper
{
public:
    /// `picture` is planar YUV with its colour fields set; what they leave open counts as BT.2020. The result is 8-bit
    /// 4:2:0 of the same size with the colour fields of BT.709, limited range.
    KxResult<KxAvFrame> Map(const AVFrame& picture);

private:
    std::optional<KxFilterChain> m_chain;
};
