#pragma once

#include <KxCore/KxThread.h>
#include <KxRender/KxRenderer.h>

/// One rendering on a thread of its own, which the constructor starts. The destructor cancels a rendering that is still
/// running and waits for it, so callbacks may refer to objects that live as long as the job.
class KXRENDER_API KxRenderJob
{
public:
    /// Both are called on the job's thread, may be empty, and must not destroy the job. An exception that leaves
    /// `progress` fails the rendering; one that leaves `finished` is dropped.
    struct Callbacks {
        KxRenderer::Progress progress;
        /// Exactly once, as the last call.
        std::function<void(const KxRenderResult& result)> finished;
    };

    KxRenderJob(KxRenderSource source, KxRenderSettings settings, Callbacks callbacks);
    ~KxRenderJob();
    KxRenderJob(const KxRenderJob&) = delete;
    KxRenderJob& operator=(const KxRenderJob&) = delete;

    /// Returns at once. `finished` is called as always, with the outcome Cancelled unless the job had ended. Any
    /// thread.
    void Cancel();

private:
    KxCancelToken m_cancel;
    KxThread m_thread;
};
