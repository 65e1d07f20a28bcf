#pragma once

#include <KxCore/KxExport.h>

#include <QRect>
#include <QSizeF>

/// The rectangle of a picture inside an area. Pure; any thread.
namespace KxPicturePlace
{

/// The largest rectangle with the aspect ratio of `shape`, centred in `area`. Its size is rounded down and at least one
/// pixel each way. The whole area if the area or the shape is empty.
KXPLAYER_API QRect Fit(const QRect& area, const QSizeF& shape);

/// The rectangle of a picture with the aspect ratio of `shape` in a player of size `player`: it is fitted into the
/// largest 16:9 frame inside the player, because the crop overlay computes its picture like that. An empty shape fills
/// the frame.
KXPLAYER_API QRect In(const QSize& player, const QSizeF& shape);

} // namespace KxPicturePlace
