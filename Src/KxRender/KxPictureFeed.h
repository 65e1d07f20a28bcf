#pragma once

#include <KxCore/KxBoundedQueue.h>
#include <KxCore/KxCancelToken.h>
#include <KxCore/KxThread.h>
#include <KxMedia/Picture/KxColourMatcher.h>
#include <KxMedia/Picture/KxFittedCutter.h>
#include <KxMedia/Picture/KxFrameCutter.h>
#include <KxMedia/Picture/KxPictureScaler.h>
#include <KxMedia/Picture/KxVideoFrame.h>
#include <KxMedia/Read/KxVideoReader.h>
#include <KxRender/KxOutputGrid.h>
#include <KxRender/KxRenderSource.h>

/// Decodes and cuts pictures on a thread of its own, a few pictures ahead of the encoder. The destructor ends the
/// thread.
class KxPictureFeed
{
public:
    /// What the pictures become.
    struct Target {
        QSize size;
        KxFrameRange frames; ///< of the output
        KxHighRange highRange = KxHighRange::ToneMapped;
    };
    /// `reader` and `source` are borrowed; nothing else uses the reader during the lifetime of this object.
    KxPictureFeed(KxVideoReader& reader, const KxRenderSource& source, const KxOutputGrid& grid, const Target& target,
                  const KxCancelToken& cancel);
    ~KxPictureFeed();
    KxPictureFeed(const KxPictureFeed&) = delete;
    KxPictureFeed& operator=(const KxPictureFeed&) = delete;

    /// Waits for the picture of the next frame. Nothing at the end, after a failure, or when cancelled.
    std::optional<KxVideoFrame> Next();

    /// After the last picture: the error message of a failure.
    KxError Failure();
    /// After the last picture: whether the source could not be decoded to its end.
    bool EndedEarly();

private:
    void Work();
    void DecodeAndCut();
    /// Reads and makes a picture. Null at the end, after a failure, or when cancelled.
    KxVideoFrame MakeFrame(qint64 sourceFrame);
    /// Reads the source's frame `frame`. False at the end, after a failure, or when cancelled.
    bool Read(qint64 frame, KxVideoFrame& picture);
    /// Cuts `picture`, which is the source's frame `frame`, or draws the overlay on it. The result has the colours of
    /// the first one.
    KxResult<KxVideoFrame> Make(const KxVideoFrame& picture, qint64 frame);

    KxVideoReader& m_reader;
    const KxRenderSource& m_source;
    const KxOutputGrid m_grid;
    const QSize m_size;
    const KxFrameRange m_frames;
    const KxCancelToken m_cancel;
    KxBoundedQueue<KxVideoFrame> m_pictures;
    // Used by the thread only.
    KxFrameCutter m_cutter;
    KxFittedCutter m_fittedCutter;
    KxPictureScaler m_scaler;
    KxColourMatcher m_colours;
    // Written by the thread, read after it has ended.
    KxError m_failure;
    bool m_endedEarly = false;
    // Last: its work uses all of the above.
    KxThread m_thread;
};
