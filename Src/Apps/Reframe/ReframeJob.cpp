#include "ReframeJob.h"

#include "ContactSheet.h"
#include "CropTrackFile.h"
#include "KrAutoReframeAnalyzer.h"
#include "KrAutoReframeHelper.h"
#include "KxAutoReframeService.h"
#include "KxInterrupt.h"
#include "ReframeReporter.h"
#include "ReframeWait.h"

#include <QBuffer>
#include <QDir>
#include <QEventLoop>
#include <QFileInfo>

ReframeJob::ReframeJob(const QString& input, const ReframeOptions& options, ReframeReporter& reporter)
    : m_input(input)
    , m_options(options)
    , m_reporter(reporter)
    , m_aspect(options.aspect)
    , m_process(std::make_unique<KrAutoReframeProcess>(nullptr))
{
}

ReframeJob::~ReframeJob()
{
    IKxTimeline* const source = Helper().GetSourceTimeline();
    m_process.reset();
    IKxTimeline::releaseInstance(source);
}

KxOutcome ReframeJob::Run()
{
    for (Ended (ReframeJob::*step)() : {&ReframeJob::Open, &ReframeJob::FindCrops, &ReframeJob::WriteKeyframes,
                                        &ReframeJob::WritePreview, &ReframeJob::WriteVideo}) {
        if (KxInterrupt::IsRequested()) {
            return KxOutcome::Cancelled;
        }
        if (const Ended ended = (this->*step)()) {
            return *ended;
        }
    }
    const QString frames = QStringLiteral("%1 frames").arg(Helper().GetDuration());
    m_reporter.Succeed(m_input,
                       m_written.isEmpty()
                           ? QStringLiteral("%1: %2 analysed").arg(m_input, frames)
                           : QStringLiteral("%1: %2 -> %3").arg(m_input, frames, m_written.join(QStringLiteral(", "))),
                       m_facts);
    return KxOutcome::Done;
}

ReframeJob::Ended ReframeJob::Open()
{
    KxResult<std::unique_ptr<KxMediaItem>> media = KxMediaItem::Open(m_input, KxCancelToken());
    if (!media) {
        return Fail(media.Sentence());
    }
    m_media = std::move(*media);
    if (!m_media->mediaInfo()->hasVideoStream()) {
        return Fail(QStringLiteral("Cannot reframe %1: it has no moving picture.").arg(m_input));
    }
    m_process->OpenMedia(m_media.get());
    m_facts.insert(QStringLiteral("frames"), m_media->duration());
    return std::nullopt;
}

ReframeJob::Ended ReframeJob::FindCrops()
{
    m_reporter.BeginStage(m_input, ReframeReporter::Stage::Analyze);
    if (const Ended ended = m_options.apply.isEmpty() ? StartAnalysis() : StartApplying()) {
        return ended;
    }
    if (const Ended ended = WaitForCrops()) {
        return ended;
    }
    if (m_options.apply.isEmpty()) {
        const QStringList warnings = KxAutoReframeService::Instance().LastWarnings();
        for (const QString& warning : warnings) {
            m_reporter.Warn(m_input, warning);
        }
    }
    return std::nullopt;
}

ReframeJob::Ended ReframeJob::StartAnalysis()
{
    switch (m_process->StartAnalyze(m_aspect.width(), m_aspect.height(), m_options.speedMode)) {
    case 0:
        return std::nullopt;
    case 1:
        return Fail(QStringLiteral("Cannot reframe %1: it is too short (%2 frames; 32 are needed).")
                        .arg(m_input)
                        .arg(m_media->duration()));
    case 3:
        return Fail(QStringLiteral("Cannot reframe %1: it has the aspect ratio %2:%3 already.")
                        .arg(m_input)
                        .arg(m_aspect.width())
                        .arg(m_aspect.height()));
    default:
        return Fail(KxAutoReframeService::Instance().LastSentence());
    }
}

