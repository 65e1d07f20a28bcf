#include <KxPlayer/KxSoundPlayer.h>

#include <KxPlayer/KxPlaySource.h>

#include <QEventLoop>

#include <future>

KxSoundPlayer::KxSoundPlayer(KxPlayerClock& clock, KxSoundDevice::Factory device)
    : m_clock(clock)
    , m_makeDevice(std::move(device))
{
}

KxSoundPlayer::~KxSoundPlayer()
{
    m_cancel.Cancel();
    if (m_onThread.loop != nullptr) {
        QMetaObject::invokeMethod(m_onThread.loop, &QEventLoop::quit, Qt::QueuedConnection);
    }
}

KxSoundPlayer::OnThread KxSoundPlayer::BeginThread()
{
    std::promise<OnThread> begun;
    std::future<OnThread> onThread = begun.get_future();
    m_thread = KxThread([this, &begun] {
        QEventLoop loop;
        KxAudioOutput output(m_clock, m_makeDevice);
        begun.set_value({&output, &loop});
        loop.exec();
    });
    return onThread.get();
}

void KxSoundPlayer::Start(const std::shared_ptr<const KxPlaySource>& source, const KxMediaClock& fileClock, quint64 run)
{
    if (!source->audioStream) {
        return;
    }
    if (m_onThread.output == nullptr) {
        m_onThread = BeginThread();
    }
    KxAudioOutput* const output = m_onThread.output;
    QMetaObject::invokeMethod(
        output, [output, source, fileClock, run, cancel = m_cancel] { output->Start(source, fileClock, run, cancel); },
        Qt::QueuedConnection);
}

void KxSoundPlayer::Stop()
{
    if (m_onThread.output != nullptr) {
        QMetaObject::invokeMethod(m_onThread.output, &KxAudioOutput::Stop, Qt::QueuedConnection);
    }
}

void KxSoundPlayer::Close()
{
    m_cancel.Cancel();
    m_cancel = KxCancelToken();
    if (m_onThread.output != nullptr) {
        QMetaObject::invokeMethod(m_onThread.output, &KxAudioOutput::Close, Qt::QueuedConnection);
    }
}
