#include <KrAutoReframe/Engine/KrAutoReframeAnalyzer.h>

#include <KxModel/IKxAutoReframeParam.h>

#include <QSize>

namespace
{

constexpr int EndedState = 2;

} // namespace

KrAutoReframeAnalyzer::KrAutoReframeAnalyzer()
{
    getAutoReframeService()->AddObserver(this);
}

KrAutoReframeAnalyzer::~KrAutoReframeAnalyzer()
{
    IKxAutoReframeService* const service = getAutoReframeService();
    service->StopTask(0);
    service->RemoveObserver(this);
}

void KrAutoReframeAnalyzer::SetParam(const KrAutoReframeAnalyzeParam& param)
{
    const std::lock_guard<std::mutex> lock(m_paramMutex);
    m_param = param;
}

KrAutoReframeAnalyzeParam KrAutoReframeAnalyzer::GetParam() const
{
    const std::lock_guard<std::mutex> lock(m_paramMutex);
    return m_param;
}

bool KrAutoReframeAnalyzer::Start()
{
    IKxAutoReframeService* const service = getAutoReframeService();
    service->StopTask(0);
    const KrAutoReframeAnalyzeParam asked = GetParam();
    const IKxAutoReframeParam param(asked.mode, QSize(asked.width, asked.height));
    return service->StartTask(asked.path, param);
}

const QList<IKxAutoReframeResult>& KrAutoReframeAnalyzer::GetResults() const
{
    return m_results;
}

void KrAutoReframeAnalyzer::OnAutoReframeEvent(qint64 /*key*/, int state, int percent)
{
    Q_EMIT sigAnalyzeProgress(percent / 100.0);
    if (state == EndedState && percent >= 100) {
        ProcessResult();
    }
}

void KrAutoReframeAnalyzer::StopWork()
{
    getAutoReframeService()->StopTask(0);
    m_canceled = true;
}

void KrAutoReframeAnalyzer::ProcessResult()
{
    m_results = QList<IKxAutoReframeResult>();
    if (m_canceled) {
        Q_EMIT sigAnalyzeCanceled();
        m_canceled = false;
        return;
    }
    const int status = getAutoReframeService()->GetResults(GetParam().path, &m_results);
    Q_EMIT sigAnalyzeFinished(status >= 0);
}
