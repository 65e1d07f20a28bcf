#pragma once

#include <KxMedia/Read/KxVideoReader.h>

class KxInputFile;
class KxVideoSource;

/// Reads a file's pictures once, in order, for the analysis: the loop filter and, from 20 pictures a second on, the
/// pictures that no other picture needs may be skipped, which saves about half of the work. One thread at a time.
///
/// Memory: pictures above 8192 x 4352 pixels are decoded by a single thread, which holds the stream's reference
/// pictures and at most two more (three where none may be skipped). A picture takes about two bytes per pixel (8 bits,
/// 4:2:0, H.264): 800 MB for 8192 x 8192 and four reference pictures. Smaller pictures are decoded by up to nine
/// threads, each of which holds one more.
class KXMEDIA_API KxVideoScanner
{
public:
    static KxResult<std::unique_ptr<KxVideoScanner>> Open(const QString& path, const KxCancelToken& cancel);
    /// Fails if `input` has no video stream.
    static KxResult<std::unique_ptr<KxVideoScanner>> Open(std::unique_ptr<KxInputFile> input);
    ~KxVideoScanner();

    const KxMediaFacts& Facts() const;
    /// Places the sound of the same file, see KxAudioReader::Open().
    KxMediaClock Clock() const;

    /// Goes on with a picture at or before `frame`, so that from there on the pictures are those of a scanner that came
    /// from the start. Where the file's clock jumps or no key frame is known, that is the first picture. Call before
    /// the first Next().
    void SkipTo(qint64 frame);

    /// The next picture in display order; its Index() strictly increases. Pictures in between may be missing.
    KxReadStatus Next(KxVideoFrame& picture);

    /// Decoding ended, or failed for good, well before the last frame of the grid.
    bool EndedEarly() const;

    /// The file was truncated or modified since it was opened: reading fails until it is opened again. Growing, as in a
    /// live recording, and deletion do not count.
    bool FileHasChanged() const;

private:
    class Impl;
    explicit KxVideoScanner(std::unique_ptr<Impl> impl);
    static KxResult<std::unique_ptr<KxVideoScanner>> Of(KxResult<std::unique_ptr<KxVideoSource>> source);
    std::unique_ptr<Impl> m_impl;
};
