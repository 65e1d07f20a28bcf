#pragma once

#include <KxCore/KxCancelToken.h>
#include <KxPlayer/KxAudioOutput.h>

#include <QThread>

/// Plays the sound of a source beside its pictures, on a thread of its own whose event loop the sound device needs; the
/// thread begins with the first sound. User-interface thread; nothing here waits but the destructor, which cancels
/// first.
class KXPLAYER_API KxSoundPlayer
{
public:
    KxSoundPlayer(KxPlayerClock& clock, KxSoundDevice::Factory device);
    ~KxSoundPlayer();

    /// Plays along with the clock's run `run`. Nothing happens for a source without sound.
    void Start(const std::shared_ptr<const KxPlaySource>& source, quint64 run);
    void Stop();
    /// Gives the file back.
    void Close();

private:
    QThread m_thread;
    KxAudioOutput* m_output;
    KxCancelToken m_cancel;
};
