#include <KxPlayer/KxSoundPlayer.h>

#include <KxPlayer/KxPlaySource.h>

KxSoundPlayer::KxSoundPlayer(KxPlayerClock& clock, KxSoundDevice::Factory device)
    : m_output(new KxAudioOutput(clock, std::move(device)))
{
    m_thread.setObjectName(QStringLiteral("KxSoundPlayer"));
    m_output->moveToThread(&m_thread);
    QObject::connect(&m_thread, &QThread::finished, m_output, &QObject::deleteLater);
}

KxSoundPlayer::~KxSoundPlayer()
{
    m_cancel.Cancel();
    if (m_thread.isRunning()) {
        m_thread.quit();
        m_thread.wait();
    } else {
        delete m_output;
    }
}

void KxSoundPlayer::Start(const std::shared_ptr<const KxPlaySource>& source, quint64 run)
{
    if (!source->audioStream) {
        return;
    }
    if (!m_thread.isRunning()) {
        m_thread.start();
    }
    KxAudioOutput* const output = m_output;
    QMetaObject::invokeMethod(
        output, [output, source, run, cancel = m_cancel] { output->Start(source, run, cancel); }, Qt::QueuedConnection);
}

void KxSoundPlayer::Stop()
{
    if (m_thread.isRunning()) {
        QMetaObject::invokeMethod(m_output, &KxAudioOutput::Stop, Qt::QueuedConnection);
    }
}

void KxSoundPlayer::Close()
{
    m_cancel.Cancel();
    m_cancel = KxCancelToken();
    if (m_thread.isRunning()) {
        QMetaObject::invokeMethod(m_output, &KxAudioOutput::Close, Qt::QueuedConnection);
    }
}
