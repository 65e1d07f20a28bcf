#include <Apps/AutoReframe/Exports/ExportQueue.h>

#include <QFileInfo>

#include <algorithm>
#include <chrono>

namespace
{

using State = ExportItem::State;

constexpr int WholeProgress = 10000;
/// An estimate of the time left from less than this would jump about.
constexpr qint64 EnoughForEstimateMs = 1000;

qint64 SteadyMs()
{
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
}

} // namespace

ExportQueue::ExportQueue(Renderer renderer, QObject* parent)
    : ExportQueue(std::move(renderer), &SteadyMs, parent)
{
}

ExportQueue::ExportQueue(Renderer renderer, Clock clock, QObject* parent)
    : QObject(parent)
    , m_renderer(std::move(renderer))
    , m_clock(std::move(clock))
{
}

ExportQueue::~ExportQueue() = default;

int ExportQueue::Add(const ExportRequest& request)
{
    ExportItem item;
    item.id = ++m_lastId;
    item.request = request;
    item.filePath = request.settings.outputPath;
    m_items.push_back(item);
    Q_EMIT sigAdded(item.id);
    StartNext();
    return item.id;
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
    } else if (item->state == State::Running) {
        item->state = State::Cancelling;
        m_task->Cancel();
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
    found->filePath = found->request.settings.outputPath;
    // The list shows the queue in its order, so the export moves to its end.
    std::rotate(found, found + 1, m_items.end());
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

std::vector<int> ExportQueue::Interrupted() const
{
    std::vector<int> ids;
    for (const ExportItem& item : m_items) {
        if (item.state == State::Interrupted) {
            ids.push_back(item.id);
        }
    }
    return ids;
}

void ExportQueue::ResumeInterrupted()
{
    for (const int id : Interrupted()) {
        Retry(id);
    }
}

void ExportQueue::DiscardInterrupted()
{
    for (const int id : Interrupted()) {
        Remove(id);
    }
}

int ExportQueue::InterruptedCount() const
{
    return static_cast<int>(Interrupted().size());
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

void ExportQueue::StartNext()
{
    if (m_task != nullptr) {
        return;
    }
    const auto next = std::find_if(m_items.begin(), m_items.end(),
                                   [](const ExportItem& item) { return item.state == State::Waiting; });
    if (next != m_items.end()) {
        Start(*next);
    }
}

void ExportQueue::Start(ExportItem& item)
{
    const int id = item.id;
    item.state = State::Running;
    m_startedMs = m_clock();
    const auto mailbox = std::make_shared<Mailbox>();
    KxRenderJob::Callbacks callbacks;
    callbacks.progress = [this, id, mailbox](int progress) {
        mailbox->progress = progress;
        if (mailbox->isRead.exchange(false)) {
            QMetaObject::invokeMethod(
                this, [this, id, mailbox] { HandleProgress(id, mailbox); }, Qt::QueuedConnection);
        }
    };
    callbacks.finished = [this, id](const KxRenderResult& result) {
        QMetaObject::invokeMethod(
            this, [this, id, result] { HandleFinished(id, result); }, Qt::QueuedConnection);
    };
    m_task = m_renderer(item.request, callbacks);
    Q_EMIT sigChanged(id);
}

void ExportQueue::HandleProgress(int id, const std::shared_ptr<Mailbox>& mailbox)
{
    mailbox->isRead = true;
    ExportItem* const item = Item(id);
    if (item == nullptr || item->state != State::Running) {
        return;
    }
    item->progress = mailbox->progress;
    const qint64 elapsedMs = m_clock() - m_startedMs;
    if (elapsedMs >= EnoughForEstimateMs && item->progress > 0) {
        item->secondsLeft = 1 + elapsedMs * (WholeProgress - item->progress) / item->progress / 1000;
    }
    Q_EMIT sigChanged(id);
}

void ExportQueue::HandleFinished(int id, const KxRenderResult& result)
{
    m_task.reset();
    if (ExportItem* const item = Item(id)) {
        item->secondsLeft.reset();
        switch (result.outcome) {
        case KxOutcome::Done:
            item->state = State::Done;
            item->progress = WholeProgress;
            item->filePath = result.outputPath;
            item->fileBytes = QFileInfo(result.outputPath).size();
            item->message = result.warning;
            break;
        case KxOutcome::Cancelled:
            item->state = State::Cancelled;
            break;
        case KxOutcome::Failed:
            item->state = State::Failed;
            item->message = result.message;
            break;
        }
        Q_EMIT sigChanged(id);
    }
    StartNext();
}
