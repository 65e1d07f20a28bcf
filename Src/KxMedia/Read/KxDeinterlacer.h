#pragma once

#include <KxCore/KxExport.h>

#include <KxMedia/Picture/KxFilterChain.h>
#include <KxMedia/Read/KxVideoDecoder.h>

#include <deque>

/// Deinterlaces: each interlaced picture becomes one progressive picture at the time of its first field; progressive
/// pictures stay as they are. As many pictures come out as went in, each at its own time.
///
/// Missing lines are interpolated from the previous and next pictures, so each picture is delayed by one from the first
/// interlaced picture on. If the filter is not available (a library without it, pictures of a few lines), pictures stay
/// interlaced. One thread at a time.
class KXMEDIA_API KxDeinterlacer
{
public:
    KxDeinterlacer() = default;
    KxDeinterlacer(const KxDeinterlacer&) = delete;
    KxDeinterlacer& operator=(const KxDeinterlacer&) = delete;

    /// In display order. Take all ready pictures before adding the next one.
    void Add(KxVideoDecoder::Picture picture);
    /// Call after the last picture. False if none was delayed.
    bool End();
    std::optional<KxVideoDecoder::Picture> Take();
    /// Discards all pictures: the next ones come from another position.
    void Reset();

private:
    void TakeFromChain();

    std::optional<KxFilterChain> m_chain;
    std::deque<KxVideoDecoder::Picture> m_ready;
};
