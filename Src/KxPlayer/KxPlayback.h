#pragma once

#include <KxPlayer/KxPlaySource.h>
#include <KxPlayer/KxPlayerEngine.h>
#include <KxPlayer/KxSoundPlayer.h>

#include <QObject>
#include <QTimer>

#include <atomic>

/// The state of one player: the frame that is shown, the frame that is wanted, and whether it plays. Gives orders to
/// the engine, takes its pictures when they are due, and runs clock and sound. User-interface thread only.
///
/// 1. A seek stops the clock. It runs again once the wanted picture is shown and enough others are ready.
/// 2. A picture that is late by one frame is still shown, and the next ones follow in quick succession until the delay
///    is made up for. Later pictures are dropped and counted. If nothing was shown for a while, one of them is shown,
///    so that a slow machine still shows something. The last frame is always shown.
/// 3. The last frame is shown for its full duration, then playback stops.
/// 4. If the wanted frame cannot be shown, playback pauses, and an error message takes the place of the picture until
///    another picture is shown. No picture of an earlier frame remains.
class KXPLAYER_API KxPlayback : public QObject
{
    Q_OBJECT
public:
    struct Options {
        /// Empty: steady time.
        KxPlayerClock::TimeSource time;
        /// Empty: plays without sound.
        KxSoundDevice::Factory sound;
    };

    explicit KxPlayback(Options options, QObject* parent = nullptr);
    ~KxPlayback() override;

    enum class After { Pause, GoOn };
    enum class Position { Start, Keep };
    /// Null closes.
    void Open(std::shared_ptr<const KxPlaySource> source, After after, Position position);
    void Play();
    void Pause();
    /// Pauses and seeks to frame 0.
    void Stop();
    /// Limited to the frames of the source.
    void Seek(int frame);
    /// Pauses and seeks relative to TargetFrame().
    void Step(int frames);
    /// Sets the player's size in device pixels. Unless it plays, the current picture is made again.
    void SetArea(const QSize& area);

    bool IsPlaying() const { return m_isPlaying; }
    const std::shared_ptr<const KxPlaySource>& Source() const { return m_source; }
    /// The picture to paint now.
    const std::optional<KxPlayerPicture>& Picture() const { return m_picture; }
    /// The error message to paint in place of a picture: the frame that was wanted last cannot be shown.
    const std::optional<QString>& Failure() const { return m_failure; }
    /// The frame that is shown. Without a picture, the wanted frame or the one that cannot be shown; otherwise 0.
    int CurrentFrame() const { return m_picture ? m_picture->frame : m_wanted.value_or(m_failedFrame); }
    /// The frame that is wanted, otherwise the current one.
    int TargetFrame() const { return m_wanted.value_or(CurrentFrame()); }
    /// Frames that were skipped while playing, since the source was opened.
    int DroppedFrames() const { return m_dropped; }

Q_SIGNALS:
    /// Another picture, an error message, or neither is to be painted.
    void sigPictureChanged();
    void sigFrameChanged(int frame);
    void sigPlayingChanged(bool playing);
    void sigReachedEnd();
    void sigFailed(const QString& message);

private:
    void PostLook();
    void Look();
    /// While the clock runs, a failure waits until the time of the frame that is shown is over.
    bool IsFailureDue() const;
    void TakeWanted();
    void RunClock();
    void ShowDue();
    /// When `frame` is shown: at its time, but not so soon after the previous picture that nobody could see that one.
    qint64 ShowTimeUs(int frame) const;
    bool IsWorthShowing(const KxPlayerPicture& picture, int due, qint64 nowUs) const;
    void WakeAt(qint64 timeUs, qint64 nowUs);
    void WakeForNext(qint64 nowUs);
    void StopClock();
    void SetPlaying(bool playing);
    void Halt();
    void ReachEnd();
    void Fail(const QString& message);
    void SetPicture(KxPlayerPicture picture);

    KxPlayerClock m_clock;
    KxSoundPlayer m_sound;
    QTimer m_wake;
    std::atomic_bool m_isLookPosted{false};

    std::shared_ptr<const KxPlaySource> m_source;
    std::optional<KxPlayerPicture> m_picture;
    std::optional<int> m_wanted;
    std::optional<QString> m_failure;
    int m_failedFrame = 0;
    QSize m_area{1, 1};
    bool m_isPlaying = false;
    int m_dropped = 0;
    qint64 m_shownUs = 0;

    std::unique_ptr<KxPlayerEngine> m_engine;
};
