#include <KxRender/KxRenderJob.h>

KxRenderJob::KxRenderJob(KxRenderSource source, KxRenderSettings settings, Callbacks callbacks)
    : m_thread([source = std::move(source), settings = std::move(settings), callbacks = std::move(callbacks),
                cancel = m_cancel] {
        const KxRenderResult result = KxRenderer::Run(source, settings, callbacks.progress, cancel);
        if (callbacks.finished) {
            callbacks.finished(result);
        }
    })
{
}

KxRenderJob::~KxRenderJob()
{
    m_cancel.Cancel();
}

void KxRenderJob::Cancel()
{
    m_cancel.Cancel();
}
