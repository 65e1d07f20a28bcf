#pragma once

#include <KxEditList/KxCroppedClip.h>

#include <cmath>

namespace CroppedClips
{

/// 1920 x 1080, 29.97 pictures a second, 9:16: two shots, the first pans evenly and then slows down, the second is
/// still. The exact width of the crop is 607.5 pixels, that of the output 608.
inline KxCroppedClip Pan()
{
    KxCroppedClip clip;
    clip.path = QStringLiteral("/videos/one & two.mp4");
    clip.size = QSize(1920, 1080);
    clip.frameRate = {30000, 1001};
    clip.hasSound = true;
    clip.outputSize = QSize(608, 1080);
    constexpr int frames = 200;
    constexpr int cut = 150;
    for (int frame = 0; frame < frames; ++frame) {
        double left = 0.1;
        if (frame < cut) {
            left = frame < 60 ? 0.005 * frame : 0.3 + 0.05 * (1.0 - std::exp(-(frame - 60) / 20.0));
        }
        clip.crops.emplace_back(left, 0.0, 607.5 / 1920.0, 1.0);
    }
    clip.shotStarts = {0, cut};
    return clip;
}

} // namespace CroppedClips
