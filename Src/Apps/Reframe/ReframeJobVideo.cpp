#include <Apps/Reframe/ReframeJob.h>

#include <Apps/CropTracks/CropRenderSettings.h>
#include <KrAutoReframe/Engine/KrAutoReframeHelper.h>
#include <KrAutoReframe/Engine/KrExportParameters.h>
#include <KxCore/KxInterrupt.h>
#include <KxCore/KxThread.h>
#include <KxRender/KxRenderer.h>

#include <QEventLoop>

QRectF ReframeJob::ShapeOfResult() const
{
    const QList<IKxAutoReframeResult>& results = Helper().GetDisplayResults();
    const QSize picture = static_cast<const KxClip*>(m_media->clip())->StreamInfo().resolution();
    return m_otherShapes == KxRenderSource::OtherShapes::Fitted
               ? KrExportParameters::ShapeOfResult(results, picture, m_aspect)
               : results.first().cropRect();
}

ReframeJob::Ended ReframeJob::WriteVideo()
{
    if (!m_options.writesVideo) {
        return std::nullopt;
    }
    KxResult<KxRenderSource> source = KxRenderSource::FromTimeline(*Helper().GetWorkTimeline());
    if (!source) {
        return Fail(source.Message());
    }
    source->otherShapes = m_otherShapes;
    KxRenderSettings settings = CropRenderSettings::For(*m_media, ShapeOfResult());
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
