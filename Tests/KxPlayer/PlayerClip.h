#pragma once

#include <KxPlayer/KxPlaySource.h>

#include <KxModel/IKxTimeline.h>

#include <QRectF>
#include <QString>

#include <memory>

/// Clips that carry their frame numbers, and timelines over them, for the tests of the player. Each clip is made once a
/// process and goes away with it.
namespace PlayerClip
{

constexpr int Frames = 60;
constexpr int Rate = 25;
/// Of the cropped clip: where the number stands at `frame`, fractions of the picture; all around it is grey.
QRectF NumberAt(int frame);

/// 60 pictures, 25 a second, a key frame every 12, 160x96, no sound.
QString Numbered();
/// The same with its number in a part of the picture that moves from the left to the right; 320x180.
QString Moving();
/// 60 numbered pictures and sound that lasts as long: a sine of 440 Hz, uncompressed.
QString WithSound();
/// 300 numbered pictures and one key frame.
QString OneKeyFrame();
/// A file of a name that a clip can have, without a clip in it.
QString Broken();
/// A copy of the first half of Numbered's bytes, whose index still tells of all of them.
QString Truncated();

struct Release {
    void operator()(IKxTimeline* timeline) const { IKxTimeline::releaseInstance(timeline); }
};
using Timeline = std::unique_ptr<IKxTimeline, Release>;

/// Null, and a failed test, where the file cannot be opened.
Timeline Open(const QString& path);
/// With the keyframes that follow the number.
Timeline OpenMoving();
/// What Open(path) plays.
std::shared_ptr<const KxPlaySource> Source(const QString& path);

} // namespace PlayerClip
