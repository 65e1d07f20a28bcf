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

/// Reads any frame of a file, exactly. Frames asked for in ascending order are decoded in one go; any other request
/// seeks. One thread at a time.
class KXMEDIA_API KxVideoReader
{
public:
    /// Decodes the first picture. Fails with an error message for a file without a video stream that can be decoded.
    static KxResult<std::unique_ptr<KxVideoReader>> Open(const QString& path, const KxCancelToken& cancel);
    ~KxVideoReader();

    const KxMediaFacts& Facts() const;
    /// Places the sound of the same file, see KxAudioReader::Open().
    KxMediaClock Clock() const;

    /// The picture shown at `frame` (0-based; a frame past the end counts as the last one). Where decoding ended before
    /// `frame` the last picture that decoded is delivered and EndedEarly() becomes true.
    KxReadStatus Read(qint64 frame, KxVideoFrame& picture);
    /// Asked before each picture that is decoded on the way to a frame; once it is true the read ends as cancelled, and
    /// the next one goes on from where decoding stands. Empty: a read is never given up.
    void GiveUpWhen(std::function<bool()> isUnwanted);

    /// Decoding ended, or failed for good, before the last frame of the grid; the loss of a picture or two at the very
    /// end, as where a camera was switched off, does not count.
    bool EndedEarly() const;
    /// How many frames of the grid could be decoded; the grid's length until an early end was met.
    qint64 DecodableFrames() const;

    /// The file was truncated or written to since it was opened: reading fails until it is opened anew. That it grows,
    /// as a recording does, or is deleted, is no change.
    bool FileHasChanged() const;

private:
    class Impl;
    explicit KxVideoReader(std::unique_ptr<Impl> impl);
    std::unique_ptr<Impl> m_impl;
};
