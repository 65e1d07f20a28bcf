#include <Apps/AutoReframe/Exports/ExportQueue.h>

#include <Apps/AutoReframe/Exports/PauseGate.h>

#include <algorithm>
#include <chrono>

namespace
{

using State = ExportItem::State;

qint64 SteadyMs()
{
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
}

} // namespace

ExportQueue::ExportQueue(Workers workers, QObject* parent)
    : ExportQueue(std::move(workers), &SteadyMs, parent)
{
}

ExportQueue::ExportQueue(Workers workers, const Stopwatch::Clock& clock, QObject* parent)
    : QObject(parent)
    , m_workers(std::move(workers))
    , m_stateTime(clock)
    , m_roundTime(clock)
    , m_gate(std::make_shared<PauseGate>())
{
}

ExportQueue::~ExportQueue()
{
    m_gate->Open();
}

int ExportQueue::Add(const ExportRequest& request)
{
    ExportItem item;
    item.request = request;
    item.frames = request.source.crops != nullptr ? static_cast<qint64>(request.source.crops->size()) : 0;
    item.filePath = request.settings.outputPath;
    Enqueue(std::move(item));
    return m_lastId;
}

int ExportQueue::AddPlanned(const PlannedExport& planned)
{
    ExportItem item;
    item.request.source.path = planned.path;
    item.request.settings.outputPath = planned.outputPath;
    item.plan = planned.plan;
    item.frames = planned.frames;
    item.filePath = planned.outputPath;
    Enqueue(std::move(item));
    return m_lastId;
}

void ExportQueue::Enqueue(ExportItem item)
{
    item.id = ++m_lastId;
    item.isPaused = m_isPaused;
    m_items.push_back(item);
    EnterRound(item.id);
    Q_EMIT sigAdded(item.id);
    StartNext();
}

void ExportQueue::EnterRound(int id)
{
    if (m_round.isEmpty()) {
        m_roundTime.Restart();
    }
    m_round.insert(id);
}

int ExportQueue::Restore(ExportItem item)
{
    Q_ASSERT(!item.IsActive());
    item.id = ++m_lastId;
    m_items.push_back(item);
    Q_EMIT sigAdded(item.id);
    return item.id;
}

void ExportQueue::Cancel(int id)
{
    ExportItem* const item = Item(id);
    if (item == nullptr) {
        return;
    }
    if (item->state == State::Waiting) {
        item->state = State::Cancelled;
        item->isPaused = false;
        m_round.remove(id);
        HandleIdle();
    } else if (item->state == State::Running || item->state == State::Analyzing) {
        item->state = State::Cancelling;
        if (m_task != nullptr) {
            m_task->Cancel();
        }
        m_gate->Open();
    } else {
        return;
    }
    Q_EMIT sigChanged(id);
}

void ExportQueue::CancelAll()
{
    // From the end, so that no waiting export starts when the running one has ended.
    for (auto item = m_items.rbegin(); item != m_items.rend(); ++item) {
        Cancel(item->id);
    }
}

void ExportQueue::CancelPlanned()
{
    for (auto item = m_items.rbegin(); item != m_items.rend(); ++item) {
        if (item->plan) {
            Cancel(item->id);
        }
    }
}

void ExportQueue::Retry(int id)
{
    const auto found =
        std::find_if(m_items.begin(), m_items.end(), [id](const ExportItem& item) { return item.id == id; });
    if (found == m_items.end() || found->IsActive() || found->state == State::Done) {
        return;
    }
    found->state = State::Waiting;
    found->progress = 0;
    found->secondsLeft.reset();
    found->message.clear();
    found->shotsToLookAt.clear();
    found->isPaused = m_isPaused;
    found->filePath = found->request.settings.outputPath;
    // The list shows the queue in its order, so the export moves to its end.
    std::rotate(found, found + 1, m_items.end());
    EnterRound(id);
    Q_EMIT sigChanged(id);
    StartNext();
}

void ExportQueue::Remove(int id)
{
    const ExportItem* const item = Find(id);
    if (item == nullptr || item->IsActive()) {
        return;
    }
    m_items.erase(m_items.begin() + (item - m_items.data()));
    m_round.remove(id);
    Q_EMIT sigRemoved(id);
}

void ExportQueue::RemoveFinished()
{
    std::vector<int> finished;
    for (const ExportItem& item : m_items) {
        if (item.IsFinished()) {
            finished.push_back(item.id);
        }
    }
    for (const int id : finished) {
        Remove(id);
    }
}

std::vector<int> ExportQueue::WithState(State state, bool isPlanned) const
{
    std::vector<int> ids;
    for (const ExportItem& item : m_items) {
        if (item.state == state && (item.plan || !isPlanned)) {
            ids.push_back(item.id);
        }
    }
    return ids;
}

void ExportQueue::ResumeInterrupted()
{
    for (const int id : WithState(State::Interrupted, false)) {
        Retry(id);
    }
}

void ExportQueue::DiscardInterrupted()
{
    for (const int id : WithState(State::Interrupted, false)) {
        Remove(id);
    }
}

void ExportQueue::RetryFailed()
{
    for (const int id : WithState(State::Failed, true)) {
        Retry(id);
    }
}

int ExportQueue::InterruptedCount() const
{
    return static_cast<int>(WithState(State::Interrupted, false).size());
}

const ExportItem* ExportQueue::Find(int id) const
{
    const auto found =
        std::find_if(m_items.begin(), m_items.end(), [id](const ExportItem& item) { return item.id == id; });
    return found != m_items.end() ? &*found : nullptr;
}

ExportItem* ExportQueue::Item(int id)
{
    return const_cast<ExportItem*>(Find(id));
}

int ExportQueue::FinishedCount() const
{
    return static_cast<int>(
        std::count_if(m_items.begin(), m_items.end(), [](const ExportItem& item) { return item.IsFinished(); }));
}

int ExportQueue::UnfinishedCount() const
{
    return static_cast<int>(
        std::count_if(m_items.begin(), m_items.end(), [](const ExportItem& item) { return item.IsActive(); }));
}

bool ExportQueue::WillWrite(const QString& path) const
{
    return std::any_of(m_items.begin(), m_items.end(), [&path](const ExportItem& item) {
        return !item.IsFinished() && item.request.settings.outputPath.compare(path, Qt::CaseInsensitive) == 0;
    });
}

QueueSummary ExportQueue::Summary() const
{
    QueueSummary summary = QueueSummary::Of(m_items);
    QueueWork work;
    for (const ExportItem& item : m_items) {
        if (m_round.contains(item.id)) {
            work.Add(item);
        }
    }
    summary.progress = work.Progress();
    summary.secondsLeft = work.SecondsLeft(m_roundTime.ElapsedMs());
    return summary;
}

const ExportItem* ExportQueue::FirstToLookAt() const
{
    const auto found = std::find_if(m_items.begin(), m_items.end(), [](const ExportItem& item) {
        return item.state == State::Done && !item.shotsToLookAt.isEmpty();
    });
    return found != m_items.end() ? &*found : nullptr;
}

void ExportQueue::MarkSeen(const QString& path, const QSet<uint>& shots)
{
    for (ExportItem& item : m_items) {
        if (item.request.source.path != path) {
            continue;
        }
        const auto isSeen = [&shots](uint shot) { return shots.contains(shot); };
        QList<uint>& left = item.shotsToLookAt;
        const int before = left.size();
        left.erase(std::remove_if(left.begin(), left.end(), isSeen), left.end());
        if (left.size() != before) {
            Q_EMIT sigChanged(item.id);
        }
    }
}
