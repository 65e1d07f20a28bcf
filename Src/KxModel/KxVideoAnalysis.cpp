#include <KxModel/KxVideoAnalysis.h>

#include <KxModel/KxAnalysisPictures.h>
#include <KxModel/KxFollowPass.h>
#include <KxModel/KxFollowTracks.h>
#include <KxModel/KxJoinedPictures.h>
#include <KxModel/KxRecordStore.h>
#include <KxModel/KxSoundReading.h>
#include <KxModel/KxVideoObservation.h>
#include <KxModel/KxVideoSampling.h>

#include <KxCore/KxLanguage.h>
#include <KxCore/KxMemory.h>

#include <KxMedia/Read/KxVideoScanner.h>
#include <KxSubject/Follow/KxSubjectFollower.h>
#include <KxSubject/KxShotDoubt.h>
#include <KxSubject/KxSubjectDecision.h>
#include <KxSubject/KxSubjectObserver.h>
#include <KxSubject/KxSubjectOptions.h>
#include <KxSubject/KxSubjectRecord.h>

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>
#include <cmath>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(KxVideoAnalysis)
};

KxMotionSpeed SpeedOfMode(int mode)
{
    constexpr int fast = 8;
    constexpr int slow = 24;
    return mode == fast ? KxMotionSpeed::Fast : mode == slow ? KxMotionSpeed::Slow : KxMotionSpeed::Auto;
}

KxSubjectRequest RequestFor(const IKxAutoReframeParam& param, const KxAnalysisSettings& settings)
{
    const bool wantsFindings = settings.wantsFindings || settings.wantsShots;
    return {param.targetSize().width(),
            param.targetSize().height(),
            SpeedOfMode(param.mode()),
            wantsFindings,
            {},
            {},
            settings.followsSpeaker ? KxSpeakerMode::Auto : KxSpeakerMode::Off};
}

QList<IKxAutoReframeResult> ResultsOf(const std::vector<KxCropRect>& crops)
{
    QList<IKxAutoReframeResult> results;
    results.reserve(static_cast<int>(crops.size()));
    for (const KxCropRect& crop : crops) {
        results.append(IKxAutoReframeResult(results.size(), QRectF(crop.x, crop.y, crop.width, crop.height)));
    }
    return results;
}

KxAutoReframeDoubt DoubtOf(const KxSubjectFindings::Shot& shot)
{
    switch (KxDoubtOf(shot)) {
    case KxShotDoubt::None:
        break;
    case KxShotDoubt::NothingStandsOut:
        return KxAutoReframeDoubt::NothingStandsOut;
    case KxShotDoubt::SeveralPlaces:
        return KxAutoReframeDoubt::SeveralPlaces;
    case KxShotDoubt::SeveralPeople:
    case KxShotDoubt::SpeakerUnclear:
    case KxShotDoubt::SpeakerHardlyClear:
        return KxAutoReframeDoubt::SeveralPeople;
    }
    return KxAutoReframeDoubt::None;
}

QList<KxAutoReframeShot> ShotsOf(const KxSubjectFindings& findings)
{
    QList<KxAutoReframeShot> shots;
    shots.reserve(static_cast<int>(findings.shots.size()));
    for (const KxSubjectFindings::Shot& shot : findings.shots) {
        shots.append({shot.first, shot.end, static_cast<double>(shot.confidence), DoubtOf(shot)});
    }
    return shots;
}

QStringList PlacementWarnings(const KxSubjectRecord& record, const std::vector<KxPlacedChoice>& placed,
                              const QString& name)
{
    QStringList warnings;
    for (std::size_t i = 0; i < placed.size(); ++i) {
        const QString number = QString::number(i + 1);
        if (placed[i].place == KxPlacedChoice::Place::Missing) {
            warnings += Texts::tr("Choice %1 is not applied: its pictures are not in %2.").arg(number, name);
        } else if (KxChoicesInside(record, {placed[i]}).empty()) {
            warnings += Texts::tr("Choice %1 is not applied: its time is outside of %2.").arg(number, name);
        } else if (placed[i].place == KxPlacedChoice::Place::Moved) {
            const QString text = placed[i].movedSeconds < 0.0
                                     ? Texts::tr("Choice %1 is applied %2 s earlier, where its pictures are in %3.")
                                     : Texts::tr("Choice %1 is applied %2 s later, where its pictures are in %3.");
            warnings += text.arg(number, KxLanguage::Locale().toString(std::abs(placed[i].movedSeconds), 'f', 2), name);
        }
    }
    return warnings;
}

} // namespace

KxAnalysis::~KxAnalysis() = default;

KxVideoAnalysis::KxVideoAnalysis(const QString& path, const IKxAutoReframeParam& param,
                                 const KxAnalysisSettings& settings, const KxCancelToken& cancel)
    : m_path(path)
    , m_param(param)
    , m_settings(settings)
    , m_cancel(cancel)
{
}

KxVideoAnalysis::~KxVideoAnalysis() = default;

