#pragma once

#include <Apps/AutoReframe/Exports/ExportItem.h>
#include <Apps/AutoReframe/Exports/QueueSummary.h>
#include <Apps/AutoReframe/Exports/Stopwatch.h>

#include <QObject>
#include <QSet>

#include <atomic>
#include <vector>

class PauseGate;

/// The exports: one is analyzed and rendered at a time, the others wait in the order in which they were added.
/// User-interface thread.
class ExportQueue : public QObject
{
    Q_OBJECT
public:
    /// Start a task; called again only after the last one has ended.
    struct Workers {
        std::function<std::unique_ptr<MediaTask>(const ExportRequest& request, const KxRenderJob::Callbacks& callbacks)>
            render;
        std::function<std::unique_ptr<MediaTask>(const QString& path, const ReframePlan& plan,
                                                 const CropCallbacks& callbacks)>
            findCrops;
    };

    /// With the system's clock.
    ExportQueue(Workers workers, QObject* parent);
    ExportQueue(Workers workers, const Stopwatch::Clock& clock, QObject* parent);
    /// Cancels the running export and waits for its end.
    ~ExportQueue() override;

    /// Returns the export's number.
    int Add(const ExportRequest& request);
    int AddPlanned(const PlannedExport& planned);
    /// Adds an export of an earlier run, which is not active. Its number is ignored; returns the new one.
    int Restore(ExportItem item);
    /// A waiting export is cancelled at once, a running one as soon as its thread sees the cancel mark.
    void Cancel(int id);
    void CancelAll();
    void CancelPlanned();
    /// A failed, cancelled or interrupted export goes to the end of the queue.
    void Retry(int id);
    /// Removes an export that is not active from the list; its file stays.
    void Remove(int id);
    void RemoveFinished();
    void ResumeInterrupted();
    void DiscardInterrupted();
    /// Of the planned exports.
    void RetryFailed();
    /// The running task stands still at its next step, and no export starts. An idle queue is not paused.
    void SetPaused(bool isPaused);
    bool IsPaused() const { return m_isPaused; }
    /// The person has seen these shots of the video `path`, given by their first frames.
    void MarkSeen(const QString& path, const QSet<uint>& shots);

    /// Null for an unknown number. Valid until the next change.
    const ExportItem* Find(int id) const;
    /// Running or waiting.
    int UnfinishedCount() const;
    int FinishedCount() const;
    int InterruptedCount() const;
    /// Whether an export that is not finished is to be written to this path.
    bool WillWrite(const QString& path) const;
    QueueSummary Summary() const;
    /// The first of those that QueueSummary::toLookAt counts; null without one.
    const ExportItem* FirstToLookAt() const;

Q_SIGNALS:
    void sigAdded(int id);
    void sigChanged(int id);
    void sigRemoved(int id);

private:
    /// Progress as the rendering's thread leaves it for the user interface, which takes the newest value when it has
    /// time: there are thousands of steps in a second.
    struct Mailbox {
        std::atomic<int> progress{0};
        std::atomic_bool isRead{true};
    };

    ExportItem* Item(int id);
    std::vector<int> WithState(ExportItem::State state, bool isPlanned) const;
    void Enqueue(ExportItem item);
    void EnterRound(int id);
    void StartNext();
    void Start(ExportItem& item);
    void FindCrops(ExportItem& item);
    void Render(ExportItem& item);
    std::function<void(int progress)> MakeProgress(int id);
    void HandleProgress(int id, const std::shared_ptr<Mailbox>& mailbox);
    /// Forgets the task; null, and the next one has started, if its item was removed.
    ExportItem* ItemOfEndedTask(int id);
    void HandleCrops(int id, const FoundCrops& found);
    void HandleFinished(int id, const KxRenderResult& result);
    /// The item's task has ended.
    void EndTask(ExportItem& item, KxOutcome outcome, const QString& message);
    void HandleIdle();

    const Workers m_workers;
    std::vector<ExportItem> m_items;
    bool m_isPaused = false;
    /// Since the item in work began its state.
    Stopwatch m_stateTime;
    /// The items that the queue was given since it was idle, without those that were given up.
    QSet<int> m_round;
    Stopwatch m_roundTime;
    int m_lastId = 0;
    /// Of the item in work.
    std::shared_ptr<PauseGate> m_gate;
    std::unique_ptr<MediaTask> m_task;
};
