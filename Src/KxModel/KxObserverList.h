#pragma once

#include <KxModel/IKxAutoReframeService.h>

#include <KxCore/KxCancelToken.h>

#include <condition_variable>
#include <mutex>
#include <thread>
#include <vector>

/// Who hears the events of the service, and which calls to them are running right now. Any thread; no lock is held
/// during a call.
class KXMODEL_API KxObserverList
{
public:
    void Add(IKxAutoReframeEventObserver* observer);

    /// Returns when no call to `observer` is running, other than one on this very thread.
    void Remove(IKxAutoReframeEventObserver* observer);

    /// Calls every observer, one after the other. None is called any more once `cancel` is set.
    void Notify(qint64 key, int state, int percent, const KxCancelToken& cancel);

    /// Returns when no call with this key is running, other than one on this very thread.
    void WaitForCallsOf(qint64 key);

private:
    struct Call {
        IKxAutoReframeEventObserver* observer;
        qint64 key;
        std::thread::id thread;
    };

    std::mutex m_mutex;
    std::condition_variable m_callEnded;
    std::vector<IKxAutoReframeEventObserver*> m_observers;
    std::vector<Call> m_calls;
};