KxResult<std::unique_ptr<KxAnalysis>> KxVideoAnalysis::Open(const QString& path, const IKxAutoReframeParam& param,
                                                            const KxAnalysisSettings& settings,
                                                            const KxCancelToken& cancel,
                                                            std::shared_ptr<KxVideoScanner> opened)
{
    using Opened = KxResult<std::unique_ptr<KxAnalysis>>;
    if (param.targetSize().isEmpty()) {
        return Opened::Failure(
            Texts::tr("The aspect ratio %1:%2 has a side that is not positive.")
                .arg(QString::number(param.targetSize().width()), QString::number(param.targetSize().height())));
    }
    std::unique_ptr<KxVideoAnalysis> analysis(new KxVideoAnalysis(path, param, settings, cancel));
    // To read the models takes a while: where no record can be confirmed, the analysis itself does. Whatever is no
    // regular file is refused below; reading it here could wait for ever.
    if (settings.records && settings.records->HasConfirmed() && QFileInfo(path).isFile()) {
        analysis->LookUp();
        if (analysis->m_known->record) {
            return std::unique_ptr<KxAnalysis>(std::move(analysis));
        }
    }
    if (!opened || opened->Facts().path != path || opened->FileHasChanged()) {
        KxResult<std::unique_ptr<KxVideoScanner>> scanner = KxVideoScanner::Open(path, cancel);
        if (!scanner) {
            return Opened::Failure(scanner.Message());
        }
        opened = std::move(*scanner);
    }
    const qint64 frames = opened->Facts().video->frameCount;
    if (frames > MostFrames) {
        return Opened::Failure(
            Texts::tr("Cannot analyse %1: its time stamps span %2 frames, the limit is %3.")
                .arg(QFileInfo(path).fileName(), QString::number(frames), QString::number(MostFrames)));
    }
    analysis->m_scanner = std::move(opened);
    return std::unique_ptr<KxAnalysis>(std::move(analysis));
}

void KxVideoAnalysis::LookUp()
{
    m_known = Known{KxDetectorFiles::Read(m_settings.networkFolder), {}, nullptr};
    if (m_settings.records) {
        m_known->key = KxRecordStore::KeyOf(m_path, m_known->detectors.models);
        m_known->record = m_settings.records->FindConfirmed(m_known->key);
    }
}

std::shared_ptr<const KxSubjectRecord> KxVideoAnalysis::FindRecord() const
{
    if (m_known->record) {
        return m_known->record;
    }
    std::shared_ptr<const KxSubjectRecord> record =
        m_settings.records ? m_settings.records->Find(m_known->key) : nullptr;
    const KxSubjectSource source = KxVideoSampling::SourceOf(*m_scanner->Facts().video);
    const bool isOfThisVideo = record && record->source.pictureWidthPx == source.pictureWidthPx &&
                               record->source.pictureHeightPx == source.pictureHeightPx &&
                               record->source.frameCount == source.frameCount &&
                               qFuzzyCompare(record->source.frameRate, source.frameRate);
    if (!isOfThisVideo) {
        return nullptr;
    }
    m_settings.records->Confirm(m_known->key);
    return record;
}

std::shared_ptr<const KxSubjectRecord> KxVideoAnalysis::Observe(const std::function<void(int percent)>& onProgress,
                                                                Result& result)
{
    const QString name = QFileInfo(m_scanner->Facts().path).fileName();
    const KxMediaFacts facts = m_scanner->Facts();
    KxDecodedPictures decoded(*m_scanner);
    KxJoinedPictures joined(m_settings.parts, *facts.video);
    const bool isJoined = !m_settings.parts.isEmpty();
    KxVideoObservation observation(isJoined ? static_cast<KxAnalysisPictures&>(joined) : decoded, *facts.video,
                                   m_cancel);
    KxError problem = observation.Run(std::move(m_known->detectors.models), onProgress);
    problem = problem ? problem : joined.Problem();
    const bool endedEarly = isJoined ? joined.EndedEarly() : m_scanner->EndedEarly();
    const KxMediaClock clock = m_scanner->Clock();
    // The decoder's buffers take the most memory: they are freed before the results of every frame are made.
    m_scanner.reset();
    KxMemory::ReturnUnused();
    if (m_cancel.IsCancelled()) {
        result.outcome = KxOutcome::Cancelled;
        return nullptr;
    }
    if (problem) {
        result.message = Texts::tr("Cannot analyse %1: %2.").arg(name, problem->simplified());
        return nullptr;
    }
    const std::unique_ptr<KxSubjectObserver> observer = observation.TakeObserver();
    if (observer->IsObjectDetectorRefused()) {
        result.warnings += KxDetectorFiles::RefusedObjectDetector(m_settings.networkFolder);
    }
    if (observer->IsFaceDetectorRefused()) {
        result.warnings += KxDetectorFiles::RefusedFaceDetector(m_settings.networkFolder);
    }
    if (endedEarly) {
        result.warnings += Texts::tr("%1 is cut off or damaged: it decodes only in part.").arg(name);
    }
    auto record = std::make_shared<KxSubjectRecord>(observer->Finish());
    KxSoundReading::AddTo(*record, facts.path, facts.defaultAudio, clock, m_cancel);
    if (m_cancel.IsCancelled()) {
        result.outcome = KxOutcome::Cancelled;
        return nullptr;
    }
    // The warnings of the earlier analysis apply again.
    if (m_settings.records && result.warnings.isEmpty()) {
        m_settings.records->Add(m_known->key, record);
    }
    return record;
}

