#pragma once

#include <KxPlayer/KxMediaPlayerPresenter.h>

#include <QList>
#include <QRect>
#include <QStringList>

class IKxTimeline;

/// A player that decodes nothing: what it tells is scripted, what is asked of it is recorded. It takes the place of the
/// player library.
namespace FakePlayer
{

struct Script {
    bool isPlaying = false;
    int currentFrame = 0;
    float frameRate = 25.0f;
    QRect videoRect{0, 0, 640, 360};
    /// Every operation that was called, in order, with its arguments.
    QStringList calls;
    /// The timelines of the calls "open", in order.
    QList<IKxTimeline*> opened;
};

/// What `presenter` tells and was asked; lives as long as it. Neither playing nor seeking changes the current frame.
Script& ScriptOf(const KxMediaPlayerPresenter& presenter);

/// The picture of `frame` is on the screen from now on.
void ShowFrame(KxMediaPlayerPresenter& presenter, int frame);

} // namespace FakePlayer
