#include <KxRender/KxRenderSound.h>

#include <KxCore/KxFrameTime.h>
#include <KxMedia/Write/KxLoudness.h>
#include <KxMedia/Write/KxSoundCopier.h>
#include <KxMedia/Write/KxSoundPackets.h>
#include <KxRender/KxAudioInterleaver.h>

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(KxRenderSound)
};

// The source's sample rate if AAC supports it, and at most two channels, which is what phones play.
KxAudioReader::Format SoundFormat(const KxAudioFacts& facts)
{
    constexpr std::array<int, 9> ratesHz{8000, 11025, 12000, 16000, 22050, 24000, 32000, 44100, 48000};
    KxAudioReader::Format format;
    format.channels = facts.channels == 1 ? 1 : 2;
    if (std::find(ratesHz.begin(), ratesHz.end(), facts.sampleRateHz) != ratesHz.end()) {
        format.sampleRateHz = facts.sampleRateHz;
    }
    return format;
}

using Reader = std::unique_ptr<KxAudioReader>;

/// The loudness of what is read up to `endUs`, the end of the pictures.
KxResult<std::optional<KxLoudness>> Measure(KxAudioReader& reader, const KxAudioReader::Format& format, qint64 endUs)
{
    using Measured = KxResult<std::optional<KxLoudness>>;
    const KxResult<std::unique_ptr<KxLoudnessMeter>> meter = KxLoudnessMeter::Make(format);
    if (!meter) {
        return Measured::Failure(meter.Message());
    }
    KxAudioBlock block;
    while (reader.Next(block) == KxReadStatus::Delivered && block.timeUs < endUs) {
        if (const KxError error = (*meter)->Add(block)) {
            return Measured::Failure(*error);
        }
    }
    return (*meter)->Result();
}

/// Opens the same sound once more, for each pass.
class Opener
{
public:
    Opener(const KxVideoReader& pictures, const KxRenderSource& source, int stream, const KxCancelToken& cancel)
        : m_pictures(pictures)
        , m_source(source)
        , m_stream(stream)
        , m_cancel(cancel)
    {
    }

    KxResult<Reader> Open(const KxAudioReader::Format& format) const
    {
        return KxAudioReader::Open(m_source.path, m_stream, format, m_pictures.Clock(), m_cancel);
    }
    KxResult<std::unique_ptr<KxSoundCopier>> OpenCopier() const
    {
        return KxSoundCopier::Open(m_source.path, m_stream, m_pictures.Clock(), m_cancel);
    }

private:
    const KxVideoReader& m_pictures;
    const KxRenderSource& m_source;
    const int m_stream;
    const KxCancelToken& m_cancel;
};

/// The filter that brings the sound to the loudness. Nothing, with a warning, where that is impossible.
std::unique_ptr<KxLoudnessFilter> LoudnessFilter(const Opener& opener, double targetLufs, qint64 endUs,
                                                 KxRenderSound& sound)
{
    const KxResult<Reader> reader = opener.Open(sound.format);
    if (!reader) {
        return nullptr; // reported when it is opened to be written
    }
    const KxResult<std::optional<KxLoudness>> measured = Measure(**reader, sound.format, endUs);
    if (measured && !*measured) {
        sound.warnings += Texts::tr("The sound is silent; its loudness is not changed.");
        return nullptr;
    }
    using Made = KxResult<std::unique_ptr<KxLoudnessFilter>>;
    Made filter =
        measured ? KxLoudnessFilter::Make(**measured, targetLufs, sound.format) : Made::Failure(measured.Message());
    if (!filter) {
        sound.warnings += Texts::tr("The loudness of the sound is not changed: %1.").arg(filter.Message());
        return nullptr;
    }
    return std::move(*filter);
}

} // namespace

KxRenderSound KxRenderSound::Open(const KxVideoReader& reader, const KxRenderSource& source,
                                  const KxOutputFormat& format, const KxCancelToken& cancel)
{
    KxRenderSound sound;
    const KxMediaFacts& facts = reader.Facts();
    const int stream = source.audioStream.value_or(facts.defaultAudio);
    if (stream < 0 || stream >= facts.audio.size()) {
        return sound;
    }
    const Opener opener(reader, source, stream, cancel);
    using Sound = KxOutputFormat::Sound;
    if (format.sound != Sound::Encoded && !format.loudnessLufs) {
        KxResult<std::unique_ptr<KxSoundCopier>> copier = opener.OpenCopier();
        if (copier && (format.sound == Sound::Copied || (*copier)->Packets().PlaysEverywhere())) {
            sound.copied = &(*copier)->Packets();
            sound.feed = std::move(*copier);
            return sound;
        }
        if (format.sound == Sound::Copied) {
            sound.warnings += Texts::tr("The sound is encoded again: %1.").arg(copier.Message());
        }
    }
    sound.format = SoundFormat(facts.audio.at(stream));
    std::unique_ptr<KxLoudnessFilter> filter;
    if (format.loudnessLufs) {
        const KxVideoFacts& video = *facts.video;
        const qint64 endUs =
            KxFrameTime::ToMicroseconds(video.frameCount, video.frameRate, KxFrameTime::Rounding::Down);
        filter = LoudnessFilter(opener, *format.loudnessLufs, endUs, sound);
    }
    KxResult<Reader> opened = opener.Open(sound.format);
    if (opened) {
        sound.feed = std::make_unique<KxAudioInterleaver>(std::move(*opened), sound.format, std::move(filter));
    } else {
        sound.warnings += Texts::tr("The sound is left out. %1").arg(opened.Message());
    }
    return sound;
}
