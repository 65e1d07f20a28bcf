#include <Apps/Reframe/ReframeJob.h>

#include <Apps/Reframe/FoundSignals.h>
#include <Apps/Reframe/ReframeWait.h>
#include <KrAutoReframe/Engine/KrAutoReframeAnalyzer.h>
#include <KrAutoReframe/Engine/KrAutoReframeHelper.h>
#include <KxCore/KxInterrupt.h>
#include <KxCore/KxMemory.h>
#include <KxModel/KxAutoReframeService.h>
#include <KxModel/KxChoicesFormat.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <QFileInfo>
#include <QJsonArray>

#include <algorithm>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(ReframeJob)
};

} // namespace

ReframeJob::ReframeJob(ReframeInput& input, const QSize& aspect, const ReframeOptions& options,
                       ReframeReporter& reporter, QStringList& written)
    : m_input(input.path)
    , m_options(options)
    , m_reporter(reporter)
    , m_aspect(aspect)
    , m_media(input.media)
    , m_process(std::make_unique<KrAutoReframeProcess>(nullptr))
    , m_allWritten(written)
{
}

ReframeJob::~ReframeJob()
{
    ForgetCrops();
}

void ReframeJob::ForgetCrops()
{
    if (m_process == nullptr) {
        return;
    }
    IKxTimeline* const source = Helper().GetSourceTimeline();
    m_process.reset();
    IKxTimeline::releaseInstance(source);
    KxAutoReframeService::Instance().ForgetResults();
    if (m_track) {
        m_track->crops.clear();
    }
    KxMemory::ReturnUnused();
}

KxOutcome ReframeJob::Run()
{
    const KxOutcome outcome = RunSteps();
    if (outcome == KxOutcome::Cancelled) {
        m_reporter.Interrupted(m_input, m_written);
    }
    return outcome;
}

KxOutcome ReframeJob::RunSteps()
{
    for (Ended (ReframeJob::*step)() :
         {&ReframeJob::Open, &ReframeJob::FindFrames, &ReframeJob::ReadTrack, &ReframeJob::ReadChoices,
          &ReframeJob::ChooseTargets, &ReframeJob::SkipIfDone, &ReframeJob::ReadParts, &ReframeJob::CheckTargets,
          &ReframeJob::CheckSize, &ReframeJob::WritePictures, &ReframeJob::FindCrops, &ReframeJob::WriteChoices,
          &ReframeJob::WriteEditLists, &ReframeJob::WriteReport, &ReframeJob::WritePreview, &ReframeJob::WriteKeyframes,
          &ReframeJob::WriteVideo}) {
        if (KxInterrupt::IsRequested()) {
            return KxOutcome::Cancelled;
        }
        if (const Ended ended = (this->*step)()) {
            return *ended;
        }
    }
    ReframeTargets::MarkAsOneRun(m_written);
    m_reporter.Succeed(m_input, FinishedMessage(), m_facts);
    return KxOutcome::Done;
}

QString ReframeJob::FinishedMessage() const
{
    const QString frames = FramesText();
    if (m_written.isEmpty()) {
        return Texts::tr("%1: %2 analysed").arg(m_input, frames);
    }
    const QString files = m_written.join(QStringLiteral(", "));
    const bool isChosen = m_options.writesVideo && m_options.video.format.encoder == KxOutputFormat::Encoder::Auto;
    return isChosen ? Texts::tr("%1: %2 -> %3 (encoded by %4)").arg(m_input, frames, files, m_encoder.name)
                    : Texts::tr("%1: %2 -> %3").arg(m_input, frames, files);
}

QString ReframeJob::FramesText() const
{
    if (m_frames) {
        return Texts::tr("frames %1 to %2").arg(QString::number(m_frames->first), QString::number(m_frames->end - 1));
    }
    const qint64 frames = m_media->duration();
    return frames == 1 ? Texts::tr("1 frame") : Texts::tr("%n frames", nullptr, static_cast<int>(frames));
}

ReframeJob::Ended ReframeJob::Open()
{
    if (QFileInfo(m_input).isDir()) {
        return Fail(Texts::tr("Cannot reframe %1: there is no video in this folder.").arg(m_input));
    }
    if (!m_media) {
        const bool isForAnalysis = m_options.apply.isEmpty() && !m_options.frames;
        KxResult<std::unique_ptr<KxMediaItem>> media = isForAnalysis
                                                           ? KxMediaItem::Open(m_input, KxInterrupt::Token(), m_opened)
                                                           : KxMediaItem::Open(m_input, KxInterrupt::Token());
        if (!media) {
            return FailUnlessInterrupted(media.Message());
        }
        m_media = std::move(*media);
    }
    if (!m_media->mediaInfo()->hasVideoStream()) {
        return Fail(Texts::tr("Cannot reframe %1: it has no moving picture.").arg(m_input));
    }
    m_process->OpenMedia(m_media.get());
    m_facts.insert(QStringLiteral("frames"), m_media->duration());
    return std::nullopt;
}

