#include <KxModel/KxAutoReframeService.h>

namespace
{

constexpr int stateRunning = 1;
constexpr int stateEnded = 2;

} // namespace

IKxAutoReframeService* getAutoReframeService()
{
    return &KxAutoReframeService::Instance();
}

KxAutoReframeService& KxAutoReframeService::Instance()
{
    static KxAutoReframeService service;
    return service;
}

KxAutoReframeService::KxAutoReframeService()
    : KxAutoReframeService(&KxVideoAnalysis::Open)
{
}

KxAutoReframeService::KxAutoReframeService(Open open)
    : m_open(std::move(open))
{
}

KxAutoReframeService::~KxAutoReframeService()
{
    StopTask(0);
}

bool KxAutoReframeService::StartTask(const QString& path, const IKxAutoReframeParam& param)
{
    StopTask(0);
    auto task = std::make_unique<Task>();
    task->path = path;
    KxAnalysisSettings settings;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        task->key = ++m_lastKey;
        settings = m_settings;
    }

    KxResult<std::unique_ptr<KxAnalysis>> analysis = m_open(path, param, settings, task->cancel);
    std::unique_lock<std::mutex> lock(m_mutex);
    while (std::unique_ptr<Task> other = std::move(m_task)) {
        // Another thread started one meanwhile; the newest start wins.
        lock.unlock();
        StopAndJoin(std::move(other));
        lock.lock();
    }
    m_resultPath.clear();
    m_result = {};
    if (!analysis) {
        m_result.message = analysis.Message();
        return false;
    }
    task->thread =
        std::thread([this, key = task->key, path, cancel = task->cancel,
                     work = std::shared_ptr<KxAnalysis>(std::move(*analysis))] { Run(key, path, cancel, *work); });
    m_task = std::move(task);
    return true;
}

void KxAutoReframeService::Run(qint64 key, const QString& path, const KxCancelToken& cancel, KxAnalysis& analysis)
{
    KxAnalysis::Result result =
        analysis.Run([&](int percent) { m_observers.Notify(key, stateRunning, percent, cancel); });
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (cancel.IsCancelled()) {
            return;
        }
        m_resultPath = path;
        m_result = std::move(result);
    }
    m_observers.Notify(key, stateEnded, 100, cancel);
}

void KxAutoReframeService::StopTask(int)
{
    std::unique_ptr<Task> task;
    std::vector<std::thread> retired;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        task = std::move(m_task);
        for (auto thread = m_retired.begin(); thread != m_retired.end();) {
            if (thread->get_id() == std::this_thread::get_id()) {
                ++thread;
                continue;
            }
            retired.push_back(std::move(*thread));
            thread = m_retired.erase(thread);
        }
    }
    for (std::thread& thread : retired) {
        thread.join();
    }
    if (task) {
        StopAndJoin(std::move(task));
    }
}

void KxAutoReframeService::StopAndJoin(std::unique_ptr<Task> task)
{
    task->cancel.Cancel();
    m_observers.WaitForCallsOf(task->key);
    if (task->thread.get_id() != std::this_thread::get_id()) {
        task->thread.join();
        return;
    }
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_retired.push_back(std::move(task->thread));
}

int KxAutoReframeService::GetResults(const QString& path, QList<IKxAutoReframeResult>* out)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    out->clear();
    if (m_result.outcome != KxOutcome::Done || path != m_resultPath) {
        return -1;
    }
    *out = m_result.crops;
    return 0;
}

void KxAutoReframeService::AddObserver(IKxAutoReframeEventObserver* observer)
{
    m_observers.Add(observer);
}

void KxAutoReframeService::RemoveObserver(IKxAutoReframeEventObserver* observer)
{
    m_observers.Remove(observer);
}

void KxAutoReframeService::SetFaceModel(const QString& path)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_settings.faceDetectorPath = path;
}

void KxAutoReframeService::SetFindings(Findings findings)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_settings.wantsFindings = findings == Findings::Keep;
}

std::shared_ptr<const KxSubjectFindings> KxAutoReframeService::LastFindings() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_result.findings;
}

QString KxAutoReframeService::LastErrorMessage() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_result.message;
}

QStringList KxAutoReframeService::LastWarnings() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_result.warnings;
}
