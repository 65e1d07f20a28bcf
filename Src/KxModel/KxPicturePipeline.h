#pragma once

#include <KxCore/KxExport.h>
#include <KxCore/KxResult.h>

#include <QImage>

#include <functional>

/// Runs a producer of pictures on the calling thread and a consumer on a thread of its own, with a short queue between
/// the two, so that memory does not grow with their number. No exception of either leaves it.
namespace KxPicturePipeline
{
struct Picture {
    qint64 frame = 0;
    QImage image;
};
/// Waits while the queue is full. False once the consumer has failed: nothing more is needed.
using Put = std::function<bool(Picture)>;

/// Returns when the producer has returned and every picture has been consumed, or once one of the two has thrown; then
/// with the error message.
KXMODEL_API KxError Run(const std::function<void(const Put& put)>& produce,
                        const std::function<void(const Picture& picture)>& consume);
} // namespace KxPicturePipeline
