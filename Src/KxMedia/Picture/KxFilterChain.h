#pragma once

#include <KxCore/KxResult.h>
#include <KxMedia/Container/KxAvHandles.h>

#include <QSize>

/// A chain of libavfilter's filters for pictures of one size and format. One thread at a time.
class KxFilterChain
{
public:
    /// For pictures such as `picture`; `steps` as libavfilter writes them. The failure is a clause to append to a
    /// message, as are those below.
    static KxResult<KxFilterChain> Make(const char* steps, const AVFrame& picture);

    /// Whether `picture` has the size and the format that the chain was made for.
    bool Fits(const AVFrame& picture) const;

    KxError Add(KxAvFrame picture);
    /// No more pictures come.
    KxError End();
    /// Null when there is none without another Add(). `pts` counts as it did in what was added.
    KxResult<KxAvFrame> Take();

private:
    KxFilterChain() = default;

    KxAvGraph m_graph;
    AVFilterContext* m_source = nullptr;
    AVFilterContext* m_sink = nullptr;
    QSize m_size;
    int m_format = AV_PIX_FMT_NONE;
};
