#pragma once

#include <KxCore/KxExport.h>
#include <KxCore/KxResult.h>

#include <QImage>

#include <cstddef>
#include <functional>

/// Runs a producer of pictures on the calling thread and a consumer on a thread of its own, with a short queue between
/// the two, so that memory does not grow with their number. No exception of either leaves it.
namespace KxPicturePipeline
{
/// About 2 MB at 30 pictures a second. The consumer is late for a while at each new shot, and after a look of a
/// detector.
constexpr std::size_t MostQueued = 32;

struct Picture {
    qint64 frame = 0;
    QImage image;  ///< may be null
    QImage shot{}; ///< a small one for the shot boundaries; may be null
};
/// Waits while the queue is full. False once the consumer has failed: nothing more is needed.
using Put = std::function<bool(Picture)>;

/// Returns when the producer has returned and every picture has been consumed, or once one of the two has thrown; then
/// with the error message. `begin` is called once on the consumer's thread, while the first pictures are produced; it
/// may be empty.
KXMODEL_API KxError Run(const std::function<void(const Put& put)>& produce,
                        const std::function<void(const Picture& picture)>& consume,
                        const std::function<void()>& begin = {});
} // namespace KxPicturePipeline
