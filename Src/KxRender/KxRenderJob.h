#pragma once

#include <KxCore/KxThread.h>
#include <KxRender/KxRenderer.h>

/// A rendering on a thread of its own, which starts with the job and runs once. Destroying the job cancels what still
/// runs and waits for it, so callbacks may refer to whatever lives as long as the job.
class KXRENDER_API KxRenderJob
{
public:
    /// Both are called on the job's thread, may be empty, and must not destroy the job.
    struct Callbacks {
        KxRenderer::Progress progress;
        /// Exactly once, as the last call.
        std::function<void(const KxRenderResult& result)> finished;
    };

    KxRenderJob(KxRenderSource source, KxRenderSettings settings, Callbacks callbacks);
    ~KxRenderJob();
    KxRenderJob(const KxRenderJob&) = delete;
    KxRenderJob& operator=(const KxRenderJob&) = delete;

    /// Returns at once; the end is told as ever, with the outcome Cancelled unless the job was done already. Any
    /// thread.
    void Cancel();

private:
    KxCancelToken m_cancel;
    KxThread m_thread;
};
