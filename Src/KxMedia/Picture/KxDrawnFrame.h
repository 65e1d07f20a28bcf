#pragma once

#include <KxMedia/Picture/KxVideoFrame.h>

#include <QImage>

/// Wraps a drawn picture as a decoded one, so that it can be cut and written: upright, with square pixels. `image` has
/// the format QImage::Format_RGB32 and is shared, not copied. Null when memory runs out. Any thread.
KXMEDIA_API KxVideoFrame KxDrawnFrame(const QImage& image, qint64 index);
