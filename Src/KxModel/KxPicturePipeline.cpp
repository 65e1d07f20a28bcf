#include <KxModel/KxPicturePipeline.h>

#include <KxCore/KxBoundedQueue.h>
#include <KxCore/KxThread.h>

namespace
{

constexpr std::size_t MostQueued = 32;

} // namespace

KxError KxPicturePipeline::Run(const std::function<void(const Put& put)>& produce,
                               const std::function<void(const Picture& picture)>& consume)
{
    KxBoundedQueue<Picture> queue(MostQueued);
    KxError consumerFailure;
    KxThread consumer([&] {
        consumerFailure = KxCallGuarded([&] {
            while (const std::optional<Picture> picture = queue.Pop()) {
                consume(*picture);
            }
        });
        queue.Close();
    });
    const KxError producerFailure =
        KxCallGuarded([&] { produce([&queue](Picture picture) { return queue.Push(std::move(picture)); }); });
    queue.Close();
    consumer.Join();
    return producerFailure ? producerFailure : consumerFailure;
}
