#pragma once

#include <KxPlayer/KxPlaySource.h>

#include <KxModel/IKxTimeline.h>

#include <QRectF>
#include <QString>

#include <memory>

/// Clips whose pictures show their frame numbers, and timelines over them. Each clip is made once per process and
/// removed at its end.
namespace PlayerClip
{

constexpr int Frames = 60;
constexpr int Rate = 25;
/// The rectangle of the number at `frame` of the moving clip, in fractions of the picture. The rest is grey.
QRectF NumberAt(int frame);

/// 60 pictures, 25 a second, a key frame every 12, 160x96, no sound.
QString Numbered();
/// The same with its number in a part of the picture that moves from the left to the right; 320x180.
QString Moving();
/// 60 numbered pictures and sound of the same length: a sine of 440 Hz, uncompressed.
QString WithSound();
/// 300 numbered pictures and one key frame.
QString OneKeyFrame();
/// A file with the name of a clip that contains no video.
QString Broken();
/// The first half of the bytes of Numbered(); the index still lists all pictures.
QString Truncated();

struct Release {
    void operator()(IKxTimeline* timeline) const { IKxTimeline::releaseInstance(timeline); }
};
using Timeline = std::unique_ptr<IKxTimeline, Release>;

/// Null, and a failed test, if the file cannot be opened.
Timeline Open(const QString& path);
/// Moving() with keyframes that follow the number.
Timeline OpenMoving();
/// The source of Open(path).
std::shared_ptr<const KxPlaySource> Source(const QString& path);

} // namespace PlayerClip