ReframeJob::Ended ReframeJob::ReadTrack()
{
    if (m_options.apply.isEmpty()) {
        return std::nullopt;
    }
    KxResult<CropTrack> track = CropTrackFile::Read(m_options.apply, m_media->duration());
    if (!track) {
        return Fail(track.Message());
    }
    if (!track->aspect.isEmpty()) {
        m_aspect = track->aspect;
    }
    m_otherShapes = track->otherShapes;
    m_track = std::move(*track);
    return std::nullopt;
}

ReframeJob::Ended ReframeJob::ReadChoices()
{
    KxSubjectChoices choices;
    if (!m_options.choices.isEmpty()) {
        KxResult<KxSubjectChoices> read = KxChoicesFormat::ReadFile(m_options.choices);
        if (!read) {
            return Fail(read.Message());
        }
        choices = std::move(*read);
    }
    KxSubjectChoice follow;
    follow.kind = KxChoiceKind::Follow;
    for (const FollowOption& option : m_options.follow) {
        const auto& stream = m_media->StreamInfo();
        const KxResult<KxSubjectSeed> seed =
            option.SeedIn({stream.resolution(), stream.frameRate().ToDouble(), m_media->duration()});
        if (!seed) {
            return Fail(Texts::tr("Cannot follow %1 in %2: %3.").arg(option.text, m_input, seed.Message()));
        }
        follow.seeds.push_back(*seed);
    }
    if (!follow.seeds.empty()) {
        choices.push_back(follow);
    }
    if (std::any_of(choices.begin(), choices.end(),
                    [](const KxSubjectChoice& choice) { return choice.kind == KxChoiceKind::Fit; })) {
        m_otherShapes = KxRenderSource::OtherShapes::Fitted;
    }
    KxAutoReframeService::Instance().SetChoices(std::move(choices));
    return std::nullopt;
}

ReframeJob::Ended ReframeJob::ChooseTargets()
{
    m_targets.emplace(ReframeTask{m_input, m_aspect, m_frames, WritesPictures()}, m_options, m_allWritten);
    return std::nullopt;
}

ReframeJob::Ended ReframeJob::SkipIfDone()
{
    if (!m_options.farm.ifNeeded || !m_targets->AreUpToDate()) {
        return std::nullopt;
    }
    const QStringList targets = m_targets->All();
    for (const QString& target : targets) {
        m_allWritten += QFileInfo(target).absoluteFilePath();
    }
    m_reporter.Skip(m_input, Texts::tr("%1: skipped, up to date: %2").arg(m_input, targets.join(QStringLiteral(", "))),
                    {{QStringLiteral("files"), QJsonArray::fromStringList(targets)}});
    return KxOutcome::Done;
}

ReframeJob::Ended ReframeJob::CheckTargets()
{
    const QStringList targets = m_targets->All();
    for (const QString& target : targets) {
        if (m_targets->WouldReplaceInput(target)) {
            return Fail(Texts::tr("Cannot write %1: it is one of the inputs.").arg(target));
        }
        if (const auto tried = KxOutputFile::Create(target); !tried) {
            return Fail(tried.Message());
        }
    }
    return std::nullopt;
}

ReframeJob::Ended ReframeJob::FindCrops()
{
    m_reporter.BeginStage(m_input, ReframeReporter::Stage::Analyze);
    if (const Ended ended = m_track ? StartApplying() : StartAnalysis()) {
        return ended;
    }
    if (const Ended ended = WaitForCrops()) {
        return ended;
    }
    if (!m_track) {
        const QStringList warnings = KxAutoReframeService::Instance().LastWarnings();
        for (const QString& warning : warnings) {
            m_reporter.Warn(m_input, warning);
        }
        m_facts.insert(QStringLiteral("models"),
                       CropTrackFile::ModelsAsJson(KxAutoReframeService::Instance().LastModels()));
        NoteShots();
    }
    return std::nullopt;
}

