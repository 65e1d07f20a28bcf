#include <KrAutoReframe/Engine/KrAutoReframeProcess.h>

#include <KxModel/IKxAbstractMedia.h>
#include <KxModel/IKxAutoReframeParam.h>
#include <KxModel/IKxAutoReframeService.h>
#include <KxModel/IKxMediaInfo.h>
#include <KxModel/IKxTimeline.h>
#include <KxModel/KxVBLMODEL.h>

#include <QCoreApplication>
#include <QDebug>
#include <QEvent>
#include <QSize>

#include <algorithm>

namespace
{

constexpr int FewestFrames = 32;

enum StartCode { Started = 0, TooShort = 1, NoSource = 2, SameAspectRatio = 3, Refused = 4 };

double AspectRatio(int width, int height)
{
    return static_cast<double>(width) / static_cast<double>(height);
}

} // namespace

KrAutoReframeProcess::KrAutoReframeProcess(QObject* parent)
    : QObject(parent)
    , m_jobEvents(new QObject(this))
    , m_analyzer(std::make_shared<KrAutoReframeAnalyzer>())
    , m_helper(std::make_shared<KrAutoReframeHelper>())
{
    connect(m_analyzer.get(), &KrAutoReframeAnalyzer::sigAnalyzeProgress, m_jobEvents,
            [this](double progress) { HandleAnalyzeProgress(progress); });
    connect(m_helper.get(), &KrAutoReframeHelper::sigApplyProgress, m_jobEvents,
            [this](double progress) { HandleApplyProgress(progress); });
    connect(m_analyzer.get(), &KrAutoReframeAnalyzer::sigAnalyzeCanceled, m_jobEvents,
            [this] { Q_EMIT sigProcessFinished(false); });
    connect(m_analyzer.get(), &KrAutoReframeAnalyzer::sigAnalyzeFinished, m_jobEvents,
            [this](bool success) { HandleAnalyzeFinished(success); });
    connect(m_helper.get(), &KrAutoReframeHelper::sigApplyFinished, this, &KrAutoReframeProcess::sigProcessFinished);
}

KrAutoReframeProcess::~KrAutoReframeProcess() = default;

const std::shared_ptr<KrAutoReframeAnalyzer>& KrAutoReframeProcess::GetAnalyzer() const
{
    return m_analyzer;
}

const std::shared_ptr<KrAutoReframeHelper>& KrAutoReframeProcess::GetHelper() const
{
    return m_helper;
}

void KrAutoReframeProcess::OpenMedia(IKxAbstractMediaItem* item)
{
    if (item == nullptr) {
        return;
    }
    m_path = item->filePath();
    IKxClip* const clip = item->clip();
    IKxTimeline* const timeline = clip != nullptr ? IKxTimeline::createSimpleTimeline(clip) : nullptr;
    if (timeline == nullptr) {
        return;
    }
    KxProjectSettings settings = timeline->projectSettings();
    if (const auto* const video = dynamic_cast<const IKxVideoMediaInfo*>(item->mediaInfo())) {
        settings.resolution = video->resolution();
        settings.frameRateType = KxVBLMODEL::toFrameRateType(video->frameRate());
    }
    timeline->setProjectSettings(settings);
    m_helper->SetTimeline(timeline);
}

void KrAutoReframeProcess::OpenTimeline(IKxTimeline* timeline)
{
    if (timeline == nullptr) {
        return;
    }
    const QList<IKxClip*> clips = timeline->clips();
    m_path = clips.isEmpty() ? QString() : clips.first()->filePath();
    m_helper->SetTimeline(timeline);
}

const QString& KrAutoReframeProcess::GetPath() const
{
    return m_path;
}

int KrAutoReframeProcess::StartAnalyze(int width, int height, int mode)
{
    const IKxTimeline* const timeline = m_helper->GetSourceTimeline();
    if (timeline == nullptr) {
        return NoSource;
    }
    const QSize resolution = timeline->projectSettings().resolution;
    if (AspectRatio(resolution.width(), resolution.height()) == AspectRatio(width, height)) {
        return SameAspectRatio;
    }
    if (timeline->duration() < FewestFrames) {
        return TooShort;
    }
    m_analyzer->SetParam({m_path, width, height, mode});
    IKxAutoReframeService* const service = getAutoReframeService();
    service->StopTask(0);
    m_helper->AbandonTask();
    DropQueuedEvents();
    const IKxAutoReframeParam param(mode, QSize(width, height));
    return service->StartTask(m_path, param) ? Started : Refused;
}

KrAutoReframeAnalyzeParam KrAutoReframeProcess::GetParam() const
{
    return m_analyzer->GetParam();
}

void KrAutoReframeProcess::StopProcess()
{
    getAutoReframeService()->StopTask(0);
    DropQueuedEvents();
    m_helper->Cancel();
}

void KrAutoReframeProcess::DropQueuedEvents()
{
    QCoreApplication::removePostedEvents(m_jobEvents, QEvent::MetaCall);
}

bool KrAutoReframeProcess::ApplyResults()
{
    const QList<IKxAutoReframeResult>& results = m_analyzer->GetResults();
    return !results.isEmpty() && m_helper->ApplyResults(results);
}

void KrAutoReframeProcess::HandleAnalyzeProgress(double progress)
{
    qDebug() << "analysis progress:" << progress;
    Q_EMIT sigProcessProgress(static_cast<int>(std::min(progress, 1.0) * 10000 * 0.8));
}

void KrAutoReframeProcess::HandleApplyProgress(double progress)
{
    qDebug() << "set keyframe progress:" << progress;
    Q_EMIT sigProcessProgress(static_cast<int>(progress * 10000 * 0.2 + 8000));
}

void KrAutoReframeProcess::HandleAnalyzeFinished(bool success)
{
    if (success && ApplyResults()) {
        return;
    }
    Q_EMIT sigProcessFinished(success);
    Q_EMIT sigProcessError(QString());
}
