#include <KxModel/KxAutoReframeService.h>

#include <KxModel/KxCacheFolder.h>
#include <KxModel/KxChoiceRecords.h>
#include <KxModel/KxFollowTracks.h>
#include <KxModel/KxRecordStore.h>

#include <KxSubject/KxOpenCvProcess.h>

#include <QCoreApplication>
#include <QFileInfo>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(KxAutoReframeService)
};

constexpr int StateRunning = 1;
constexpr int StateEnded = 2;

QString FailureMessage(const QString& path, const QString& reason)
{
    return Texts::tr("Cannot analyse %1: %2.").arg(QFileInfo(path).fileName(), reason.simplified());
}

} // namespace

IKxAutoReframeService* getAutoReframeService()
{
    return &KxAutoReframeService::Instance();
}

KxAutoReframeService& KxAutoReframeService::Instance()
{
    static KxAutoReframeService service;
    // Windows ends a process's threads before it destroys the static objects of libraries, which would then wait for
    // ever.
    static const bool endsWithApplication = [] {
        qAddPostRoutine([] { service.EndThread(); });
        return true;
    }();
    Q_UNUSED(endsWithApplication)
    return service;
}

void KxAutoReframeService::PrepareProgram()
{
    KxOpenCvProcess::Prepare();
}

KxAutoReframeService::KxAutoReframeService()
    : KxAutoReframeService(&KxVideoAnalysis::Open)
{
}

KxAutoReframeService::KxAutoReframeService(Open open)
    : m_open(std::move(open))
{
    m_settings.records = std::make_shared<KxRecordStore>();
    m_settings.tracks = std::make_shared<KxFollowTracks>(m_settings.records->Folder());
}

KxAutoReframeService::~KxAutoReframeService()
{
    StopTask(0);
}

void KxAutoReframeService::EndThread()
{
    StopTask(0);
    std::unique_ptr<KxWorker> worker;
    const std::lock_guard<std::mutex> lock(m_mutex);
    worker.swap(m_worker);
}

bool KxAutoReframeService::StartTask(const QString& path, const IKxAutoReframeParam& param)
{
    bool accepted = false;
    const KxError failure = KxCallGuarded([&] { accepted = Start(path, param); });
    if (failure) {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_result = {};
        m_result.message = FailureMessage(path, *failure);
    }
    return accepted;
}

bool KxAutoReframeService::Start(const QString& path, const IKxAutoReframeParam& param)
{
    const auto task = std::make_shared<Task>();
    task->path = path;
    KxAnalysisSettings settings;
    std::shared_ptr<KxVideoScanner> opened;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_newestStart.Cancel();
        m_newestStart = task->cancel;
        task->number = ++m_lastStarted;
        settings = m_settings;
        opened = std::move(m_opened);
        if (m_collectsPartial) {
            settings.partial.take = PartialTaker(*task);
        }
        m_partial.clear();
    }
    WaitForTasks();
    auto analysis = KxResult<std::unique_ptr<KxAnalysis>>::Failure({});
    const KxError failure =
        KxCallGuarded([&] { analysis = m_open(path, param, settings, task->cancel, std::move(opened)); });

    const std::lock_guard<std::mutex> lock(m_mutex);
    if (task->cancel.IsCancelled()) {
        // A stop or a newer start during the opening has the same effect as one right after this call.
        return true;
    }
    // Until the new task ends, what is known about the pictures of its video still holds.
    std::shared_ptr<const KxSubjectRecord> record = path == m_resultPath ? m_result.record : nullptr;
    m_result = {};
    m_result.record = std::move(record);
    if (!analysis) {
        m_result.message = failure ? FailureMessage(path, *failure) : analysis.Message();
        return false;
    }
    task->analysis = std::move(*analysis);
    if (!m_worker) {
        m_worker = std::make_unique<KxWorker>(KxWorker::Order::OldestFirst);
    }
    m_worker->Add({[this, task](const KxCancelToken&) { RunTask(*task); }, {}});
    m_lastAdded = task->number;
    return true;
}

std::function<void(const QList<IKxAutoReframeResult>&)> KxAutoReframeService::PartialTaker(const Task& task)
{
    return [this, path = task.path, cancel = task.cancel](const QList<IKxAutoReframeResult>& results) {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (!cancel.IsCancelled()) {
            m_partialPath = path;
            m_partial = results;
        }
    };
}

