#pragma once

#include <KxCore/KxExport.h>

#include <QRect>

/// The part of a player that shows pictures.
class KXPLAYER_API IKxMediaPlayer
{
public:
    virtual ~IKxMediaPlayer();

    /// Where the picture stands inside the player widget, in device pixels; the whole widget's area fitted to 16:9 while nothing
    /// is open.
    virtual QRect videoRect() const = 0;
};
