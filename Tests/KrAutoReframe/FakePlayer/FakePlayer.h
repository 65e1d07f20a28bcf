#pragma once

#include <KxPlayer/KxMediaPlayerPresenter.h>

#include <QList>
#include <QRect>
#include <QStringList>

class IKxTimeline;

/// A player that decodes nothing: its state is scripted and every call is recorded. It replaces the player library.
namespace FakePlayer
{

struct Script {
    bool isPlaying = false;
    int currentFrame = 0;
    float frameRate = 25.0f;
    QRect videoRect{0, 0, 640, 360};
    /// Every call in order, with its arguments.
    QStringList calls;
    /// The timelines that the "open" calls were given, in order.
    QList<IKxTimeline*> opened;
};

/// The state of `presenter` and the calls that it received; valid as long as the presenter. Neither playing nor seeking
/// changes the current frame.
Script& ScriptOf(const KxMediaPlayerPresenter& presenter);

/// Puts the picture of `frame` on the screen and reports it.
void ShowFrame(KxMediaPlayerPresenter& presenter, int frame);
/// Starts or ends playing and reports a change.
void SetPlaying(KxMediaPlayerPresenter& presenter, bool isPlaying);
/// Ends playing as the end of the timeline does.
void ReachEnd(KxMediaPlayerPresenter& presenter);

} // namespace FakePlayer
