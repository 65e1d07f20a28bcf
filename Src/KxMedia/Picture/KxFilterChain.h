#pragma once

#include <KxCore/KxResult.h>
#include <KxMedia/Container/KxAvHandles.h>

#include <QSize>

/// A chain of libavfilter's filters for pictures of one size and format. One thread at a time.
class KxFilterChain
{
public:
    /// For pictures of the size and format of `picture`; `steps` in libavfilter's syntax. Errors, also those below, are
    /// clauses to append to a message.
    static KxResult<KxFilterChain> Make(const char* steps, const AVFrame& picture);

    /// Whether `picture` has the size and the format that the chain was made for.
    bool Fits(const AVFrame& picture) const;

    KxError Add(KxAvFrame picture);
    /// No more pictures come.
    KxError End();
    /// Null if another Add() is needed first. `pts` has the unit of the added pictures.
    KxResult<KxAvFrame> Take();

private:
    KxFilterChain() = default;

    KxAvGraph m_graph;
    AVFilterContext* m_source = nullptr;
    AVFilterContext* m_sink = nullptr;
    QSize m_size;
    int m_format = AV_PIX_FMT_NONE;
};
