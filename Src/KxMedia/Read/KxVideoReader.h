#pragma once

#include <KxCore/KxCancelToken.h>
#include <KxCore/KxExport.h>
#include <KxCore/KxResult.h>
#include <KxMedia/Container/KxReadStatus.h>
#include <KxMedia/Picture/KxVideoFrame.h>
#include <KxMedia/Read/KxMediaClock.h>
#include <KxMedia/Read/KxMediaFacts.h>

#include <functional>
#include <memory>

/// Reads any frame of a file, exactly. Requests in ascending order are decoded sequentially; other requests seek. One
/// thread at a time.
class KXMEDIA_API KxVideoReader
{
public:
    enum class Purpose {
        Display,
        Analysis ///< slightly lower picture quality in less time; pictures may stay interlaced
    };
    /// Decodes the first picture. Fails with an error message for a file without a video stream that can be decoded.
    static KxResult<std::unique_ptr<KxVideoReader>> Open(const QString& path, const KxCancelToken& cancel,
                                                         Purpose purpose = Purpose::Display);
    ~KxVideoReader();

    const KxMediaFacts& Facts() const;
    /// Places the sound of the same file, see KxAudioReader::Open().
    KxMediaClock Clock() const;

    /// The picture shown at `frame` (0-based; a frame past the end counts as the last one). If decoding ended before
    /// `frame`, the last decoded picture is delivered and EndedEarly() becomes true.
    KxReadStatus Read(qint64 frame, KxVideoFrame& picture);
    /// `isUnwanted` is called before each picture that is decoded on the way to a frame. Once it returns true, the read
    /// ends as cancelled; the next read continues from there. Empty: reads are never abandoned.
    void GiveUpWhen(std::function<bool()> isUnwanted);

    /// Decoding ended, or failed for good, before the last frame of the grid. A loss of one or two pictures at the very
    /// end, as when a camera is switched off, does not count.
    bool EndedEarly() const;
    /// The number of decodable frames of the grid; the grid's length until an early end is found.
    qint64 DecodableFrames() const;

    /// The file was truncated or modified since it was opened: reading fails until it is opened again. Growing, as in a
    /// live recording, and deletion do not count.
    bool FileHasChanged() const;

private:
    class Impl;
    explicit KxVideoReader(std::unique_ptr<Impl> impl);
    std::unique_ptr<Impl> m_impl;
};
