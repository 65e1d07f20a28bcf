#pragma once

#include <KxMedia/Read/KxVideoReader.h>

/// Runs once through a file's pictures for the analysis: pictures that no other picture needs and the loop filter may
/// be left out, which takes about half the work. One thread at a time.
class KXMEDIA_API KxVideoScanner
{
public:
    static KxResult<std::unique_ptr<KxVideoScanner>> Open(const QString& path, const KxCancelToken& cancel);
    ~KxVideoScanner();

    const KxMediaFacts& Facts() const;

    /// The next picture in order of time; its Index() grows from call to call. Pictures in between may be missing.
    KxReadStatus Next(KxVideoFrame& picture);

    /// Decoding ended, or failed for good, well before the last frame of the grid.
    bool EndedEarly() const;

    /// The file was truncated or written to since it was opened: reading fails until it is opened anew. That it grows,
    /// as a recording does, or is deleted, is no change.
    bool FileHasChanged() const;

private:
    class Impl;
    explicit KxVideoScanner(std::unique_ptr<Impl> impl);
    std::unique_ptr<Impl> m_impl;
};
