#include <KxModel/KxSoundReading.h>

#include <KxCore/KxFrameTime.h>
#include <KxCore/KxLog.h>
#include <KxMedia/Read/KxAudioReader.h>
#include <KxSubject/KxSubjectRecord.h>
#include <KxSubject/Signals/KxSoundMeter.h>

#include <algorithm>

namespace
{

/// From the sample `from` up to, but without, `to`; empty if nothing could be read.
KxSoundSpan Measured(KxAudioReader& reader, qint64 from, qint64 to, qint64 firstLevel, const KxCancelToken& cancel)
{
    KxSoundMeter meter(firstLevel);
    qint64 next = from;
    KxAudioBlock block;
    while (next < to && !cancel.IsCancelled() && reader.Next(block) == KxReadStatus::Delivered) {
        const qint64 first = KxFrameTime::FromMicroseconds(block.timeUs, {KxSoundMeter::SamplesPerSecond, 1},
                                                           KxFrameTime::Rounding::Nearest);
        const auto count = static_cast<qint64>(block.samples.size());
        if (first > next) {
            // Before the first sound.
            const std::vector<float> silence(static_cast<std::size_t>(std::min(first, to) - next), 0.0F);
            meter.Add(silence.data(), silence.size());
            next += static_cast<qint64>(silence.size());
        }
        const qint64 skipped = std::clamp<qint64>(next - first, 0, count);
        const qint64 used = std::clamp<qint64>(to - next, 0, count - skipped);
        meter.Add(block.samples.data() + skipped, static_cast<std::size_t>(used));
        next += used;
    }
    return meter.Finish();
}

} // namespace

void KxSoundReading::AddTo(KxSubjectRecord& record, const QString& path, int track, const KxMediaClock& clock,
                           const KxCancelToken& cancel)
{
    const auto spans = KxSoundMeter::SpansOf(record);
    if (spans.empty() || track < 0) {
        return;
    }
    const KxResult<std::unique_ptr<KxAudioReader>> reader =
        KxAudioReader::Open(path, track, {KxSoundMeter::SamplesPerSecond, 1}, clock, cancel);
    if (!reader) {
        KX_LOG_WARNING(reader.Message());
        return;
    }
    constexpr qint64 samplesPerLevel = KxSoundMeter::SamplesPerSecond / KxSoundSpan::LevelsPerSecond;
    for (const auto& [first, last] : spans) {
        if (first > 0) {
            (*reader)->Seek(
                KxFrameTime::ToMicroseconds(first, {KxSoundSpan::LevelsPerSecond, 1}, KxFrameTime::Rounding::Down));
        }
        KxSoundSpan span = Measured(**reader, first * samplesPerLevel, (last + 1) * samplesPerLevel, first, cancel);
        if (!span.levels.empty()) {
            record.sound.push_back(std::move(span));
        }
    }
}
