#pragma once

#include <KxCore/KxCancelToken.h>
#include <KxCore/KxResult.h>

#include <QImage>
#include <QSize>

namespace KxThumbnailPicture
{
/// A picture of the video file `path`, as large as fits into `roomPx` with its shape kept, never larger than the video.
/// It is taken at a tenth of the video, after a fade from black, and from farther in if that picture has one colour
/// only. The error message names the file and the reason. Blocks; any thread.
KxResult<QImage> Make(const QString& path, const QSize& roomPx, const KxCancelToken& cancel);
} // namespace KxThumbnailPicture
