#pragma once

#include <KxMedia/Container/KxAvHandles.h>

#include <QSize>

/// Hands out pictures whose planes start, and whose rows follow each other, at multiples of 64 bytes. Memory of
/// pictures that are no longer used is used again, so a steady stream of equal pictures allocates nothing big. Pictures
/// may outlive the pool and may be freed on any thread; Take() is called by one thread at a time.
class KxFramePool
{
public:
    static constexpr int AlignmentBytes = 64;

    /// A picture of undefined content; null when memory runs out.
    KxAvFrame Take(AVPixelFormat format, const QSize& size);

private:
    struct PoolDelete {
        void operator()(AVBufferPool* pool) const { av_buffer_pool_uninit(&pool); }
    };
    struct Layout {
        int strideBytes[4] = {};
        size_t offset[4] = {};
        size_t bytes = 0;
    };

    static Layout LayOut(AVPixelFormat format, const QSize& size);

    std::unique_ptr<AVBufferPool, PoolDelete> m_pool;
    AVPixelFormat m_format = AV_PIX_FMT_NONE;
    QSize m_size;
    Layout m_layout;
};
