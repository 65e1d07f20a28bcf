#include <KxModel/KxObserverList.h>

#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <future>
#include <stdexcept>

namespace
{

class Observer : public IKxAutoReframeEventObserver
{
public:
    explicit Observer(std::function<void()> action = {})
        : m_action(std::move(action))
    {
    }
    ~Observer() override = default;

    void OnAutoReframeEvent(qint64, int, int) override
    {
        ++calls;
        if (m_action) {
            m_action();
        }
    }

    std::atomic_int calls{0};

private:
    std::function<void()> m_action;
};

} // namespace

TEST(KxObserverList, AddingTwiceIsTheSameAsAddingOnce)
{
    KxObserverList list;
    Observer observer;
    list.Add(&observer);
    list.Add(&observer);
    list.Notify(1, 1, 0, KxCancelToken());
    EXPECT_EQ(observer.calls, 1);
}

TEST(KxObserverList, ACancelledTaskCallsNoObserver)
{
    KxObserverList list;
    Observer observer;
    list.Add(&observer);
    KxCancelToken cancel;
    cancel.Cancel();
    list.Notify(1, 2, 100, cancel);
    EXPECT_EQ(observer.calls, 0);
}

TEST(KxObserverList, RemoveWaitsForARunningCall)
{
    KxObserverList list;
    std::promise<void> entered;
    std::promise<void> mayLeave;
    std::atomic_bool left{false};
    Observer observer([&] {
        entered.set_value();
        mayLeave.get_future().wait();
        left = true;
    });
    list.Add(&observer);
    std::thread caller([&] { list.Notify(1, 1, 0, KxCancelToken()); });
    entered.get_future().wait();
    std::thread opener([&] { mayLeave.set_value(); });
    list.Remove(&observer);
    EXPECT_TRUE(left);
    caller.join();
    opener.join();
}

TEST(KxObserverList, AnObserverMayRemoveItselfInsideItsCall)
{
    KxObserverList list;
    Observer* self = nullptr;
    Observer observer([&] { list.Remove(self); });
    self = &observer;
    list.Add(&observer);
    list.Notify(1, 1, 0, KxCancelToken());
    list.Notify(1, 1, 1, KxCancelToken());
    EXPECT_EQ(observer.calls, 1);
}

TEST(KxObserverList, AnObserverRemovedByAnotherIsNotCalledAnyMore)
{
    KxObserverList list;
    Observer second;
    Observer first([&] { list.Remove(&second); });
    list.Add(&first);
    list.Add(&second);
    list.Notify(1, 1, 0, KxCancelToken());
    EXPECT_EQ(second.calls, 0);
}

TEST(KxObserverList, AnObserverThatThrowsDoesNotCountAsRunningAndTheNextOneIsCalled)
{
    KxObserverList list;
    Observer throwing([] { throw std::runtime_error("no"); });
    Observer next;
    list.Add(&throwing);
    list.Add(&next);
    list.Notify(1, 1, 0, KxCancelToken());
    EXPECT_EQ(next.calls, 1);
    std::thread remover([&] { list.Remove(&throwing); });
    remover.join();
}
