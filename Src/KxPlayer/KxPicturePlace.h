#pragma once

#include <KxCore/KxExport.h>

#include <QRect>
#include <QSizeF>

/// Where pictures stand inside an area. Pure; any thread.
namespace KxPicturePlace
{

/// The largest rectangle of the shape of `shape`, centred in `area`; rounded down, at least one pixel each way. The
/// whole area where it or the shape is empty.
KXPLAYER_API QRect Fit(const QRect& area, const QSizeF& shape);

/// The place of a picture of that shape inside a player of that size: fitted into the largest 16:9 frame of the player,
/// because the crop overlay that lies over the player measures its picture so. An empty shape takes the whole frame.
KXPLAYER_API QRect In(const QSize& player, const QSizeF& shape);

} // namespace KxPicturePlace
