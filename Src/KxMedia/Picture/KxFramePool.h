#pragma once

#include <KxMedia/Container/KxAvHandles.h>

#include <QSize>

/// Provides pictures whose planes and rows are aligned to 64 bytes. The memory of released pictures is reused. Pictures
/// may outlive the pool and may be released on any thread; Take() is called by one thread at a time.
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
