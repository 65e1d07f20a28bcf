#pragma once

#include <KxCore/KxCancelToken.h>
#include <KxCore/KxThread.h>
#include <KxPlayer/KxAudioOutput.h>

class QEventLoop;

/// Plays the sound of a source beside its pictures, on a thread of its own whose event loop the sound device needs; the
/// thread begins with the first sound. User-interface thread. Only the destructor waits for the thread; it cancels
/// first.
class KXPLAYER_API KxSoundPlayer
{
public:
    KxSoundPlayer(KxPlayerClock& clock, KxSoundDevice::Factory device);
    ~KxSoundPlayer();

    /// Plays along with the clock's run `run`. `fileClock` is that of the source's pictures. Nothing happens for a
    /// source without sound.
    void Start(const std::shared_ptr<const KxPlaySource>& source, const KxMediaClock& fileClock, quint64 run);
    void Stop();
    /// Closes the file.
    void Close();

private:
    /// What lives on the sound thread while that runs; null before the first sound.
    struct OnThread {
        KxAudioOutput* output = nullptr;
        QEventLoop* loop = nullptr;
    };

    OnThread BeginThread();

    KxPlayerClock& m_clock;
    const KxSoundDevice::Factory m_makeDevice;
    KxCancelToken m_cancel;
    OnThread m_onThread;
    KxThread m_thread;
};
