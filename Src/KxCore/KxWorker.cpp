#include <KxCore/KxWorker.h>

#include <algorithm>

KxWorker::KxWorker(Order order)
    : m_order(order)
    , m_thread([this] { Run(); })
{
}

KxWorker::~KxWorker()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_ends = true;
        m_runningCancel.Cancel();
    }
    m_changed.notify_all();
    m_thread.Join();
}

quint64 KxWorker::Add(Job job)
{
    quint64 number = 0;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        number = ++m_lastNumber;
        m_waiting.push_back({number, std::move(job), KxCancelToken()});
    }
    m_changed.notify_all();
    return number;
}

void KxWorker::Cancel(quint64 number)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (number != 0 && number == m_runningNumber) {
        m_runningCancel.Cancel();
        return;
    }
    const auto isAsked = [number](const Entry& entry) { return entry.number == number; };
    m_waiting.erase(std::remove_if(m_waiting.begin(), m_waiting.end(), isAsked), m_waiting.end());
}

void KxWorker::CancelAll()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_waiting.clear();
    m_runningCancel.Cancel();
}

std::optional<KxWorker::Entry> KxWorker::Next()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    m_runningNumber = 0;
    m_changed.wait(lock, [this] { return m_ends || !m_waiting.empty(); });
    if (m_ends) {
        return std::nullopt;
    }
    const auto next = m_order == Order::OldestFirst ? m_waiting.begin() : std::prev(m_waiting.end());
    Entry entry = std::move(*next);
    m_waiting.erase(next);
    m_runningNumber = entry.number;
    m_runningCancel = entry.cancel;
    return entry;
}

void KxWorker::Run()
{
    while (const std::optional<Entry> entry = Next()) {
        const KxError failure = KxCallGuarded([&entry] { entry->job.work(entry->cancel); });
        if (failure && entry->job.failed && !entry->cancel.IsCancelled()) {
            KxCallGuarded([&] { entry->job.failed(*failure); });
        }
    }
}
