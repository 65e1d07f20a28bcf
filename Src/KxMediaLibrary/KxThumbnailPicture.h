#pragma once

#include <KxCore/KxCancelToken.h>
#include <KxCore/KxResult.h>

#include <QImage>
#include <QSize>

namespace KxThumbnailPicture
{
/// A picture of the video file `path`, as large as fits into `roomPx` with its shape kept, never larger than the video.
/// It comes from some way into the video, where a fade from black is over, and from farther in where that picture is
/// of one colour. The error message names the file and the reason. Blocks; any thread.
KxResult<QImage> Make(const QString& path, const QSize& roomPx, const KxCancelToken& cancel);
} // namespace KxThumbnailPicture
