#include <KxModel/KxObserverList.h>

#include <KxCore/KxLog.h>
#include <KxCore/KxThread.h>

#include <algorithm>

void KxObserverList::Add(IKxAutoReframeEventObserver* observer)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (std::find(m_observers.begin(), m_observers.end(), observer) == m_observers.end()) {
        m_observers.push_back(observer);
    }
}

void KxObserverList::Remove(IKxAutoReframeEventObserver* observer)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    m_observers.erase(std::remove(m_observers.begin(), m_observers.end(), observer), m_observers.end());
    m_callEnded.wait(lock, [this, observer] {
        return std::none_of(m_calls.begin(), m_calls.end(), [observer](const Call& call) {
            return call.observer == observer && call.thread != std::this_thread::get_id();
        });
    });
}

void KxObserverList::Notify(qint64 key, int state, int percent, const KxCancelToken& cancel)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    const std::vector<IKxAutoReframeEventObserver*> observers = m_observers;
    for (IKxAutoReframeEventObserver* observer : observers) {
        const bool removed = std::find(m_observers.begin(), m_observers.end(), observer) == m_observers.end();
        if (removed || cancel.IsCancelled()) {
            continue;
        }
        const auto call = m_calls.insert(m_calls.end(), {observer, std::this_thread::get_id()});
        lock.unlock();
        const KxError failure = KxCallGuarded([&] { observer->OnAutoReframeEvent(key, state, percent); });
        if (failure) {
            KX_LOG_WARNING(QStringLiteral("An observer of the analysis failed: %1.").arg(*failure));
        }
        lock.lock();
        m_calls.erase(call);
        m_callEnded.notify_all();
    }
}
