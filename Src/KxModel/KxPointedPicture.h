#pragma once

#include <KxModel/IKxAutoReframeChoices.h>

#include <KxCore/KxExport.h>

#include <QImage>
#include <QPointF>
#include <QRectF>
#include <QString>

struct KxSubjectRecord;

/// What a person points at in a video.
namespace KxPointedPicture
{
/// What is at `point` in frame `frame` of the file `path`; places are fractions of the picture: what the object
/// detector saw there, otherwise what the picture shows. `record` is of the same file, null without one. Blocks.
KXMODEL_API KxAutoReframeGuess GuessAt(const QString& path, qint64 frame, const QPointF& point,
                                       const KxSubjectRecord* record);

/// What the analysis saw around a place.
enum class Seen { Unknown, Nothing, Something };

/// The same in a picture of the format BGR888. Where the analysis saw nothing, background is
/// 1. what is plain;
/// 2. a pattern that goes on around the box;
/// 3. a region that an edge of the picture cuts off, as floors, curtains and skies are.
/// Without an analysis both of the latter have to be clearer: a region is cut off by two edges.
KXMODEL_API KxAutoReframeGuess GuessIn(const QImage& picture, const QPointF& point, Seen seen);

/// Whether nothing in `box` could be distinguished from its surroundings in another picture: it has hardly any edges. A
/// wall with a pattern has edges.
KXMODEL_API bool IsPlain(const QImage& picture, const QRectF& box);

/// How much of the colours in `box`, and in its middle, are those around it: 0 to 1, the smaller of both. A pattern
/// that goes on around the box has much of them, and so has a thing of the colours of its surroundings. 0 where there
/// is nothing around it.
KXMODEL_API double SharedColours(const QImage& picture, const QRectF& box);
} // namespace KxPointedPicture
