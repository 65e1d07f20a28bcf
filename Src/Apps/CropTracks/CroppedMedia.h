#pragma once

#include <KxEditList/KxCroppedClip.h>
#include <KxRender/KxRenderSource.h>

#include <KxModel/IKxAutoReframeResult.h>

#include <QList>

class KxMediaItem;

namespace CroppedMedia
{
/// `media` with its crops, as other programs need them; without shots and edits. The output has the size `outputSize`.
KxCroppedClip Clip(KxMediaItem& media, const QList<IKxAutoReframeResult>& crops, const QSize& outputSize,
                   KxRenderSource::OtherShapes otherShapes);
} // namespace CroppedMedia
