#pragma once

#include <KxCore/KxExport.h>

#include <QObject>

#include <memory>

class IKxMediaPlayer;
class IKxTimeline;

/// Plays one timeline in one player widget: decodes on a thread of its own, shows each picture at its time (sound is
/// the clock where there is a sound device), and tells the frame that is on the screen. User-interface thread only;
/// belongs to its KxMediaPlayerWidget.
///
/// Seeking is exact to the frame and the newest seek wins: no picture is ever shown under the number of another frame.
/// A timeline's crop keyframes are applied when it carries any.
class KXPLAYER_API KxMediaPlayerPresenter : public QObject
{
    Q_OBJECT
public:
    ~KxMediaPlayerPresenter() override;

    bool inPlaying() const;
    /// The frame on the screen; while no picture stands, the one that is going to.
    int currentFrame() const;
    /// Frames of the open timeline; 0 while nothing is open.
    int frameCount() const;
    /// Frames that were left out while playing because their time was over, since the timeline was opened.
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
    /// Shows the frame before; pauses first.
    void stepBackward();

    /// Opens what `timeline` shows now (a snapshot: later changes of its keyframes come with the next open) and shows
    /// its first frame, or with `keepPosition` the frame that stood before. Null closes. With `paused` playing does not
    /// go on. Returns at once, with the old picture gone; sigFrameChanged tells when the new one stands.
    void openTimeline(IKxTimeline* timeline, bool paused, bool keepPosition);

    /// Shows `frame` (limited to the timeline); sigFrameChanged comes also when that frame stands already. The two
    /// further arguments belong to the host's other players and are 0.
    void seek(int frame, int, int);

Q_SIGNALS:
    /// The picture of `frame` is what the widget paints from now on.
    void sigFrameChanged(int frame);
    void sigPlayingChanged(bool playing);
    /// The end of the timeline was reached while playing; playback is paused at the last frame.
    void sigReachedEnd();
    /// What was asked for cannot be shown; `message` is for the person. Playback is paused.
    void sigFailed(const QString& message);
    /// Frame count and frame rate are those of another timeline, or of none; its first picture follows.
    void sigTimelineOpened();

private:
    friend class KxMediaPlayerWidget;
    class Impl;
    explicit KxMediaPlayerPresenter(QObject* parent);

    std::unique_ptr<Impl> m_impl;
};
