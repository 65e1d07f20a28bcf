#include <KxPlayer/KxSoundPlayer.h>

#include <KxPlayer/KxPlaySource.h>

KxSoundPlayer::KxSoundPlayer(KxPlayerClock& clock, KxSoundDevice::Factory device)
    : m_feeder(new KxSoundFeeder(clock, std::move(device)))
{
    m_thread.setObjectName(QStringLiteral("KxSoundPlayer"));
    m_feeder->moveToThread(&m_thread);
    QObject::connect(&m_thread, &QThread::finished, m_feeder, &QObject::deleteLater);
}

KxSoundPlayer::~KxSoundPlayer()
{
    m_cancel.Cancel();
    if (m_thread.isRunning()) {
        m_thread.quit();
        m_thread.wait();
    } else {
        delete m_feeder;
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
    KxSoundFeeder* const feeder = m_feeder;
    QMetaObject::invokeMethod(
        feeder, [feeder, source, run, cancel = m_cancel] { feeder->Start(source, run, cancel); }, Qt::QueuedConnection);
}

void KxSoundPlayer::Stop()
{
    if (m_thread.isRunning()) {
        QMetaObject::invokeMethod(m_feeder, &KxSoundFeeder::Stop, Qt::QueuedConnection);
    }
}

void KxSoundPlayer::Close()
{
    m_cancel.Cancel();
    m_cancel = KxCancelToken();
    if (m_thread.isRunning()) {
        QMetaObject::invokeMethod(m_feeder, &KxSoundFeeder::Close, Qt::QueuedConnection);
    }
}
