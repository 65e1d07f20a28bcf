#include <Apps/Reframe/ReframeJob.h>

#include <Apps/CropTracks/CropRenderSettings.h>
#include <KrAutoReframe/Engine/KrAutoReframeHelper.h>
#include <KrAutoReframe/Engine/KrExportParameters.h>
#include <KxCore/KxInterrupt.h>
#include <KxCore/KxThread.h>
#include <KxRender/KxRenderer.h>

#include <QCoreApplication>
#include <QEventLoop>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(ReframeJob)
};

} // namespace

QRectF ReframeJob::ShapeOfResult() const
{
    const QList<IKxAutoReframeResult>& results = Helper().GetDisplayResults();
    const QSize picture = m_media->StreamInfo().resolution();
    return m_otherShapes == KxRenderSource::OtherShapes::Fitted
               ? KrExportParameters::ShapeOfResult(results, picture, m_aspect)
               : results.first().cropRect();
}

ReframeJob::Ended ReframeJob::CheckSize()
{
    const bool hasSize = m_options.writesVideo || !m_options.editLists.isEmpty();
    if (!hasSize || m_track || WritesPictures()) {
        return std::nullopt;
    }
    const QRectF crop = KrExportParameters::ShapeOfResult({}, m_media->StreamInfo().resolution(), m_aspect);
    const KxResult<QSize> size = CropRenderSettings::Size(*m_media, crop, m_options.video.size);
    return size ? Ended() : FailBecause(size.Message());
}

void ReframeJob::WarnOfEnlargement(const QSize& size) const
{
    const QSize picture = m_media->StreamInfo().resolution();
    const QSize cropSize = KrExportParameters::EvenResolution(picture, ShapeOfResult());
    if (KxOutputSize::Enlarges(size, cropSize)) {
        m_reporter.Warn(m_input, QCoreApplication::translate(
                                     "ReframeJob", "The picture of %1 is enlarged: its size, %2 x %3, is above that of "
                                                   "the crop, %4 x %5.")
                                     .arg(m_input, QString::number(size.width()), QString::number(size.height()),
                                          QString::number(cropSize.width()), QString::number(cropSize.height())));
    }
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
    const OutputOptions& video = m_options.video;
    KxResult<KxRenderSettings> made = CropRenderSettings::For(*m_media, ShapeOfResult(), video.size);
    if (!made) {
        return FailBecause(made.Message());
    }
    KxRenderSettings& settings = *made;
    WarnOfEnlargement(settings.resolution);
    settings.frameRate = video.frameRate > 0.0 ? video.frameRate : settings.frameRate;
    settings.videoBitRate = video.videoBitRate > 0 ? video.videoBitRate : settings.videoBitRate;
    settings.format = video.format;
    settings.outputPath = m_targets->Video();
    settings.existing = m_targets->WhenItExists(settings.outputPath);
    settings.comment = m_targets->Run().OfTask();
    settings.frames = m_frames;
    settings.parts = m_videoParts;
    ForgetCrops();

    if (const Ended ended = Render(*source, settings, ReframeReporter::Stage::Render, QStringLiteral("output"))) {
        return ended;
    }
    m_facts.insert(QStringLiteral("width"), settings.resolution.width());
    m_facts.insert(QStringLiteral("height"), settings.resolution.height());
    if (!m_encoder.name.isEmpty()) {
        m_facts.insert(QStringLiteral("encoder"), m_encoder.name);
    }
    if (!m_encoder.reason.isEmpty()) {
        m_facts.insert(QStringLiteral("encoder_reason"), m_encoder.reason);
    }
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
            result = {KxOutcome::Failed, Texts::tr("Cannot reframe %1: %2.").arg(m_input, *failure), {}, {}};
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
    m_encoder = result.encoder;
    return std::nullopt;
}
