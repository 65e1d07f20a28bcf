#include <Apps/AutoReframe/Backend/CropFinder.h>

#include <Apps/CropTracks/CropRenderSettings.h>
#include <Apps/CropTracks/CropTrackFile.h>
#include <Apps/CropTracks/CroppedMedia.h>
#include <KrAutoReframe/Engine/KrAutoReframeHelper.h>
#include <KrAutoReframe/Engine/KrExportParameters.h>
#include <KrAutoReframe/Engine/KrKeptEdits.h>
#include <KxCore/KxCropWindow.h>
#include <KxCore/KxOutputSize.h>
#include <KxCore/KxSpeedName.h>
#include <KxMedia/Read/KxVideoScanner.h>
#include <KxModel/KxChoicesFormat.h>
#include <KxModel/KxFramePictures.h>
#include <KxModel/KxMediaItem.h>
#include <KxModel/KxSimpleTimeline.h>

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(CropFinder)
};

constexpr int WholeProgress = 10000;

QString AspectText(const QSize& aspect)
{
    return QStringLiteral("%1:%2").arg(QString::number(aspect.width()), QString::number(aspect.height()));
}

} // namespace

CropFinder::CropFinder(CropRequest request, const KxAnalysisSettings& settings, CropCallbacks callbacks)
    : m_request(std::move(request))
    , m_settings(settings)
    , m_callbacks(std::move(callbacks))
    , m_timeline(nullptr, &IKxTimeline::releaseInstance)
    , m_thread([this] { Run(); })
{
}

CropFinder::~CropFinder()
{
    m_cancel.Cancel();
    m_thread.Join();
    // It refers to the timeline.
    m_helper.reset();
}

void CropFinder::Cancel()
{
    m_cancel.Cancel();
}

void CropFinder::Run()
{
    Analyzed analyzed;
    const KxError failure = KxCallGuarded([&] { analyzed = Find(); });
    if (failure) {
        analyzed = {};
        analyzed.found.message =
            Texts::tr("Cannot reframe %1: %2.").arg(QFileInfo(m_request.path).fileName(), *failure);
    }
    QMetaObject::invokeMethod(
        this, [this, analyzed] { ApplyEdits(analyzed); }, Qt::QueuedConnection);
}

CropFinder::Analyzed CropFinder::Find()
{
    Analyzed failed;
    std::unique_ptr<KxVideoScanner> video;
    KxResult<std::unique_ptr<KxMediaItem>> media = KxMediaItem::Open(m_request.path, m_cancel, video);
    if (!media) {
        failed.found.message = media.Message();
        return failed;
    }
    if (!(*media)->mediaInfo()->hasVideoStream()) {
        failed.found.message = Texts::tr("Cannot reframe %1: it has no moving picture.").arg((*media)->name());
        return failed;
    }
    if (!m_request.cropTrack.isEmpty()) {
        return ReadTrack(std::move(*media));
    }
    if (const KxError reason = ReasonNotToAnalyze(**media)) {
        failed.found.message = *reason;
        return failed;
    }
    return Analyze(std::move(*media), std::move(video));
}

CropFinder::Analyzed CropFinder::ReadTrack(std::shared_ptr<KxMediaItem> media) const
{
    Analyzed analyzed;
    KxResult<CropTrack> track = CropTrackFile::Read(m_request.cropTrack, media->duration());
    if (!track) {
        analyzed.found.message = track.Message();
    } else if (track->crops.size() < media->duration()) {
        analyzed.found.message =
            Texts::tr("Cannot use %1: it has the crops of %2 frames, and %3 has %4 frames.")
                .arg(QFileInfo(m_request.cropTrack).fileName(), QString::number(track->crops.size()), media->name(),
                     QString::number(media->duration()));
    } else {
        analyzed.found.outcome = KxOutcome::Done;
        analyzed.crops = track->crops;
        analyzed.aspect = track->aspect;
    }
    analyzed.media = std::move(media);
    return analyzed;
}