bool KxVideoAnalysis::HasRecord(const QString& path, const KxAnalysisSettings& settings)
{
    if (!settings.records) {
        return false;
    }
    const KxDetectorFiles::Contents contents = KxDetectorFiles::Read(settings.networkFolder);
    return settings.records->Find(KxRecordStore::KeyOf(path, contents.models)) != nullptr;
}

bool KxVideoAnalysis::Follow(const KxSubjectRecord& record, KxSubjectRequest& request,
                             const std::function<void(int percent)>& onProgress, Result& result)
{
    const auto count = static_cast<double>(request.choices.size());
    for (const KxSubjectChoice& choice : request.choices) {
        const double before = static_cast<double>(request.tracks.size()) / count;
        const KxFollowTracks::Known known = m_settings.tracks ? m_settings.tracks->Find(m_known->key, choice) : nullptr;
        if (choice.seeds.empty() || known) {
            request.tracks.push_back(known ? *known : KxFollowTrack());
            continue;
        }
        KxPartialResults partial(record, request, m_settings.partial, m_cancel);
        const KxFollowPass::Listener listener{
            [&](double part) { onProgress(static_cast<int>((before + part / count) * 100.0)); },
            [&](const KxSubjectFollower& follower) { partial.HandleFollowed([&] { return follower.Track(); }); }};
        KxFollowPass::Result pass = KxFollowPass::Run(m_path, record, choice, listener, m_cancel);
        if (pass.outcome != KxOutcome::Done) {
            result.outcome = pass.outcome;
            result.message = pass.message;
            return false;
        }
        if (m_settings.tracks) {
            m_settings.tracks->Add(m_known->key, choice, pass.track);
        }
        request.tracks.push_back(std::move(pass.track));
    }
    for (const KxFollowTrack& track : request.tracks) {
        for (const KxFollowTrack::Loss& doubt : track.Doubts(record.source.frameRate)) {
            result.losses.append({doubt.first, doubt.last, KxAutoReframeLoss::Kind::Doubted});
        }
        for (const KxFollowTrack::Loss& loss : track.Losses(record.source.frameRate, {})) {
            result.losses.append({loss.first, loss.last});
            result.warnings += Texts::tr("What is followed is lost from %1 s to %2 s: point at it again there.")
                                   .arg(KxLanguage::Locale().toString(record.SecondsAt(loss.first), 'f', 1),
                                        KxLanguage::Locale().toString(record.SecondsAt(loss.last), 'f', 1));
        }
    }
    return true;
}

KxAnalysis::Result KxVideoAnalysis::Run(const std::function<void(int percent)>& onProgress)
{
    if (!m_known) {
        LookUp();
    }
    Result result;
    result.warnings = m_known->detectors.problems;
    int reported = -1;
    const bool follows = std::any_of(m_settings.choices.begin(), m_settings.choices.end(),
                                     [](const KxSubjectChoice& choice) { return !choice.seeds.empty(); });
    std::shared_ptr<const KxSubjectRecord> record = FindRecord();
    // Of the whole progress: following looks at some shots, observing at all of them.
    const int observing = record ? 0 : follows ? 80 : 100;
    const auto report = [&](int percent) {
        if (percent > reported) {
            reported = percent;
            onProgress(std::min(percent, 99));
        }
    };
    if (!record) {
        record = Observe([&](int percent) { report(percent * observing / 100); }, result);
    }
    if (!record) {
        return result;
    }
    m_scanner.reset();
    KxSubjectRequest request = RequestFor(m_param, m_settings);
    result.choices = KxPlaceChoices(*record, m_settings.choices);
    result.warnings += PlacementWarnings(*record, result.choices, QFileInfo(m_path).fileName());
    request.choices = KxChoicesInside(*record, result.choices);
    if (follows &&
        !Follow(
            *record, request, [&](int percent) { report(observing + percent * (100 - observing) / 100); }, result)) {
        return result;
    }
    KxSubjectDecision decision = KxDecide(*record, request, {}, m_cancel);
    if (m_cancel.IsCancelled()) {
        result.outcome = KxOutcome::Cancelled;
        return result;
    }
    result.crops = ResultsOf(decision.crops);
    result.models = record->models;
    result.record = record;
    decision.crops = {};
    if (m_settings.wantsShots) {
        result.shots = ShotsOf(decision.findings);
    }
    if (m_settings.wantsFindings) {
        result.findings = std::make_shared<KxSubjectFindings>(std::move(decision.findings));
    }
    result.outcome = KxOutcome::Done;
    return result;
}
