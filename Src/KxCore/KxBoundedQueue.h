#pragma once

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <mutex>
#include <optional>

/// A short queue between two threads: the producer waits while it is full, the consumer while it is empty.
template<typename T>
class KxBoundedQueue
{
public:
    /// `capacity` is at least 1.
    explicit KxBoundedQueue(std::size_t capacity)
        : m_capacity(capacity)
    {
    }

    /// False, without adding `item`, if the queue is closed.
    bool Push(T item)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_changed.wait(lock, [this] { return m_closed || m_items.size() < m_capacity; });
        if (m_closed) {
            return false;
        }
        m_items.push_back(std::move(item));
        m_changed.notify_all();
        return true;
    }

    /// Nothing if the queue is closed and empty.
    std::optional<T> Pop()
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_changed.wait(lock, [this] { return m_closed || !m_items.empty(); });
        if (m_items.empty()) {
            return std::nullopt;
        }
        T item = std::move(m_items.front());
        m_items.pop_front();
        m_changed.notify_all();
        return item;
    }

    /// Refuses further items; the present ones can still be taken. Wakes both sides.
    void Close()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_closed = true;
        m_changed.notify_all();
    }

private:
    const std::size_t m_capacity;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<T> m_items;
    bool m_closed = false;
};
