#include <KxPlayer/KxAudioOutput.h>

#include <KxPlayer/KxPlaySource.h>

#include <KxCore/KxFrameTime.h>
#include <KxCore/KxLog.h>
#include <KxCore/KxThread.h>

#include <algorithm>
#include <cstdlib>

namespace
{

constexpr int FeedMs = 20;
constexpr qint64 SkipFromUs = 250000;

qint64 DurationUs(qint64 frames)
{
    return KxFrameTime::ToMicroseconds(frames, {KxSoundDevice::SampleRateHz, 1}, KxFrameTime::Rounding::Down);
}

} // namespace

KxAudioOutput::KxAudioOutput(KxPlayerClock& clock, KxSoundDevice::Factory device)
    : m_clock(clock)
    , m_makeDevice(std::move(device))
    , m_timer(this)
{
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, [this] { GoWithoutSoundOnException([this] { Feed(); }); });
}

KxAudioOutput::~KxAudioOutput() = default;

bool KxAudioOutput::Prepare(const std::shared_ptr<const KxPlaySource>& source, const KxMediaClock& fileClock,
                            const KxCancelToken& cancel)
{
    if (m_makeDevice) {
        m_device = std::exchange(m_makeDevice, nullptr)();
    }
    if (!m_device || !source->audioStream) {
        return false;
    }
    if (m_source != source) {
        Close();
        m_source = source;
        auto reader = KxAudioReader::Open(source->path, *source->audioStream,
                                          {KxSoundDevice::SampleRateHz, KxSoundDevice::Channels}, fileClock, cancel);
        if (reader) {
            m_reader = std::move(*reader);
        } else if (!cancel.IsCancelled()) {
            KX_LOG_WARNING(reader.Message());
        }
    }
    return m_reader != nullptr;
}

void KxAudioOutput::GoWithoutSoundOnException(const std::function<void()>& work)
{
    if (const KxError failure = KxCallGuarded(work)) {
        KX_LOG_WARNING(QStringLiteral("Playing without sound: %1.").arg(*failure));
        m_timer.stop();
        m_isStarted = false;
        m_device.reset();
        m_reader.reset();
    }
}

void KxAudioOutput::Start(const std::shared_ptr<const KxPlaySource>& source, const KxMediaClock& fileClock, quint64 run,
                          const KxCancelToken& cancel)
{
    GoWithoutSoundOnException([&] {
        Stop();
        if (m_clock.NowUs(run) && Prepare(source, fileClock, cancel) && m_device->Start()) {
            Begin(run);
        }
    });
}

void KxAudioOutput::Begin(quint64 run)
{
    m_isStarted = true;
    // Opening took its time: what plays now is what the clock shows now.
    const std::optional<qint64> now = m_clock.NowUs(run);
    if (!now) {
        Stop();
        return;
    }
    m_run = run;
    m_startUs = *now;
    m_reader->Seek(m_startUs);
    m_block = {};
    m_usedFrames = 0;
    m_writtenFrames = 0;
    m_heardFrames = 0;
    m_skippedAtFrames = 0;
    m_hasEnded = false;
    m_timer.start(FeedMs);
    Feed();
}

void KxAudioOutput::Stop()
{
    m_timer.stop();
    if (m_isStarted) {
        m_device->Stop();
        m_isStarted = false;
    }
}

void KxAudioOutput::Close()
{
    Stop();
    m_reader.reset();
    m_source.reset();
}

bool KxAudioOutput::Refill()
{
    m_usedFrames = 0;
    do {
        m_hasEnded = m_hasEnded || m_reader->Next(m_block) != KxReadStatus::Delivered;
    } while (!m_hasEnded && m_block.samples.empty());
    return !m_hasEnded;
}

void KxAudioOutput::Feed()
{
    if (!m_clock.NowUs(m_run)) {
        Stop();
        return;
    }
    CorrectClock();
    int room = m_device->FreeFrames();
    while (room > 0) {
        int left = static_cast<int>(m_block.samples.size()) / KxSoundDevice::Channels - m_usedFrames;
        if (left <= 0) {
            if (!Refill()) {
                break;
            }
            left = static_cast<int>(m_block.samples.size()) / KxSoundDevice::Channels;
        }
        const int frames = std::min(left, room);
        const int taken = m_device->Write(
            m_block.samples.data() + static_cast<size_t>(m_usedFrames) * KxSoundDevice::Channels, frames);
        m_usedFrames += taken;
        m_writtenFrames += taken;
        room -= frames;
        if (taken < frames) {
            break;
        }
    }
}

void KxAudioOutput::CorrectClock()
{
    // Only a device that plays measures time: not one that has not played anything more, nor one that has run dry.
    const qint64 heard = m_writtenFrames - m_device->WaitingFrames();
    const std::optional<qint64> now = m_clock.NowUs(m_run);
    if (!now || heard <= std::max(m_heardFrames, m_skippedAtFrames) || heard >= m_writtenFrames) {
        return;
    }
    m_heardFrames = heard;
    const qint64 heardUs = m_startUs + DurationUs(heard);
    if (std::abs(heardUs - *now) > SkipFromUs) {
        SkipTo(*now);
    } else {
        m_clock.Correct(m_run, heardUs);
    }
}

void KxAudioOutput::SkipTo(qint64 clockUs)
{
    const qint64 nextUs = clockUs + DurationUs(m_device->WaitingFrames());
    m_reader->Seek(nextUs);
    m_block = {};
    m_usedFrames = 0;
    m_hasEnded = false;
    m_skippedAtFrames = m_writtenFrames;
    m_startUs = nextUs - DurationUs(m_writtenFrames);
}
