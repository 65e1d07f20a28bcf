#include <KxMedia/Read/KxMediaProbe.h>

#include <KxMedia/Read/KxStreamFacts.h>
#include <KxMedia/Read/KxVideoSource.h>

KxResult<KxMediaFacts> KxProbeMedia(const QString& path, const KxCancelToken& cancel)
{
    KxResult<std::unique_ptr<KxInputFile>> input = KxInputFile::Open(path, cancel);
    if (!input) {
        return KxResult<KxMediaFacts>::Failure(input.Message());
    }
    if ((*input)->VideoStream() == nullptr && !(*input)->AudioStreams().empty()) {
        return KxFactsWithoutVideo(**input);
    }
    const KxResult<std::unique_ptr<KxVideoSource>> source =
        KxVideoSource::Open(std::move(*input), KxVideoDecoder::Effort::FirstPicture);
    if (!source) {
        return KxResult<KxMediaFacts>::Failure(source.Message());
    }
    return (*source)->Facts();
}