void ReframeJob::NoteShots()
{
    const std::shared_ptr<const KxSubjectFindings> findings = KxAutoReframeService::Instance().LastFindings();
    if (findings == nullptr) {
        return;
    }
    QJsonArray shots;
    for (const KxSubjectFindings::Shot& shot : findings->shots) {
        QJsonObject fact{{QStringLiteral("first"), static_cast<qint64>(shot.first)},
                         {QStringLiteral("end"), static_cast<qint64>(shot.end)},
                         {QStringLiteral("confidence"), qRound(shot.confidence * 100.0F) / 100.0}};
        const QString doubt = FoundSignals::Doubt(shot);
        if (!doubt.isEmpty()) {
            fact.insert(QStringLiteral("doubt"), doubt);
        }
        const QString speech = FoundSignals::Speech(shot);
        if (!speech.isEmpty()) {
            fact.insert(QStringLiteral("speech"), speech);
        }
        shots.append(fact);
    }
    m_facts.insert(QStringLiteral("shots"), shots);
}

ReframeJob::Ended ReframeJob::StartAnalysis()
{
    KxAutoReframeService& service = KxAutoReframeService::Instance();
    service.Offer(std::move(m_opened));
    const int refusal = m_process->StartAnalyze(m_aspect.width(), m_aspect.height(), m_options.speedMode);
    service.Offer(nullptr);
    switch (refusal) {
    case 0:
        return std::nullopt;
    case 1:
        return Fail(Texts::tr("Cannot reframe %1: it is too short (%2; 32 are needed).").arg(m_input, FramesText()));
    case 3:
        return Fail(Texts::tr("Cannot reframe %1: it has the aspect ratio %2:%3 already.")
                        .arg(m_input, QString::number(m_aspect.width()), QString::number(m_aspect.height())));
    default:
        return Fail(KxAutoReframeService::Instance().LastErrorMessage());
    }
}

ReframeJob::Ended ReframeJob::StartApplying()
{
    if (!Helper().ApplyResults(m_track->crops)) {
        return Fail(Texts::tr("Cannot use %1: it holds %2 of the %3 of %4.")
                        .arg(m_options.apply, QString::number(m_track->crops.size()), FramesText(), m_input));
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
        const QString reason = KxAutoReframeService::Instance().LastErrorMessage();
        return Fail(reason.isEmpty() ? Texts::tr("Cannot reframe %1: the analysis found nothing.").arg(m_input)
                                     : reason);
    }
    return std::nullopt;
}

CropTrack ReframeJob::Track() const
{
    CropTrack track;
    track.sourcePath = m_input;
    track.sourceSize = m_media->StreamInfo().resolution();
    track.frameRate = m_media->StreamInfo().frameRate();
    track.aspect = m_aspect;
    track.speedName = m_options.speedName;
    track.crops = Helper().GetDisplayResults();
    track.otherShapes = m_otherShapes;
    track.madeBy = m_targets->Run().OfTask();
    if (!m_track) {
        track.models = KxAutoReframeService::Instance().LastModels();
    }
    return track;
}

ReframeJob::Ended ReframeJob::WriteChoices()
{
    if (m_options.saveChoices.isEmpty()) {
        return std::nullopt;
    }
    return WriteFile(m_targets->Choices(), KxAutoReframeService::Instance().LastChoices(), QStringLiteral("choices"));
}

ReframeJob::Ended ReframeJob::WriteKeyframes()
{
    if (m_options.keyframes.isEmpty()) {
        return std::nullopt;
    }
    const QString path = m_targets->Keyframes();
    return WriteFile(path, CropTrackFile::Format(Track(), path), QStringLiteral("keyframes"));
}

ReframeJob::Ended ReframeJob::WriteFile(const QString& path, const QByteArray& content, const QString& fact)
{
    const KxResult<QString> written = KxOutputFile::Write(path, content, m_targets->WhenItExists(path));
    if (!written) {
        return Fail(written.Message());
    }
    NoteWritten(*written, fact);
    return std::nullopt;
}

void ReframeJob::NoteWritten(const QString& path, const QString& fact)
{
    m_written += path;
    m_allWritten += QFileInfo(path).absoluteFilePath();
    m_facts.insert(fact, path);
}

KrAutoReframeHelper& ReframeJob::Helper() const
{
    return *m_process->GetHelper();
}

KxOutcome ReframeJob::Fail(const QString& message)
{
    m_reporter.Fail(m_input, message);
    return KxOutcome::Failed;
}

KxOutcome ReframeJob::FailBecause(const QString& reason)
{
    return Fail(Texts::tr("Cannot reframe %1: %2.").arg(m_input, reason));
}

KxOutcome ReframeJob::FailUnlessInterrupted(const QString& message)
{
    return KxInterrupt::IsRequested() ? KxOutcome::Cancelled : Fail(message);
}
