#pragma once

#include <KxPlayer/KxSoundDevice.h>

#include <QAudioOutput>
#include <QPointer>

#include <vector>

/// The machine's default sound device.
class KxQtSoundDevice final : public KxSoundDevice
{
public:
    /// Null if the machine has no device for playback.
    static std::unique_ptr<KxSoundDevice> Open();
    ~KxQtSoundDevice() override;

    bool Start() override;
    void Stop() override;
    int FreeFrames() const override;
    int WaitingFrames() const override;
    int Write(const float* samples, int frames) override;

private:
    KxQtSoundDevice(const QAudioDeviceInfo& device, const QAudioFormat& format);

    QAudioOutput m_output;
    QPointer<QIODevice> m_sink;
    std::vector<qint16> m_samples;
};
