#pragma once

#include <KxModel/IKxAutoReframeResult.h>

#include <KxCore/KxCancelToken.h>
#include <KxCore/KxResult.h>

#include <QImage>
#include <QList>

/// A picture of a whole video: frames at equal distances, with the crop outlined and its surroundings dimmed. A bar
/// under each frame shows its position in the video.
namespace ContactSheet
{
/// Blocks while it reads the frames. `crops` holds one entry a frame.
KxResult<QImage> Draw(const QString& videoPath, const QList<IKxAutoReframeResult>& crops, const KxCancelToken& cancel);
} // namespace ContactSheet
