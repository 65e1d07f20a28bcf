#include <KxCore/KxWorker.h>

#include <Tests/Support/Eventually.h>

#include <QStringList>

#include <gtest/gtest.h>

#include <future>
#include <new>
#include <stdexcept>

namespace
{

/// Holds a worker's thread until it is released, so that jobs pile up behind it.
class Gate
{
public:
    KxWorker::Job Job()
    {
        return {[this](const KxCancelToken& cancel) {
                    m_entered.set_value(cancel);
                    m_opened.get_future().wait();
                },
                {}};
    }
    KxCancelToken WaitUntilEntered() { return m_entered.get_future().get(); }
    void Open() { m_opened.set_value(); }

private:
    std::promise<KxCancelToken> m_entered;
    std::promise<void> m_opened;
};

std::vector<int> OrderOfThree(KxWorker::Order order)
{
    std::vector<int> ran;
    std::promise<void> allRan;
    Gate gate;
    KxWorker worker(order);
    worker.Add(gate.Job());
    gate.WaitUntilEntered();
    for (int i = 1; i <= 3; ++i) {
        worker.Add({[&ran, &allRan, i](const KxCancelToken&) {
                        ran.push_back(i);
                        if (ran.size() == 3) {
                            allRan.set_value();
                        }
                    },
                    {}});
    }
    gate.Open();
    allRan.get_future().wait();
    return ran;
}

} // namespace

TEST(KxWorker, RunsTheOldestFirst)
{
    EXPECT_EQ(OrderOfThree(KxWorker::Order::OldestFirst), (std::vector<int>{1, 2, 3}));
}

TEST(KxWorker, RunsTheNewestFirst)
{
    EXPECT_EQ(OrderOfThree(KxWorker::Order::NewestFirst), (std::vector<int>{3, 2, 1}));
}

TEST(KxWorker, ACancelledJobThatWaitsIsDropped)
{
    bool dropped = true;
    std::promise<void> lastRan;
    Gate gate;
    KxWorker worker(KxWorker::Order::OldestFirst);
    worker.Add(gate.Job());
    gate.WaitUntilEntered();
    const quint64 number = worker.Add({[&dropped](const KxCancelToken&) { dropped = false; }, {}});
    worker.Add({[&lastRan](const KxCancelToken&) { lastRan.set_value(); }, {}});
    worker.Cancel(number);
    gate.Open();
    lastRan.get_future().wait();
    EXPECT_TRUE(dropped);
}

TEST(KxWorker, ACancelledJobThatRunsSeesItsToken)
{
    Gate gate;
    KxWorker worker(KxWorker::Order::OldestFirst);
    const quint64 number = worker.Add(gate.Job());
    const KxCancelToken token = gate.WaitUntilEntered();
    worker.Cancel(number + 1);
    EXPECT_FALSE(token.IsCancelled()) << "a number that is not known";
    worker.Cancel(number);
    EXPECT_TRUE(token.IsCancelled());
    gate.Open();
}

TEST(KxWorker, ATokenBelongsToOneJob)
{
    Gate first;
    Gate second;
    KxWorker worker(KxWorker::Order::OldestFirst);
    const quint64 number = worker.Add(first.Job());
    first.WaitUntilEntered();
    worker.Add(second.Job());
    worker.Cancel(number);
    first.Open();
    EXPECT_FALSE(second.WaitUntilEntered().IsCancelled());
    worker.Cancel(number);
    second.Open();
}

TEST(KxWorker, CancelAllDropsWaitingJobsAndCancelsTheRunningOne)
{
    bool dropped = true;
    Gate gate;
    KxWorker worker(KxWorker::Order::OldestFirst);
    worker.Add(gate.Job());
    const KxCancelToken token = gate.WaitUntilEntered();
    worker.Add({[&dropped](const KxCancelToken&) { dropped = false; }, {}});
    worker.CancelAll();
    EXPECT_TRUE(token.IsCancelled());
    std::promise<void> later;
    worker.Add({[&later](const KxCancelToken&) { later.set_value(); }, {}});
    gate.Open();
    later.get_future().wait();
    EXPECT_TRUE(dropped);
}

TEST(KxWorker, DestroyingItCancelsTheRunningJobAndWaits)
{
    std::promise<void> entered;
    bool returned = false;
    bool dropped = true;
    {
        KxWorker worker(KxWorker::Order::OldestFirst);
        worker.Add({[&](const KxCancelToken& cancel) {
                        entered.set_value();
                        returned = QTest::qWaitFor([&cancel] { return cancel.IsCancelled(); }, EventuallyMs);
                    },
                    {}});
        worker.Add({[&dropped](const KxCancelToken&) { dropped = false; }, {}});
        entered.get_future().wait();
    }
    EXPECT_TRUE(returned);
    EXPECT_TRUE(dropped);
}

TEST(KxWorker, AnExceptionBecomesAnErrorMessageAndTheNextJobRuns)
{
    QStringList messages;
    std::promise<void> lastRan;
    KxWorker worker(KxWorker::Order::OldestFirst);
    const auto note = [&messages](const QString& message) { messages.append(message); };
    worker.Add({[](const KxCancelToken&) { throw std::runtime_error("the library gave up"); }, note});
    worker.Add({[](const KxCancelToken&) { throw std::bad_alloc(); }, note});
    worker.Add({[](const KxCancelToken&) { throw 7; }, note});
    worker.Add({[](const KxCancelToken&) { throw 8; }, {}});
    worker.Add({[&lastRan](const KxCancelToken&) { lastRan.set_value(); }, {}});
    lastRan.get_future().wait();
    EXPECT_EQ(messages, (QStringList{QStringLiteral("the library gave up"), QStringLiteral("memory ran out"),
                                     QStringLiteral("an unknown error occurred")}));
}

TEST(KxWorker, ACancelledJobReportsNoFailure)
{
    bool reported = false;
    std::promise<void> lastRan;
    Gate gate;
    KxWorker worker(KxWorker::Order::OldestFirst);
    KxWorker::Job job = gate.Job();
    const quint64 number = worker.Add({[work = job.work](const KxCancelToken& cancel) {
                                           work(cancel);
                                           throw std::runtime_error("given up");
                                       },
                                       [&reported](const QString&) { reported = true; }});
    gate.WaitUntilEntered();
    worker.Add({[&lastRan](const KxCancelToken&) { lastRan.set_value(); }, {}});
    worker.Cancel(number);
    gate.Open();
    lastRan.get_future().wait();
    EXPECT_FALSE(reported);
}

TEST(KxThread, JoinsInItsDestructor)
{
    std::promise<void> mayEnd;
    bool ended = false;
    {
        const KxThread thread([&mayEnd, &ended] {
            mayEnd.get_future().wait();
            ended = true;
        });
        mayEnd.set_value();
    }
    EXPECT_TRUE(ended);
}

TEST(KxThread, AnExceptionEndsTheThreadAndIsKept)
{
    KxThread thread([] { throw std::runtime_error("broken"); });
    thread.Join();
    EXPECT_EQ(thread.Failure(), QStringLiteral("broken"));
    KxThread fine([] {});
    fine.Join();
    EXPECT_FALSE(fine.Failure());
    EXPECT_FALSE(KxThread().Failure());
}

TEST(KxThread, AnotherThreadCanBeStartedOnceItHasEnded)
{
    bool firstEnded = false;
    KxThread thread([&firstEnded] { firstEnded = true; });
    thread = KxThread([] { throw 1; });
    EXPECT_TRUE(firstEnded);
    thread.Join();
    EXPECT_TRUE(thread.Failure());
}
