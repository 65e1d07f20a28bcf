#pragma once

#include <KxModel/KxAutoReframeService.h>

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <utility>
#include <vector>

struct ServiceEvent {
    qint64 key;
    int state;
    int percent;

    bool IsRunning() const { return state == 1; }
    bool IsEnd() const { return state == 2; }
};

/// Records the events of an analysis service, and can run an action in each.
class EventRecorder : public IKxAutoReframeEventObserver
{
public:
    explicit EventRecorder(KxAutoReframeService& service, std::function<void(const ServiceEvent&)> action = {})
        : m_service(service)
        , m_action(std::move(action))
    {
        m_service.AddObserver(this);
    }
    ~EventRecorder() override { m_service.RemoveObserver(this); }
    EventRecorder(const EventRecorder&) = delete;
    EventRecorder& operator=(const EventRecorder&) = delete;

    void OnAutoReframeEvent(qint64 key, int state, int percent) override
    {
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_events.push_back({key, state, percent});
            m_changed.notify_all();
        }
        if (m_action) {
            m_action({key, state, percent});
        }
    }

    /// Whether a task reports that it runs.
    bool WaitForRunning() { return WaitFor(1, &ServiceEvent::IsRunning); }
    /// Whether so many tasks end.
    bool WaitForEnds(int ends) { return WaitFor(ends, &ServiceEvent::IsEnd); }
    bool WaitForEnd() { return WaitForEnds(1); }

    std::vector<ServiceEvent> Events()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_events;
    }

private:
    bool WaitFor(int count, bool (ServiceEvent::*isWanted)() const)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        return m_changed.wait_for(lock, std::chrono::seconds(60), [&] {
            return std::count_if(m_events.begin(), m_events.end(), std::mem_fn(isWanted)) >= count;
        });
    }

    KxAutoReframeService& m_service;
    std::function<void(const ServiceEvent&)> m_action;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<ServiceEvent> m_events;
};
