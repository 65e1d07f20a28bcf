#pragma once

#include <KxModel/IKxAutoReframeChoices.h>

#include <KxCore/KxExport.h>

#include <QImage>
#include <QPointF>
#include <QRectF>
#include <QString>

/// What a person points at in a video.
namespace KxPointedPicture
{
/// What is at `point` in frame `frame` of the file `path`; places are fractions of the picture. Blocks.
KxAutoReframeGuess GuessAt(const QString& path, qint64 frame, const QPointF& point);

/// Whether there is nothing in `box` that could be told from its surroundings in another picture: hardly any edges. A
/// wall with a pattern has edges.
KXMODEL_API bool IsPlain(const QImage& picture, const QRectF& box);
} // namespace KxPointedPicture
