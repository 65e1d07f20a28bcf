#pragma once

#include <KxCore/KxExport.h>

#include <QRect>

/// The part of a player that shows pictures, as its host sees it.
class KXPLAYER_API IKxMediaPlayer
{
public:
    virtual ~IKxMediaPlayer();

    /// The rectangle of the picture, or of the next one, inside the player widget: fitted into the largest 16:9 frame
    /// of the widget. While nothing is open, that frame itself. Its size is in device pixels and its position in points
    /// of the widget, because a window over the picture is placed in points and sized from device pixels.
    virtual QRect videoRect() const = 0;
};
