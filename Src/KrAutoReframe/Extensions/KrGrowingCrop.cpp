#include <KrAutoReframe/Extensions/KrGrowingCrop.h>

#include <KrAutoReframe/Engine/KrAutoReframeProcess.h>
#include <KrAutoReframe/Player/KrAutoReframePlayerView.h>
#include <KrAutoReframe/Settings/KrAutoReframePropertyPanel.h>

#include <KxModel/IKxAutoReframePartialResults.h>
#include <KxPlayer/KxMediaPlayerPresenter.h>

namespace
{

constexpr int IntervalMs = 200;

} // namespace

KrGrowingCrop::KrGrowingCrop(IKxAutoReframePartialResults& service, const Parts& parts, QObject* parent)
    : QObject(parent)
    , m_service(service)
    , m_parts(parts)
{
    m_service.CollectPartialResults(true);
    m_timer.setInterval(IntervalMs);
    connect(&m_timer, &QTimer::timeout, this, &KrGrowingCrop::ShowMore);
    connect(&m_parts.process, &KrAutoReframeProcess::sigProcessProgress, this, &KrGrowingCrop::HandleProgress);
    connect(&m_parts.process, &KrAutoReframeProcess::sigProcessFinished, this, &KrGrowingCrop::HandleFinished);
}

KrGrowingCrop::~KrGrowingCrop()
{
    m_service.CollectPartialResults(false);
}

void KrGrowingCrop::Begin(const QString& path)
{
    m_path = path;
    m_percent = 0;
    m_shown.clear();
    m_timer.start();
    m_parts.panel.SetBusy(true);
    Q_EMIT sigChanged();
}

bool KrGrowingCrop::Stop()
{
    if (!IsGrowing()) {
        return false;
    }
    m_parts.process.StopProcess();
    m_parts.process.GetHelper()->AbandonTask();
    ShowResultsAgain();
    End();
    return true;
}

void KrGrowingCrop::HandleProgress(int progress)
{
    constexpr int perPercent = 100;
    const int percent = progress / perPercent;
    if (IsGrowing() && percent != m_percent) {
        m_percent = percent;
        Q_EMIT sigChanged();
    }
}

void KrGrowingCrop::HandleFinished(bool success)
{
    if (!IsGrowing()) {
        return;
    }
    if (!success) {
        ShowResultsAgain();
    }
    End();
}

void KrGrowingCrop::ShowMore()
{
    const QList<IKxAutoReframeResult> results = m_service.GetPartialResults(m_path);
    if (results.isEmpty() || results.isSharedWith(m_shown)) {
        return;
    }
    m_shown = results;
    m_parts.process.GetHelper()->ShowPreliminary(results);
    m_parts.view.RefreshFrame(m_parts.view.Presenter().currentFrame());
}

void KrGrowingCrop::End()
{
    m_timer.stop();
    m_shown.clear();
    m_parts.panel.SetBusy(false);
    Q_EMIT sigChanged();
}

void KrGrowingCrop::ShowResultsAgain()
{
    m_parts.process.GetHelper()->ShowResultsAgain();
    m_parts.view.RefreshFrame(m_parts.view.Presenter().currentFrame());
}
