#include <KxPlayer/KxQtSoundDevice.h>

#include <QAudioDeviceInfo>
#include <QAudioFormat>

#include <algorithm>
#include <cmath>

namespace
{

constexpr int BytesPerFrame = KxSoundDevice::Channels * static_cast<int>(sizeof(qint16));
constexpr int BufferMs = 200;

QAudioFormat Format()
{
    QAudioFormat format;
    format.setSampleRate(KxSoundDevice::SampleRateHz);
    format.setChannelCount(KxSoundDevice::Channels);
    format.setSampleSize(16);
    format.setCodec(QStringLiteral("audio/pcm"));
    format.setByteOrder(QSysInfo::ByteOrder == QSysInfo::LittleEndian ? QAudioFormat::LittleEndian
                                                                      : QAudioFormat::BigEndian);
    format.setSampleType(QAudioFormat::SignedInt);
    return format;
}

} // namespace

std::unique_ptr<KxSoundDevice> KxQtSoundDevice::Open()
{
    const QAudioDeviceInfo device = QAudioDeviceInfo::defaultOutputDevice();
    const QAudioFormat format = Format();
    if (device.isNull() || !device.isFormatSupported(format)) {
        return nullptr;
    }
    return std::unique_ptr<KxSoundDevice>(new KxQtSoundDevice(device, format));
}

KxQtSoundDevice::KxQtSoundDevice(const QAudioDeviceInfo& device, const QAudioFormat& format)
    : m_output(device, format)
{
    m_output.setBufferSize(SampleRateHz * BytesPerFrame * BufferMs / 1000);
}

KxQtSoundDevice::~KxQtSoundDevice() = default;

bool KxQtSoundDevice::Start()
{
    m_sink = m_output.start();
    return m_sink != nullptr && m_output.error() == QAudio::NoError;
}

void KxQtSoundDevice::Stop()
{
    m_output.reset();
    m_output.stop();
}

int KxQtSoundDevice::FreeFrames() const
{
    return m_output.bytesFree() / BytesPerFrame;
}

int KxQtSoundDevice::WaitingFrames() const
{
    return std::max(0, m_output.bufferSize() - m_output.bytesFree()) / BytesPerFrame;
}

int KxQtSoundDevice::Write(const float* samples, int frames)
{
    if (m_sink == nullptr) {
        return 0;
    }
    m_samples.resize(static_cast<size_t>(frames) * Channels);
    std::transform(samples, samples + m_samples.size(), m_samples.begin(), [](float sample) {
        return static_cast<qint16>(std::lround(std::clamp(sample, -1.0F, 1.0F) * 32767.0F));
    });
    const qint64 bytes = m_sink->write(reinterpret_cast<const char*>(m_samples.data()), qint64{frames} * BytesPerFrame);
    return static_cast<int>(std::max<qint64>(bytes, 0) / BytesPerFrame);
}
