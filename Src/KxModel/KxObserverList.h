#pragma once

#include <KxModel/IKxAutoReframeService.h>

#include <KxCore/KxCancelToken.h>

#include <condition_variable>
#include <list>
#include <mutex>
#include <thread>
#include <vector>

/// The observers of the service, and the calls to them that are running right now. Any thread; no lock is held during a
/// call.
class KXMODEL_API KxObserverList
{
public:
    void Add(IKxAutoReframeEventObserver* observer);

    /// Returns when no call to `observer` is running, other than one on the calling thread.
    void Remove(IKxAutoReframeEventObserver* observer);

    /// Calls every observer, one after the other, and none once `cancel` is set. An exception of an observer is logged.
    void Notify(qint64 key, int state, int percent, const KxCancelToken& cancel);

private:
    struct Call {
        IKxAutoReframeEventObserver* observer;
        std::thread::id thread;
    };

    std::mutex m_mutex;
    std::condition_variable m_callEnded;
    std::vector<IKxAutoReframeEventObserver*> m_observers;
    std::list<Call> m_calls;
};
