#pragma once

#include <KxCore/KxExport.h>

#include <KxCore/KxCancelToken.h>
#include <KxCore/KxResult.h>
#include <KxCore/KxThread.h>

#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <vector>

/// Runs jobs one at a time on a thread of its own. Every job has a number and a cancel token. All members may be called
/// by any thread, except the destructor, which must not run on the worker's own thread.
class KXCORE_API KxWorker
{
public:
    /// Which waiting job is next.
    enum class Order {
        OldestFirst,
        NewestFirst,
    };
    struct Job {
        /// Looks at the token and returns early once it is set.
        std::function<void(const KxCancelToken& cancel)> work;
        /// Called on the worker's thread, with an error message, if an exception leaves `work` and the job was not
        /// cancelled. May be empty.
        std::function<void(const QString& message)> failed;
    };

    explicit KxWorker(Order order);
    /// Cancels the running job and waits for it; waiting jobs are dropped.
    ~KxWorker();
    KxWorker(const KxWorker&) = delete;
    KxWorker& operator=(const KxWorker&) = delete;

    /// Returns the job's number; numbers grow from 1.
    quint64 Add(Job job);
    /// Drops a waiting job, or sets the running job's token. Unknown numbers and finished jobs are ignored.
    void Cancel(quint64 number);
    /// Cancels every job added so far.
    void CancelAll();

private:
    struct Entry {
        quint64 number = 0;
        Job job;
        KxCancelToken cancel;
    };

    void Run();
    std::optional<Entry> Next();

    const Order m_order;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    // Guarded by the mutex.
    std::vector<Entry> m_waiting;
    quint64 m_lastNumber = 0;
    quint64 m_runningNumber = 0; ///< 0: none
    KxCancelToken m_runningCancel;
    bool m_ends = false;
    // Last: its work uses all of the above.
    KxThread m_thread;
};