KxError CropFinder::ReasonNotToAnalyze(const KxMediaItem& media) const
{
    // The rules of the dialog.
    constexpr int fewestFrames = 32;
    const auto* const video = dynamic_cast<const IKxVideoMediaInfo*>(media.mediaInfo());
    const QSize aspect = m_request.plan.aspect;
    const QSize picture = video->resolution();
    if (qint64{picture.width()} * aspect.height() == qint64{picture.height()} * aspect.width()) {
        return Texts::tr("Cannot reframe %1: it has the aspect ratio %2 already.")
            .arg(media.name(), AspectText(aspect));
    }
    if (video->frameCount() < fewestFrames) {
        return Texts::tr("Cannot reframe %1: it has only %n frames; %2 are needed.", nullptr,
                         static_cast<int>(video->frameCount()))
            .arg(media.name(), QString::number(fewestFrames));
    }
    return std::nullopt;
}

CropFinder::Analyzed CropFinder::Analyze(std::shared_ptr<KxMediaItem> media, std::unique_ptr<KxVideoScanner> video)
{
    Analyzed analyzed;
    m_settings.wantsShots = true;
    m_settings.choices.clear();
    if (!m_request.edits.choices.isEmpty()) {
        KxResult<KxSubjectChoices> choices = KxChoicesFormat::Read(m_request.edits.choices, media->name());
        if (!choices) {
            analyzed.found.message = choices.Message();
            return analyzed;
        }
        m_settings.choices = std::move(*choices);
    }
    const IKxAutoReframeParam param(m_request.plan.speed, m_request.plan.aspect);
    KxResult<std::unique_ptr<KxAnalysis>> analysis =
        KxVideoAnalysis::Open(m_request.path, param, m_settings, m_cancel, std::move(video));
    if (!analysis) {
        analyzed.found.message = analysis.Message();
        return analyzed;
    }
    KxAnalysis::Result result = (*analysis)->Run([this](int percent) {
        if (m_callbacks.progress) {
            m_callbacks.progress(percent * WholeProgress / 100);
        }
    });
    analyzed.found.outcome = result.outcome;
    analyzed.found.message = result.message;
    for (const KxAutoReframeShot& shot : result.shots) {
        analyzed.shotStarts.push_back(shot.first);
        if (shot.doubt != KxAutoReframeDoubt::None) {
            analyzed.found.doubtfulShots += static_cast<uint>(shot.first);
        }
    }
    if (result.record) {
        const VideoEdits& edits = m_request.edits;
        KrKeptEdits kept{edits.editPoints, edits.editPictures, edits.unplacedEdits};
        kept.LimitTo(static_cast<uint>(media->duration()));
        kept.MoveTo(KxFramePictures::Find(*result.record, kept.Described()));
        analyzed.editPoints = kept.points;
        const auto isMissing = [](const KxPlacedChoice& choice) {
            return choice.place == KxPlacedChoice::Place::Missing;
        };
        analyzed.found.missingEdits =
            kept.unplaced.size() +
            static_cast<int>(std::count_if(result.choices.begin(), result.choices.end(), isMissing));
    }
    analyzed.crops = result.crops;
    analyzed.models = std::move(result.models);
    analyzed.aspect = m_request.plan.aspect;
    analyzed.media = std::move(media);
    return analyzed;
}

void CropFinder::ApplyEdits(const Analyzed& analyzed)
{
    m_analyzed = analyzed;
    if (m_cancel.IsCancelled()) {
        m_analyzed.found.outcome = KxOutcome::Cancelled;
        m_analyzed.found.message.clear();
    }
    if (m_analyzed.found.outcome != KxOutcome::Done) {
        Finish();
        return;
    }
    auto clip = static_cast<const KxClip*>(m_analyzed.media->clip())->Copy(KxClip::KeyFrames::Copied);
    m_timeline.reset(new KxSimpleTimeline(std::move(clip)));
    m_helper = std::make_unique<KrAutoReframeHelper>();
    m_helper->SetTimeline(m_timeline.get());
    m_helper->SetEditsSurvive(true);
    if (m_request.cropTrack.isEmpty()) {
        m_helper->RestoreEditPoints(m_analyzed.editPoints);
    }
    connect(m_helper.get(), &KrAutoReframeHelper::sigApplyFinished, this, &CropFinder::Finish);
    m_helper->ApplyResults(m_analyzed.crops);
}

