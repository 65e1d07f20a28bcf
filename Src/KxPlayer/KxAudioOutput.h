#pragma once

#include <KxMedia/Read/KxAudioReader.h>
#include <KxPlayer/KxPlayerClock.h>
#include <KxPlayer/KxSoundDevice.h>

#include <QObject>
#include <QTimer>

struct KxPlaySource;

/// Keeps a sound device supplied with the sound of a source and reports to the clock what was heard. If the two are far
/// apart, because the device began late or stopped for a moment, the sound skips to the clock's time: pictures never
/// wait for it. Lives on the sound thread. Without a device, an audio stream or a readable file it does nothing, and
/// the clock runs by itself; the same after an exception, which is logged.
class KXPLAYER_API KxAudioOutput : public QObject
{
    Q_OBJECT
public:
    /// `device` is called on the sound thread, at the first Start. The clock outlives the output.
    KxAudioOutput(KxPlayerClock& clock, KxSoundDevice::Factory device);
    ~KxAudioOutput() override;

    /// Plays the sound of the clock's time until `run` ends. `fileClock` is that of the source's pictures; `cancel`
    /// belongs to the source.
    void Start(const std::shared_ptr<const KxPlaySource>& source, const KxMediaClock& fileClock, quint64 run,
               const KxCancelToken& cancel);
    void Stop();
    /// Closes the file.
    void Close();

private:
    void GoWithoutSoundOnException(const std::function<void()>& work);
    void Begin(quint64 run);
    bool Prepare(const std::shared_ptr<const KxPlaySource>& source, const KxMediaClock& fileClock,
                 const KxCancelToken& cancel);
    void Feed();
    /// False at the end of the sound.
    bool Refill();
    void CorrectClock();
    void SkipTo(qint64 clockUs);

    KxPlayerClock& m_clock;
    KxSoundDevice::Factory m_makeDevice;
    std::unique_ptr<KxSoundDevice> m_device;
    std::shared_ptr<const KxPlaySource> m_source;
    std::unique_ptr<KxAudioReader> m_reader;
    QTimer m_timer;

    bool m_isStarted = false;
    quint64 m_run = 0;
    qint64 m_startUs = 0;
    qint64 m_writtenFrames = 0;
    qint64 m_heardFrames = 0;
    /// What was written before the last skip does not count.
    qint64 m_skippedAtFrames = 0;
    KxAudioBlock m_block;
    int m_usedFrames = 0;
    bool m_hasEnded = false;
};
