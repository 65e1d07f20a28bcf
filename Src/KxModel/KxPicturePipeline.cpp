#include <KxModel/KxPicturePipeline.h>

#include <KxCore/KxBoundedQueue.h>
#include <KxCore/KxThread.h>

KxError KxPicturePipeline::Run(const std::function<void(const Put& put)>& produce,
                               const std::function<void(const Picture& picture)>& consume,
                               const std::function<void()>& begin)
{
    KxBoundedQueue<Picture> queue(MostQueued);
    KxError consumerFailure;
    KxThread thread([&] {
        consumerFailure = KxCallGuarded([&] {
            if (begin) {
                begin();
            }
            while (const std::optional<Picture> picture = queue.Pop()) {
                consume(*picture);
            }
        });
        queue.Close();
    });
    const KxError producerFailure =
        KxCallGuarded([&] { produce([&queue](Picture picture) { return queue.Push(std::move(picture)); }); });
    queue.Close();
    thread.Join();
    return producerFailure ? producerFailure : consumerFailure;
}
