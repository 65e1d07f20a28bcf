#pragma once

#include <KxCore/KxExport.h>

#include <QRect>

/// The part of a player that shows pictures.
class KXPLAYER_API IKxMediaPlayer
{
public:
    virtual ~IKxMediaPlayer();

    /// Where the picture stands, or is going to, inside the player widget, in device pixels: fitted into the largest
    /// 16:9 frame of the widget. That frame itself while nothing is open.
    virtual QRect videoRect() const = 0;
};
