#include <KxCore/KxBoundedQueue.h>

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

TEST(KxBoundedQueue, KeepsTheOrderBetweenTwoThreads)
{
    KxBoundedQueue<int> queue(3);
    constexpr int count = 10000;
    std::thread producer([&] {
        for (int i = 0; i < count; ++i) {
            queue.Push(i);
        }
        queue.Close();
    });
    int expected = 0;
    while (const std::optional<int> item = queue.Pop()) {
        EXPECT_EQ(*item, expected);
        ++expected;
    }
    producer.join();
    EXPECT_EQ(expected, count);
}

TEST(KxBoundedQueue, NeverHoldsMoreThanItsCapacity)
{
    KxBoundedQueue<int> queue(2);
    std::atomic_int pushed{0};
    std::thread producer([&] {
        for (int i = 0; i < 5; ++i) {
            queue.Push(i);
            ++pushed;
        }
    });
    for (int taken = 0; taken < 5; ++taken) {
        EXPECT_LE(pushed.load(), taken + 2 + 1); // one push may have ended before it was counted
        EXPECT_EQ(*queue.Pop(), taken);
    }
    producer.join();
}

TEST(KxBoundedQueue, ClosingWakesAWaitingProducerAndAWaitingConsumer)
{
    KxBoundedQueue<int> full(1);
    ASSERT_TRUE(full.Push(1));
    std::thread producer([&] { EXPECT_FALSE(full.Push(2)); });
    full.Close();
    producer.join();
    EXPECT_EQ(*full.Pop(), 1);
    EXPECT_FALSE(full.Pop());

    KxBoundedQueue<int> empty(1);
    std::thread consumer([&] { EXPECT_FALSE(empty.Pop()); });
    empty.Close();
    consumer.join();
}