ReframeJob::Ended ReframeJob::StartApplying()
{
    KxResult<CropTrack> track = CropTrackFile::Read(m_options.apply);
    if (!track) {
        return Fail(track.Sentence());
    }
    if (!track->aspect.isEmpty()) {
        m_aspect = track->aspect;
    }
    if (!Helper().ApplyResults(track->crops)) {
        return Fail(QStringLiteral("Cannot use %1: it holds %2 frames, %3 has %4.")
                        .arg(m_options.apply, QString::number(track->crops.size()), m_input,
                             QString::number(m_media->duration())));
    }
    return std::nullopt;
}

ReframeJob::Ended ReframeJob::WaitForCrops()
{
    QEventLoop loop;
    bool succeeded = false;
    QObject::connect(m_process.get(), &KrAutoReframeProcess::sigProcessProgress, &loop,
                     [this](int progress) { m_reporter.Progress(progress); });
    QObject::connect(m_process.get(), &KrAutoReframeProcess::sigProcessFinished, &loop, [&](bool success) {
        succeeded = success;
        loop.quit();
    });
    if (!ReframeWait::Run(loop)) {
        m_process->StopProcess();
        return KxOutcome::Cancelled;
    }
    if (!succeeded || Helper().GetDisplayResults().isEmpty()) {
        const QString reason = KxAutoReframeService::Instance().LastSentence();
        return Fail(reason.isEmpty() ? QStringLiteral("Cannot reframe %1: the analysis found nothing.").arg(m_input)
                                     : reason);
    }
    return std::nullopt;
}

ReframeJob::Ended ReframeJob::WriteKeyframes()
{
    if (m_options.keyframes.isEmpty()) {
        return std::nullopt;
    }
    CropTrack track;
    track.sourcePath = m_input;
    track.sourceSize = static_cast<const KxClip*>(m_media->clip())->StreamInfo().resolution();
    track.frameRate = static_cast<const KxClip*>(m_media->clip())->StreamInfo().frameRate();
    track.aspect = m_aspect;
    track.speedName = m_options.speedName;
    track.crops = Helper().GetDisplayResults();
    const QString path = TargetPath(m_options.keyframes, QStringLiteral("json"));
    const KxResult<QString> written = KxOutputFile::Write(path, CropTrackFile::Format(track, path), WhenItExists());
    if (!written) {
        return Fail(written.Sentence());
    }
    m_written += *written;
    m_facts.insert(QStringLiteral("keyframes"), *written);
    return std::nullopt;
}

ReframeJob::Ended ReframeJob::WritePreview()
{
    if (m_options.preview.isEmpty()) {
        return std::nullopt;
    }
    KxCancelToken cancel;
    const KxResult<QImage> sheet = ContactSheet::Draw(m_input, Helper().GetDisplayResults(), cancel);
    if (!sheet) {
        return Fail(sheet.Sentence());
    }
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    if (!sheet->save(&buffer, "PNG")) {
        return Fail(QStringLiteral("Cannot draw the contact sheet of %1.").arg(m_input));
    }
    const KxResult<QString> written =
        KxOutputFile::Write(TargetPath(m_options.preview, QStringLiteral("png")), png, WhenItExists());
    if (!written) {
        return Fail(written.Sentence());
    }
    m_written += *written;
    m_facts.insert(QStringLiteral("preview"), *written);
    return std::nullopt;
}

KrAutoReframeHelper& ReframeJob::Helper() const
{
    return *m_process->GetHelper();
}

KxOutcome ReframeJob::Fail(const QString& sentence)
{
    m_reporter.Fail(m_input, sentence);
    return KxOutcome::Failed;
}

QString ReframeJob::TargetPath(const QString& named, const QString& suffix) const
{
    if (!named.isEmpty() && !QFileInfo(named).isDir()) {
        return named;
    }
    const QFileInfo input(m_input);
    const QString name = QStringLiteral("%1-AutoReframe-%2 %3.%4")
                             .arg(input.completeBaseName(), QString::number(m_aspect.width()),
                                  QString::number(m_aspect.height()), suffix);
    return QDir(named.isEmpty() ? input.absolutePath() : named).filePath(name);
}

KxOutputFile::Existing ReframeJob::WhenItExists() const
{
    return m_options.overwrites ? KxOutputFile::Existing::Replace : KxOutputFile::Existing::AddNumber;
}
