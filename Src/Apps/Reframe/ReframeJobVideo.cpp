#include <Apps/Reframe/ReframeJob.h>

#include <Apps/CropTracks/CropRenderSettings.h>
#include <KrAutoReframe/Engine/KrAutoReframeHelper.h>
#include <KxCore/KxInterrupt.h>
#include <KxCore/KxThread.h>
#include <KxRender/KxRenderer.h>

#include <QEventLoop>

ReframeJob::Ended ReframeJob::WriteVideo()
{
    if (!m_options.writesVideo) {
        return std::nullopt;
    }
    const KxResult<KxRenderSource> source = KxRenderSource::FromTimeline(*Helper().GetWorkTimeline());
    if (!source) {
        return Fail(source.Message());
    }
    KxRenderSettings settings = CropRenderSettings::For(*m_media, Helper().GetDisplayResults().first().cropRect());
    if (settings.resolution.isEmpty()) {
        return FailTooSmall();
    }
    settings.outputPath = TargetPath(m_options.output, QStringLiteral("mp4"));
    settings.existing = WhenItExists(settings.outputPath);

    if (const Ended ended = Render(*source, settings, ReframeReporter::Stage::Render, QStringLiteral("output"))) {
        return ended;
    }
    m_facts.insert(QStringLiteral("width"), settings.resolution.width());
    m_facts.insert(QStringLiteral("height"), settings.resolution.height());
    return std::nullopt;
}

ReframeJob::Ended ReframeJob::Render(const KxRenderSource& source, const KxRenderSettings& settings,
                                     ReframeReporter::Stage stage, const QString& fact)
{
    m_reporter.BeginStage(m_input, stage);
    QEventLoop loop;
    KxRenderResult result;
    // Called on the rendering's thread; the reporter belongs to this one.
    const auto progress = [this, &loop](int done) {
        QMetaObject::invokeMethod(&loop, [this, done] { m_reporter.Progress(done); });
    };
    KxThread thread([&] {
        // The interrupt is the rendering's own cancel token: it ends as cancelled, or its file is complete.
        const KxError failure =
            KxCallGuarded([&] { result = KxRenderer::Run(source, settings, progress, KxInterrupt::Token()); });
        if (failure) {
            result = {KxOutcome::Failed, QStringLiteral("Cannot reframe %1: %2.").arg(m_input, *failure), {}, {}};
        }
        QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
    });
    loop.exec();
    thread.Join();
    if (result.outcome == KxOutcome::Cancelled) {
        return KxOutcome::Cancelled;
    }
    if (result.outcome == KxOutcome::Failed) {
        return Fail(result.message);
    }
    if (!result.warning.isEmpty()) {
        m_reporter.Warn(m_input, result.warning);
    }
    NoteWritten(result.outputPath, fact);
    return std::nullopt;
}
