#pragma once

#include <KxMedia/Read/KxAudioReader.h>
#include <KxPlayer/KxPlayerClock.h>
#include <KxPlayer/KxSoundDevice.h>

#include <QObject>
#include <QTimer>

struct KxPlaySource;

/// Keeps a sound device supplied with the sound of a source and tells the clock what was heard. Where the two are far
/// apart, because the device began late or stumbled, the sound skips to where the clock is: pictures never wait for it.
/// Lives on the sound thread; made there or moved there before its first use. Where anything is missing (device,
/// stream, file) it does nothing, and the clock goes its own way.
class KXPLAYER_API KxAudioOutput : public QObject
{
    Q_OBJECT
public:
    /// `device` is called on the sound thread, at the first Start. The clock outlives the output.
    KxAudioOutput(KxPlayerClock& clock, KxSoundDevice::Factory device);
    ~KxAudioOutput() override;

    /// Plays what the clock shows, as long as `run` lasts. `cancel` belongs to the source.
    void Start(const std::shared_ptr<const KxPlaySource>& source, quint64 run, const KxCancelToken& cancel);
    void Stop();
    /// Lets go of the file.
    void Close();

private:
    bool Prepare(const std::shared_ptr<const KxPlaySource>& source, const KxCancelToken& cancel);
    void Feed();
    /// False at the end of the sound.
    bool Refill();
    void TellClock();
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
