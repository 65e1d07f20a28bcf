#include <Apps/AutoReframe/Exports/ExportQueue.h>

#include <Apps/AutoReframe/Exports/PauseGate.h>

#include <QDateTime>
#include <QFileInfo>

#include <algorithm>

namespace
{

using State = ExportItem::State;

constexpr int WholeProgress = 10000;
/// An estimate of the time left from less than this would jump about.
constexpr qint64 EnoughForEstimateMs = 1000;

} // namespace

void ExportQueue::SetPaused(bool isPaused)
{
    if (m_isPaused == isPaused || (isPaused && UnfinishedCount() == 0)) {
        return;
    }
    m_isPaused = isPaused;
    m_gate->SetPaused(isPaused);
    m_stateTime.SetPaused(isPaused);
    m_roundTime.SetPaused(isPaused);
    for (ExportItem& item : m_items) {
        if (item.IsActive()) {
            item.isPaused = isPaused;
            Q_EMIT sigChanged(item.id);
        }
    }
    StartNext();
}

void ExportQueue::StartNext()
{
    if (m_task != nullptr || m_isPaused) {
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
    m_gate = std::make_shared<PauseGate>();
    item.begunAtMs = QDateTime::currentMSecsSinceEpoch();
    if (item.plan) {
        FindCrops(item);
    } else {
        Render(item);
    }
}

std::function<void(int progress)> ExportQueue::MakeProgress(int id)
{
    const auto mailbox = std::make_shared<Mailbox>();
    return [this, id, mailbox, gate = m_gate](int progress) {
        mailbox->progress = progress;
        if (mailbox->isRead.exchange(false)) {
            QMetaObject::invokeMethod(
                this, [this, id, mailbox] { HandleProgress(id, mailbox); }, Qt::QueuedConnection);
        }
        gate->Pass();
    };
}

void ExportQueue::FindCrops(ExportItem& item)
{
    const int id = item.id;
    item.state = State::Analyzing;
    m_stateTime.Restart();
    CropCallbacks callbacks;
    callbacks.progress = MakeProgress(id);
    callbacks.finished = [this, id](const FoundCrops& found) {
        QMetaObject::invokeMethod(
            this, [this, id, found] { HandleCrops(id, found); }, Qt::QueuedConnection);
    };
    m_task = m_workers.findCrops(item.request.source.path, *item.plan, callbacks);
    Q_EMIT sigChanged(id);
}

void ExportQueue::Render(ExportItem& item)
{
    const int id = item.id;
    item.state = State::Running;
    m_stateTime.Restart();
    KxRenderJob::Callbacks callbacks;
    callbacks.progress = MakeProgress(id);
    callbacks.finished = [this, id](const KxRenderResult& result) {
        QMetaObject::invokeMethod(
            this, [this, id, result] { HandleFinished(id, result); }, Qt::QueuedConnection);
    };
    m_task = m_workers.render(item.request, callbacks);
    Q_EMIT sigChanged(id);
}

void ExportQueue::HandleProgress(int id, const std::shared_ptr<Mailbox>& mailbox)
{
    mailbox->isRead = true;
    ExportItem* const item = Item(id);
    if (item == nullptr || (item->state != State::Running && item->state != State::Analyzing)) {
        return;
    }
    item->progress = mailbox->progress;
    const qint64 elapsedMs = m_stateTime.ElapsedMs();
    if (item->state == State::Running && elapsedMs >= EnoughForEstimateMs && item->progress > 0) {
        item->secondsLeft = 1 + elapsedMs * (WholeProgress - item->progress) / item->progress / 1000;
    }
    Q_EMIT sigChanged(id);
}

ExportItem* ExportQueue::ItemOfEndedTask(int id)
{
    m_task.reset();
    ExportItem* const item = Item(id);
    if (item == nullptr) {
        StartNext();
    }
    return item;
}

void ExportQueue::HandleCrops(int id, const FoundCrops& found)
{
    ExportItem* const item = ItemOfEndedTask(id);
    if (item == nullptr) {
        return;
    }
    const bool isWanted = item->state == State::Analyzing;
    if (found.outcome != KxOutcome::Done || !isWanted) {
        EndTask(*item, isWanted ? found.outcome : KxOutcome::Cancelled, found.message);
        return;
    }
    const KxRenderSettings ordered = item->request.settings;
    item->request = found.request;
    item->request.settings.outputPath = ordered.outputPath;
    item->request.settings.existing = ordered.existing;
    item->shotsToLookAt = found.doubtfulShots;
    item->missingEdits = found.missingEdits;
    item->progress = 0;
    item->secondsLeft.reset();
    Render(*item);
}

void ExportQueue::HandleFinished(int id, const KxRenderResult& result)
{
    ExportItem* const item = ItemOfEndedTask(id);
    if (item == nullptr) {
        return;
    }
    if (result.outcome == KxOutcome::Done) {
        item->progress = WholeProgress;
        item->filePath = result.outputPath;
        item->fileBytes = QFileInfo(result.outputPath).size();
    }
    EndTask(*item, result.outcome, result.outcome == KxOutcome::Done ? result.warning : result.message);
}

void ExportQueue::EndTask(ExportItem& item, KxOutcome outcome, const QString& message)
{
    const int id = item.id;
    item.secondsLeft.reset();
    item.isPaused = false;
    item.message = outcome == KxOutcome::Cancelled ? QString() : message;
    item.state = outcome == KxOutcome::Done     ? State::Done
                 : outcome == KxOutcome::Failed ? State::Failed
                                                : State::Cancelled;
    if (outcome != KxOutcome::Done) {
        m_round.remove(id);
    }
    HandleIdle();
    Q_EMIT sigChanged(id);
    StartNext();
}

void ExportQueue::HandleIdle()
{
    if (UnfinishedCount() > 0) {
        return;
    }
    m_round.clear();
    m_isPaused = false;
    m_stateTime.SetPaused(false);
    m_roundTime.SetPaused(false);
}
