#pragma once

#include <Apps/AutoReframe/Backend/Studio.h>

#include <QElapsedTimer>
#include <QObject>

#include <atomic>
#include <vector>

/// One export of the queue, as it stands.
struct ExportItem {
    enum class State { Waiting, Running, Cancelling, Done, Failed, Cancelled };

    int id = 0;
    State state = State::Waiting;
    ExportOrder order;
    int progress = 0; ///< ten-thousandths
    /// Nothing while there is too little to judge by.
    std::optional<qint64> secondsLeft;
    QString filePath;     ///< the wished one, the written one once done
    qint64 fileBytes = 0; ///< once done
    QString message;      ///< why it failed, or a warning about what was written

    bool IsFinished() const { return state == State::Done || state == State::Failed || state == State::Cancelled; }
};

/// The exports: one renders at a time, the others wait in the order in which they came. User-interface thread.
class ExportQueue : public QObject
{
    Q_OBJECT
public:
    /// Starts a rendering; not called again before the last one has ended.
    using Renderer =
        std::function<std::unique_ptr<RenderTask>(const ExportOrder& order, const RenderCallbacks& callbacks)>;

    ExportQueue(Renderer renderer, QObject* parent);
    /// Cancels what runs and waits for it.
    ~ExportQueue() override;

    /// Returns the export's number.
    int Add(const ExportOrder& order);
    /// What waits is cancelled at once, what runs as soon as its thread has noticed.
    void Cancel(int id);
    void CancelAll();
    /// A failed or cancelled export goes to the end of the queue.
    void Retry(int id);
    /// Takes a finished export off the list; its file stays.
    void Remove(int id);
    void RemoveFinished();

    /// Null when there is none of that number. Valid until the next change.
    const ExportItem* Find(int id) const;
    /// Running or waiting.
    int UnfinishedCount() const;
    int FinishedCount() const;

Q_SIGNALS:
    void sigAdded(int id);
    void sigChanged(int id);
    void sigRemoved(int id);

private:
    /// What the rendering's thread leaves for this one: progress is told when there is time for it, not a thousand
    /// times a second.
    struct Mailbox {
        std::atomic<int> progress{0};
        std::atomic_bool isTold{true};
    };

    ExportItem* Item(int id);
    void StartNext();
    void Start(ExportItem& item);
    void HandleProgress(int id, const std::shared_ptr<Mailbox>& mailbox);
    void HandleFinished(int id, const RenderEnd& end);

    const Renderer m_renderer;
    std::vector<ExportItem> m_items;
    QElapsedTimer m_timer;
    int m_lastId = 0;
    std::unique_ptr<RenderTask> m_task;
};