void CropFinder::Finish()
{
    FoundCrops& found = m_analyzed.found;
    if (found.outcome == KxOutcome::Done && m_cancel.IsCancelled()) {
        found.outcome = KxOutcome::Cancelled;
    }
    if (found.outcome == KxOutcome::Done) {
        if (const KxError reason = MakeRequest(found.request)) {
            found.outcome = KxOutcome::Failed;
            found.message = *reason;
        } else {
            found.track = std::make_shared<const CropTrack>(MakeTrack());
            found.clip = std::make_shared<const KxCroppedClip>(MakeClip());
        }
    }
    if (m_callbacks.finished) {
        m_callbacks.finished(found);
    }
}

KxError CropFinder::MakeRequest(ExportRequest& request) const
{
    KxResult<KxRenderSource> source = KxRenderSource::FromTimeline(*m_helper->GetWorkTimeline());
    if (!source) {
        return source.Message();
    }
    const QSize picture = m_analyzed.media->StreamInfo().resolution();
    const QRectF crop = KrExportParameters::ShapeOfResult(m_analyzed.crops, picture, m_analyzed.aspect);
    source->otherShapes = OtherShapes();
    const KxOutputSize size{QSize(), m_request.plan.heightPx, m_request.plan.shortSidePx};
    const KxResult<KxRenderSettings> settings = CropRenderSettings::For(*m_analyzed.media, crop, size);
    if (!settings) {
        return Texts::tr("Cannot reframe %1: %2.").arg(m_analyzed.media->name(), settings.Message());
    }
    request = {*source, *settings};
    return std::nullopt;
}

KxRenderSource::OtherShapes CropFinder::OtherShapes() const
{
    const QSize picture = m_analyzed.media->StreamInfo().resolution();
    const QList<IKxAutoReframeResult>& crops = m_analyzed.crops;
    const QSize result = KrExportParameters::EvenResolution(
        picture, KrExportParameters::ShapeOfResult(crops, picture, m_analyzed.aspect));
    const bool isWholeAnywhere =
        std::any_of(crops.begin(), crops.end(), [&result, &picture](const IKxAutoReframeResult& crop) {
            return !KxCropWindow::HasShapeOf(result, crop.cropRect(), picture);
        });
    return isWholeAnywhere ? KxRenderSource::OtherShapes::Fitted : KxRenderSource::OtherShapes::Stretched;
}

CropTrack CropFinder::MakeTrack() const
{
    const KxStreamInfo& info = m_analyzed.media->StreamInfo();
    CropTrack track;
    track.sourcePath = m_request.path;
    track.sourceSize = info.resolution();
    track.frameRate = info.frameRate();
    track.aspect = m_analyzed.aspect;
    track.speedName = KxSpeedName::Of(m_request.plan.speed);
    track.crops = m_helper->GetDisplayResults();
    track.models = m_analyzed.models;
    track.otherShapes = OtherShapes();
    return track;
}

KxCroppedClip CropFinder::MakeClip() const
{
    KxCroppedClip clip = CroppedMedia::Clip(*m_analyzed.media, m_helper->GetDisplayResults(),
                                            m_analyzed.found.request.settings.resolution, OtherShapes());
    clip.shotStarts = m_analyzed.shotStarts;
    for (const uint frame : m_helper->GetEditPointFrames()) {
        clip.edits.push_back(frame);
    }
    return clip;
}
