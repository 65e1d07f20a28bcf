#pragma once

#include <KxCore/KxBoundedQueue.h>
#include <KxCore/KxCancelToken.h>
#include <KxCore/KxThread.h>
#include <KxMedia/Picture/KxFrameCutter.h>
#include <KxMedia/Picture/KxPictureScaler.h>
#include <KxMedia/Picture/KxVideoFrame.h>
#include <KxMedia/Read/KxVideoReader.h>
#include <KxRender/KxOutputGrid.h>
#include <KxRender/KxRenderSource.h>

/// Decodes and cuts on a thread of its own, a few pictures ahead of whoever takes them. Destroying it ends the thread.
class KxPictureFeed
{
public:
    /// `reader` and `source` are borrowed; nobody else touches the reader while this lives.
    KxPictureFeed(KxVideoReader& reader, const KxRenderSource& source, const KxOutputGrid& grid, const QSize& size,
                  const KxCancelToken& cancel);
    ~KxPictureFeed();
    KxPictureFeed(const KxPictureFeed&) = delete;
    KxPictureFeed& operator=(const KxPictureFeed&) = delete;

    /// The picture of the output's next frame. Nothing at the end, when cancelled and after a failure. Waits.
    std::optional<KxVideoFrame> Next();

    /// After the last picture: why there are no more, where that is a failure.
    KxError Failure();
    /// After the last picture: the source could not be decoded to its end.
    bool EndedEarly();

private:
    void Work();
    void DecodeAndCut();
    /// False when there is nothing (more) to show at the source's `frame`.
    bool Read(qint64 frame, KxVideoFrame& picture);
    /// What the result shows of `picture` at the source's `frame`.
    KxResult<KxVideoFrame> Make(const KxVideoFrame& picture, qint64 frame);

    KxVideoReader& m_reader;
    const KxRenderSource& m_source;
    const KxOutputGrid m_grid;
    const QSize m_size;
    const KxCancelToken m_cancel;
    KxBoundedQueue<KxVideoFrame> m_pictures;
    // Of the thread alone.
    KxFrameCutter m_cutter;
    KxPictureScaler m_scaler;
    // Written by the thread; read once it has ended.
    KxError m_failure;
    bool m_endedEarly = false;
    // Last: its work uses all of the above.
    KxThread m_thread;
};
