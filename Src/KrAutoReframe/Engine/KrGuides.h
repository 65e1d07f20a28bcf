#pragma once

#include <QLineF>
#include <QList>
#include <QRectF>
#include <QSizeF>

/// Where the guides over a result are, which show it as its viewers will see it. Pure.
namespace KrGuides
{
/// What no player of vertical videos covers with its name, texts and buttons, in an area that shows a result. Empty for
/// results of another aspect ratio than 9:16, for which there are no such players.
QRectF SafeArea(const QRectF& result);

/// Two vertical lines and two horizontal ones, at the thirds of `result`.
QList<QLineF> Thirds(const QRectF& result);

/// The band in which the top of a head belongs: with less room the head touches the edge, with more it sinks.
QRectF Headroom(const QRectF& result);
} // namespace KrGuides
