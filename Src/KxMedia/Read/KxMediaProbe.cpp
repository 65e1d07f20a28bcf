#include <KxMedia/Read/KxMediaProbe.h>

#include <KxMedia/Read/KxStreamFacts.h>
#include <KxMedia/Read/KxVideoScanner.h>
#include <KxMedia/Read/KxVideoSource.h>

#include <functional>

namespace
{

/// `read` returns the facts of a file with pictures, or with nothing that can be played.
KxResult<KxMediaFacts> Probe(const QString& path, const KxCancelToken& cancel,
                             const std::function<KxResult<KxMediaFacts>(std::unique_ptr<KxInputFile>)>& read)
{
    KxResult<std::unique_ptr<KxInputFile>> input = KxInputFile::Open(path, cancel);
    if (!input) {
        return KxResult<KxMediaFacts>::Failure(input.Message());
    }
    if ((*input)->VideoStream() == nullptr && !(*input)->AudioStreams().empty()) {
        return KxFactsWithoutVideo(**input);
    }
    return read(std::move(*input));
}

} // namespace

KxResult<KxMediaFacts> KxProbeMedia(const QString& path, const KxCancelToken& cancel)
{
    return Probe(path, cancel, [](std::unique_ptr<KxInputFile> input) {
        const KxResult<std::unique_ptr<KxVideoSource>> source =
            KxVideoSource::Open(std::move(input), KxVideoDecoder::Effort::FirstPicture);
        return source ? (*source)->Facts() : KxResult<KxMediaFacts>::Failure(source.Message());
    });
}

KxResult<KxMediaFacts> KxProbeMedia(const QString& path, const KxCancelToken& cancel,
                                    std::unique_ptr<KxVideoScanner>& scanner)
{
    return Probe(path, cancel, [&scanner](std::unique_ptr<KxInputFile> input) {
        KxResult<std::unique_ptr<KxVideoScanner>> opened = KxVideoScanner::Open(std::move(input));
        if (!opened) {
            return KxResult<KxMediaFacts>::Failure(opened.Message());
        }
        scanner = std::move(*opened);
        return KxResult<KxMediaFacts>(scanner->Facts());
    });
}
