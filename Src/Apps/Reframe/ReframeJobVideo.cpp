#include <Apps/Reframe/ReframeJob.h>

#include <Apps/Reframe/ReframeWait.h>
#include <KrAutoReframe/Engine/KrAutoReframeHelper.h>
#include <KrAutoReframe/Engine/KrExportParameters.h>
#include <KxRender/KxRenderJob.h>

#include <QEventLoop>

namespace
{

KxRenderSettings SettingsFor(const KxMediaItem& media, const QRectF& firstCrop)
{
    const auto* const video = dynamic_cast<const IKxVideoMediaInfo*>(media.mediaInfo());
    const auto* const audio = dynamic_cast<const IKxAudioMediaInfo*>(media.mediaInfo());
    KxRenderSettings settings;
    settings.resolution = KrExportParameters::EvenResolution(video->resolution(), firstCrop);
    settings.frameRate = KrExportParameters::FrameRate(video->frameRate());
    settings.videoBitRate = KrExportParameters::VideoBitRate(video->bitRate());
    settings.audioBitRate = audio->hasAudioStream()
                                ? KrExportParameters::AudioBitRate(audio->bitRate(media.audioStreamIndex()))
                                : KrExportParameters::DefaultAudioBitRate;
    return settings;
}

} // namespace

ReframeJob::Ended ReframeJob::WriteVideo()
{
    if (!m_options.writesVideo) {
        return std::nullopt;
    }
    const KxResult<KxRenderSource> source = KxRenderSource::FromTimeline(*Helper().GetWorkTimeline());
    if (!source) {
        return Fail(source.Message());
    }
    KxRenderSettings settings = SettingsFor(*m_media, Helper().GetDisplayResults().first().cropRect());
    if (settings.resolution.isEmpty()) {
        const QSize size = static_cast<const KxClip*>(m_media->clip())->StreamInfo().resolution();
        return Fail(QStringLiteral("Cannot reframe %1: its picture of %2 x %3 pixels is too small.")
                        .arg(m_input, QString::number(size.width()), QString::number(size.height())));
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
    KxRenderJob::Callbacks callbacks;
    // The job calls on its own thread; what it says is heard on this one.
    callbacks.progress = [this, &loop](int progress) {
        QMetaObject::invokeMethod(&loop, [this, progress] { m_reporter.Progress(progress); });
    };
    callbacks.finished = [&](const KxRenderResult& ended) {
        QMetaObject::invokeMethod(&loop, [&result, &loop, ended] {
            result = ended;
            loop.quit();
        });
    };
    KxRenderJob job(source, settings, callbacks);
    if (!ReframeWait::Run(loop) || result.outcome == KxOutcome::Cancelled) {
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
