#pragma once

#include <Apps/AutoReframe/Backend/MediaBackend.h>

#include <QObject>

#include <atomic>
#include <vector>

/// The state of one export of the queue.
struct ExportItem {
    enum class State {
        Waiting,
        Running,
        Cancelling,
        Done,
        Failed,
        Cancelled,
        Interrupted, ///< of an earlier run, which ended before the export did
    };

    int id = 0;
    State state = State::Waiting;
    ExportRequest request;
    int progress = 0; ///< ten-thousandths
    /// Empty while there is too little progress for an estimate.
    std::optional<qint64> secondsLeft;
    QString filePath;     ///< the requested path; once done, that of the written file
    qint64 fileBytes = 0; ///< once done
    QString message;      ///< why it failed, or a warning about the written file

    bool IsFinished() const { return state == State::Done || state == State::Failed || state == State::Cancelled; }
    bool IsActive() const { return !IsFinished() && state != State::Interrupted; }
};

/// The exports: one is rendered at a time, the others wait in the order in which they were added. User-interface
/// thread.
class ExportQueue : public QObject
{
    Q_OBJECT
public:
    /// Starts a rendering; called again only after the last one has ended.
    using Renderer = std::function<std::unique_ptr<MediaTask>(const ExportRequest& request,
                                                               const KxRenderJob::Callbacks& callbacks)>;

    /// A steady clock in milliseconds.
    using Clock = std::function<qint64()>;

    /// With the system's clock.
    ExportQueue(Renderer renderer, QObject* parent);
    ExportQueue(Renderer renderer, Clock clock, QObject* parent);
    /// Cancels the running export and waits for its end.
    ~ExportQueue() override;

    /// Returns the export's number.
    int Add(const ExportRequest& request);
    /// Adds an export of an earlier run, which is not active. Its number is ignored; returns the new one.
    int Restore(ExportItem item);
    /// A waiting export is cancelled at once, a running one as soon as its thread sees the cancel mark.
    void Cancel(int id);
    void CancelAll();
    /// A failed, cancelled or interrupted export goes to the end of the queue.
    void Retry(int id);
    /// Removes an export that is not active from the list; its file stays.
    void Remove(int id);
    void RemoveFinished();
    void ResumeInterrupted();
    void DiscardInterrupted();

    /// Null for an unknown number. Valid until the next change.
    const ExportItem* Find(int id) const;
    /// Running or waiting.
    int UnfinishedCount() const;
    int FinishedCount() const;
    int InterruptedCount() const;

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
    std::vector<int> Interrupted() const;
    void StartNext();
    void Start(ExportItem& item);
    void HandleProgress(int id, const std::shared_ptr<Mailbox>& mailbox);
    void HandleFinished(int id, const KxRenderResult& result);

    const Renderer m_renderer;
    const Clock m_clock;
    std::vector<ExportItem> m_items;
    qint64 m_startedMs = 0;
    int m_lastId = 0;
    std::unique_ptr<MediaTask> m_task;
};