void KxAutoReframeService::RunTask(Task& task)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_taskThread = std::this_thread::get_id();
    }
    const KxError failure = KxCallGuarded([&] { Analyse(task); });
    if (failure) {
        KxCallGuarded([&] {
            KxAnalysis::Result result;
            result.message = FailureMessage(task.path, *failure);
            Report(task, std::move(result));
        });
    }
    // The file is closed before the end of the task is reported.
    task.analysis.reset();
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_taskThread = {};
    m_lastEnded = task.number;
    m_taskEnded.notify_all();
}

void KxAutoReframeService::Analyse(Task& task)
{
    KxAnalysis::Result result;
    if (!task.cancel.IsCancelled()) {
        result = task.analysis->Run(
            [&](int percent) { m_observers.Notify(task.number, StateRunning, percent, task.cancel); });
    }
    Report(task, std::move(result));
}

void KxAutoReframeService::Report(const Task& task, KxAnalysis::Result result)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (task.cancel.IsCancelled()) {
            return;
        }
        m_resultPath = task.path;
        m_result = std::move(result);
        m_partial.clear();
    }
    m_observers.Notify(task.number, StateEnded, 100, task.cancel);
}

void KxAutoReframeService::StopTask(int /*task*/)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_newestStart.Cancel();
        m_partial.clear();
    }
    WaitForTasks();
}

void KxAutoReframeService::WaitForTasks()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    if (m_taskThread == std::this_thread::get_id()) {
        return;
    }
    m_taskEnded.wait(lock, [this, last = m_lastAdded] { return m_lastEnded >= last; });
}

void KxAutoReframeService::AddObserver(IKxAutoReframeEventObserver* observer)
{
    m_observers.Add(observer);
}

void KxAutoReframeService::RemoveObserver(IKxAutoReframeEventObserver* observer)
{
    m_observers.Remove(observer);
}

void KxAutoReframeService::CollectShots(bool isWanted)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_settings.wantsShots = isWanted;
}

bool KxAutoReframeService::IsKnown(const QString& path) const
{
    const KxAnalysisSettings settings = Settings();
    bool isKnown = false;
    // A record that is too large to read is as good as none.
    KxCallGuarded([&] { isKnown = KxVideoAnalysis::HasRecord(path, settings); });
    return isKnown;
}

void KxAutoReframeService::SetChoices(const QList<KxAutoReframeChoice>& choices)
{
    SetChoices(KxChoiceRecords::ToSubject(choices));
}

QList<IKxAutoReframeResult> KxAutoReframeService::Decide(const QString& path, const IKxAutoReframeParam& param) const
{
    KxAnalysisSettings settings = Settings();
    settings.wantsFindings = false;
    settings.wantsShots = false;
    KxAnalysis::Result result;
    // The person sees that there is no result; a task would report why.
    KxCallGuarded([&] {
        const KxCancelToken cancel;
        if (KxVideoAnalysis::HasRecord(path, settings)) {
            if (const auto analysis = m_open(path, param, settings, cancel, nullptr)) {
                result = (*analysis)->Run([](int) {});
            }
        }
    });
    return result.crops;
}

void KxAutoReframeService::CollectPartialResults(bool isWanted)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_collectsPartial = isWanted;
}

void KxAutoReframeService::SetNetworkFolder(const QString& path)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_settings.networkFolder = path;
}

void KxAutoReframeService::SetRecordFolder(const QString& path)
{
    m_settings.records->SetFolder(path);
}

KxError KxAutoReframeService::RecordFolderProblem() const
{
    return m_settings.records->Folder()->Problem();
}

void KxAutoReframeService::SetParts(const QStringList& parts)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_settings.parts = parts;
}

void KxAutoReframeService::Offer(std::shared_ptr<KxVideoScanner> opened)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_opened = std::move(opened);
}

void KxAutoReframeService::SetChoices(KxSubjectChoices choices)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_settings.choices = std::move(choices);
}

void KxAutoReframeService::SetFindings(Findings findings)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_settings.wantsFindings = findings == Findings::Keep;
}

void KxAutoReframeService::SetSpeakers(Speakers speakers)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_settings.followsSpeaker = speakers == Speakers::Follow;
}

KxAnalysisSettings KxAutoReframeService::Settings() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_settings;
}
