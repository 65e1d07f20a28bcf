#include <KxMedia/Read/KxAudioReader.h>

#include <KxCore/KxFrameTime.h>
#include <KxMedia/Container/KxInputFile.h>
#include <KxMedia/Read/KxAudioTrack.h>

#include <QCoreApplication>

#include <algorithm>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(KxAudioReader)
};

constexpr int BlocksASecond = 25;

} // namespace

class KxAudioReader::Impl
{
public:
    Impl(std::unique_ptr<KxAudioTrack> audioTrack, const Format& wanted)
        : track(std::move(audioTrack))
        , format(wanted)
    {
    }

    KxReadStatus Next(KxAudioBlock& block);
    void Seek(qint64 position);
    KxReadStatus ReadRun();
    void MakeBlock(qint64 frames, KxAudioBlock& block);

    qint64 FramesIn(const KxAudioTrack::Run& some) const
    {
        return static_cast<qint64>(some.samples.size()) / format.channels;
    }

    std::unique_ptr<KxAudioTrack> track;
    Format format;
    /// Position of the next sample to deliver; empty before the first sound.
    std::optional<qint64> next;
    /// Not delivered yet. Begins at or after `next`; the gap is filled with silence.
    KxAudioTrack::Run run;
    bool hasFailedToSeek = false;
};

KxReadStatus KxAudioReader::Impl::ReadRun()
{
    for (;;) {
        KxAudioTrack::Run more;
        const KxReadStatus status = track->Next(more);
        if (status != KxReadStatus::Delivered) {
            return status;
        }
        // Samples before time zero, before the target of a seek, or already delivered.
        const qint64 from = std::max<qint64>(0, next.value_or(0));
        const qint64 late = std::clamp<qint64>(from - more.position, 0, FramesIn(more));
        more.samples.erase(more.samples.begin(),
                           more.samples.begin() + static_cast<std::ptrdiff_t>(late * format.channels));
        more.position += late;
        if (!more.samples.empty()) {
            run = std::move(more);
            next = next.value_or(run.position);
            return status;
        }
    }
}

KxReadStatus KxAudioReader::Impl::Next(KxAudioBlock& block)
{
    if (hasFailedToSeek) {
        return KxReadStatus::Failed;
    }
    const qint64 blockFrames = std::max(1, format.sampleRateHz / BlocksASecond);
    block.channels = format.channels;
    block.samples.clear();
    while (static_cast<qint64>(block.samples.size()) < blockFrames * format.channels) {
        if (run.samples.empty()) {
            const KxReadStatus status = ReadRun();
            if (status != KxReadStatus::Delivered) {
                const bool isLast = status == KxReadStatus::End && !block.samples.empty();
                return isLast ? KxReadStatus::Delivered : status;
            }
        }
        MakeBlock(blockFrames, block);
    }
    return KxReadStatus::Delivered;
}

void KxAudioReader::Impl::MakeBlock(qint64 frames, KxAudioBlock& block)
{
    const qint64 had = static_cast<qint64>(block.samples.size()) / format.channels;
    if (had == 0) {
        block.timeUs = KxFrameTime::ToMicroseconds(*next, {format.sampleRateHz, 1}, KxFrameTime::Rounding::Down);
    }
    const qint64 silence = std::min(frames - had, run.position - *next);
    block.samples.insert(block.samples.end(), static_cast<size_t>(silence * format.channels), 0.0F);
    const qint64 sound = std::min(frames - had - silence, FramesIn(run));
    const auto end = run.samples.begin() + static_cast<std::ptrdiff_t>(sound * format.channels);
    block.samples.insert(block.samples.end(), run.samples.begin(), end);
    run.samples.erase(run.samples.begin(), end);
    run.position += sound;
    *next += silence + sound;
}

void KxAudioReader::Impl::Seek(qint64 position)
{
    const qint64 wanted = std::max<qint64>(0, position);
    for (qint64 back = 0; back < 64 * qint64{format.sampleRateHz}; back = back * 4 + format.sampleRateHz) {
        run = {};
        next = wanted;
        if (wanted - back <= 0 || !track->SeekBefore(wanted - back)) {
            break;
        }
        const KxReadStatus status = ReadRun();
        if (status == KxReadStatus::Cancelled || (status == KxReadStatus::Delivered && run.position <= wanted)) {
            return;
        }
    }
    run = {};
    next = wanted;
    hasFailedToSeek = !track->Rewind();
}

KxAudioReader::KxAudioReader(std::unique_ptr<Impl> impl)
    : m_impl(std::move(impl))
{
}

KxAudioReader::~KxAudioReader() = default;

KxResult<std::unique_ptr<KxAudioReader>> KxAudioReader::Open(const QString& path, int stream, const Format& format,
                                                             const KxMediaClock& clock, const KxCancelToken& cancel)
{
    using Result = KxResult<std::unique_ptr<KxAudioReader>>;
    KxResult<std::unique_ptr<KxInputFile>> input = KxInputFile::Open(path, cancel, KxInputFile::Tracks::AllButPictures);
    if (!input) {
        return Result::Failure(input.Message());
    }
    const std::vector<AVStream*>& streams = (*input)->AudioStreams();
    if (stream < 0 || static_cast<size_t>(stream) >= streams.size()) {
        return Result::Failure(KxInputFile::Message(path, Texts::tr("it has no such sound track")));
    }
    AVStream& chosen = *streams[static_cast<size_t>(stream)];
    KxResult<std::unique_ptr<KxAudioTrack>> track = KxAudioTrack::Open(std::move(*input), chosen, format, clock);
    if (!track) {
        return Result::Failure(KxInputFile::Message(path, track.Message()));
    }
    return std::unique_ptr<KxAudioReader>(new KxAudioReader(std::make_unique<Impl>(std::move(*track), format)));
}

KxReadStatus KxAudioReader::Next(KxAudioBlock& block)
{
    const KxReadStatus status = m_impl->Next(block);
    return status != KxReadStatus::Cancelled && m_impl->track->FileHasChanged() ? KxReadStatus::Failed : status;
}

void KxAudioReader::Seek(qint64 timeUs)
{
    m_impl->Seek(
        KxFrameTime::FromMicroseconds(timeUs, {m_impl->format.sampleRateHz, 1}, KxFrameTime::Rounding::Nearest));
}
