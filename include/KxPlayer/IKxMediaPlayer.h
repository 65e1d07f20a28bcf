#pragma once

#include <KxCore/KxExport.h>

#include <QRect>

/// The part of a player that shows pictures.
class KXPLAYER_API IKxMediaPlayer
{
public:
    virtual ~IKxMediaPlayer();

    /// Where the picture stands, or is going to, inside the player widget: fitted into the largest 16:9 frame of the
    /// widget. That frame itself while nothing is open. Its size is in device pixels, its position in the widget's own
    /// points: what lies over the picture in a window of its own is placed in points and sized from device pixels.
    virtual QRect videoRect() const = 0;
};
