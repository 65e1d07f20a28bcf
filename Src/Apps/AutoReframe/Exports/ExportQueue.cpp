#include <Apps/AutoReframe/Exports/ExportQueue.h>

#include <QFileInfo>

#include <algorithm>

namespace
{

using State = ExportItem::State;

constexpr int whole = 10000;
/// Before this much has passed, the time left would be a guess.
constexpr qint64 enoughToJudgeMs = 1000;

} // namespace

ExportQueue::ExportQueue(Renderer renderer, QObject* parent)
    : QObject(parent)
    , m_renderer(std::move(renderer))
{
}

ExportQueue::~ExportQueue() = default;

int ExportQueue::Add(const ExportOrder& order)
{
    ExportItem item;
    item.id = ++m_lastId;
    item.order = order;
    item.filePath = order.filePath;
    m_items.push_back(item);
    Q_EMIT sigAdded(item.id);
    StartNext();
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
    // From the end, so that nothing that waits gets its turn.
    for (auto item = m_items.rbegin(); item != m_items.rend(); ++item) {
        Cancel(item->id);
    }
}

void ExportQueue::Retry(int id)
{
    const auto found =
        std::find_if(m_items.begin(), m_items.end(), [id](const ExportItem& item) { return item.id == id; });
    if (found == m_items.end() || (found->state != State::Failed && found->state != State::Cancelled)) {
        return;
    }
    found->state = State::Waiting;
    found->progress = 0;
    found->secondsLeft.reset();
    found->message.clear();
    found->filePath = found->order.filePath;
    // Behind the others in the queue, where it is on the list.
    std::rotate(found, found + 1, m_items.end());
    Q_EMIT sigChanged(id);
    StartNext();
}

void ExportQueue::Remove(int id)
{
    const ExportItem* const item = Find(id);
    if (item == nullptr || !item->IsFinished()) {
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
    return static_cast<int>(m_items.size()) - FinishedCount();
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
    m_timer.start();
    const auto mailbox = std::make_shared<Mailbox>();
    RenderCallbacks callbacks;
    callbacks.progress = [this, id, mailbox](int progress) {
        mailbox->progress = progress;
        if (mailbox->isTold.exchange(false)) {
            QMetaObject::invokeMethod(
                this, [this, id, mailbox] { HandleProgress(id, mailbox); }, Qt::QueuedConnection);
        }
    };
    callbacks.finished = [this, id](const RenderEnd& end) {
        QMetaObject::invokeMethod(
            this, [this, id, end] { HandleFinished(id, end); }, Qt::QueuedConnection);
    };
    m_task = m_renderer(item.order, callbacks);
    Q_EMIT sigChanged(id);
}

void ExportQueue::HandleProgress(int id, const std::shared_ptr<Mailbox>& mailbox)
{
    mailbox->isTold = true;
    ExportItem* const item = Item(id);
    if (item == nullptr || item->state != State::Running) {
        return;
    }
    item->progress = mailbox->progress;
    const qint64 elapsedMs = m_timer.elapsed();
    if (elapsedMs >= enoughToJudgeMs && item->progress > 0) {
        item->secondsLeft = 1 + elapsedMs * (whole - item->progress) / item->progress / 1000;
    }
    Q_EMIT sigChanged(id);
}

void ExportQueue::HandleFinished(int id, const RenderEnd& end)
{
    m_task.reset();
    if (ExportItem* const item = Item(id)) {
        item->secondsLeft.reset();
        switch (end.outcome) {
        case KxOutcome::Done:
            item->state = State::Done;
            item->progress = whole;
            item->filePath = end.filePath;
            item->fileBytes = QFileInfo(end.filePath).size();
            item->message = end.warning;
            break;
        case KxOutcome::Cancelled:
            item->state = State::Cancelled;
            break;
        case KxOutcome::Failed:
            item->state = State::Failed;
            item->message = end.message;
            break;
        }
        Q_EMIT sigChanged(id);
    }
    StartNext();
}
