#pragma once

#include <QPointF>
#include <QRectF>
#include <QString>

/// What a person points at in a video.
namespace KxPointedPicture
{
/// The box of what is at `point` in frame `frame` of the file `path`, fractions of the picture; empty if the frame
/// cannot be read. Blocks.
QRectF BoxAt(const QString& path, qint64 frame, const QPointF& point);
} // namespace KxPointedPicture
