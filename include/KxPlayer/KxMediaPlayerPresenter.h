#pragma once

#include <KxCore/KxExport.h>

#include <QObject>

#include <memory>

class IKxMediaPlayer;
class IKxTimeline;

/// Plays one timeline in one player widget: decodes on a thread of its own, shows each picture at its time (with a
/// sound device, the sound is the clock), and reports the frame that is on the screen. User-interface thread only;
/// owned by its KxMediaPlayerWidget.
///
/// Seeking is exact to the frame, and the newest seek wins: no picture is ever shown under the number of another frame.
/// The timeline's crop keyframes, if any, are applied.
class KXPLAYER_API KxMediaPlayerPresenter : public QObject
{
    Q_OBJECT
public:
    ~KxMediaPlayerPresenter() override;

    bool inPlaying() const;
    /// The frame on the screen; while there is no picture, the frame that will be shown or that cannot be shown.
    int currentFrame() const;
    /// Frames of the open timeline; 0 while nothing is open.
    int frameCount() const;
    /// Frames that were skipped while playing because they were late, since the timeline was opened.
    int DroppedFrames() const;
    /// Frames a second, at least 1; 25 while nothing is open.
    float mediaFrameRate() const;
    /// Never null.
    IKxMediaPlayer* mediaPlayer() const;

    void play();
    void pause();
    /// Pauses and goes back to frame 0.
    void stop();
    /// Shows the next frame; pauses first.
    void stepForward();
    /// Shows the previous frame; pauses first.
    void stepBackward();

    /// Opens a snapshot of `timeline` (later changes of its keyframes take effect with the next call) and shows its
    /// first frame, or with `keepPosition` the current frame. Null closes. With `paused`, playback does not continue.
    /// Returns at once, without a picture; sigFrameChanged reports the new one.
    void openTimeline(IKxTimeline* timeline, bool paused, bool keepPosition);

    /// Shows `frame` (limited to the timeline); sigFrameChanged is emitted even if that frame is already shown. The
    /// other two arguments belong to the host's other players and are 0.
    void seek(int frame, int, int);

Q_SIGNALS:
    /// From now on the widget paints the picture of `frame`.
    void sigFrameChanged(int frame);
    void sigPlayingChanged(bool playing);
    /// The end of the timeline was reached while playing; playback is paused at the last frame.
    void sigReachedEnd();
    /// The wanted frame cannot be shown, and playback is paused. The widget shows `message` to the person.
    void sigFailed(const QString& message);
    /// Frame count and frame rate are now those of another timeline, or of none. Its first picture follows.
    void sigTimelineOpened();

private:
    friend class KxMediaPlayerWidget;
    class Impl;
    explicit KxMediaPlayerPresenter(QObject* parent);

    std::unique_ptr<Impl> m_impl;
};
