#pragma once

#include <KxModel/IKxAutoReframeResult.h>

#include <KxCore/KxCancelToken.h>
#include <KxCore/KxResult.h>

#include <QImage>
#include <QList>

/// A picture of a whole video: frames spread evenly over it, with what the crop leaves out dimmed and the crop
/// outlined. Under each frame a bar shows where in the video it stands.
namespace ContactSheet
{
/// Blocks while it reads the frames. `crops` holds one entry a frame.
KxResult<QImage> Draw(const QString& videoPath, const QList<IKxAutoReframeResult>& crops, const KxCancelToken& cancel);
} // namespace ContactSheet
