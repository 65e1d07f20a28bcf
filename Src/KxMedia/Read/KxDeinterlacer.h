#pragma once

#include <KxCore/KxExport.h>

#include <KxMedia/Picture/KxFilterChain.h>
#include <KxMedia/Read/KxVideoDecoder.h>

#include <deque>

/// Deinterlaces: each interlaced picture becomes one progressive picture at the time of its first field;
/// progressive pictures stay as they are. As many pictures come out as went in, each at its own time.
///
/// The missing lines are found from the pictures before and after, so from the first interlaced picture on each one
/// waits for the next. If the filter is not available (a library without it, pictures of a few lines), pictures stay
/// interlaced. One thread at a time.
class KXMEDIA_API KxDeinterlacer
{
public:
    KxDeinterlacer() = default;
    KxDeinterlacer(const KxDeinterlacer&) = delete;
    KxDeinterlacer& operator=(const KxDeinterlacer&) = delete;

    /// In order of time. Ready pictures are taken before the next one is added.
    void Add(KxVideoDecoder::Picture picture);
    /// No more pictures come. False when none had waited.
    bool End();
    std::optional<KxVideoDecoder::Picture> Take();
    /// Forgets all pictures: those that follow come from another place.
    void Reset();

private:
    void TakeFromChain();

    std::optional<KxFilterChain> m_chain;
    std::deque<KxVideoDecoder::Picture> m_ready;
};
