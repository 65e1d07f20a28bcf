#include <KxPlayer/KxPlayerClock.h>

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace
{

class TestClock : public testing::Test
{
protected:
    std::atomic<qint64> now{1000000};
    KxPlayerClock clock{[this] { return now.load(); }};
};

} // namespace

TEST_F(TestClock, DoesNotRunUntilItIsStarted)
{
    EXPECT_FALSE(clock.IsRunning());
    EXPECT_FALSE(clock.NowUs());
}

TEST_F(TestClock, RunsFromWhereItIsStarted)
{
    clock.Start(40000);
    now += 15000;
    EXPECT_EQ(clock.NowUs(), 55000);
    clock.Start(0);
    EXPECT_EQ(clock.NowUs(), 0);
}

TEST_F(TestClock, ARunEndsWithStopAndWithTheNextStart)
{
    const quint64 first = clock.Start(0);
    EXPECT_TRUE(clock.NowUs(first));
    const quint64 second = clock.Start(0);
    EXPECT_FALSE(clock.NowUs(first));
    clock.Stop();
    EXPECT_FALSE(clock.NowUs(second));
    EXPECT_FALSE(clock.IsRunning());
}

TEST_F(TestClock, MakesUpSmallDifferencesLittleByLittle)
{
    const quint64 run = clock.Start(0);
    qint64 before = 0;
    for (int i = 0; i < 200; ++i) {
        now += 20000;
        clock.Correct(run, now - 1000000 - 60000);
        const qint64 after = *clock.NowUs();
        EXPECT_GE(after - before, 20000 - 2000);
        EXPECT_LE(after - before, 20000);
        before = after;
    }
    EXPECT_NEAR(static_cast<double>(*clock.NowUs()), static_cast<double>(now - 1000000 - 60000), 10);
}

TEST_F(TestClock, NeverJumps)
{
    const quint64 run = clock.Start(1000000);
    clock.Correct(run, 9000000);
    EXPECT_NEAR(static_cast<double>(*clock.NowUs()), 1000000, 2000);
    clock.Correct(run, 0);
    EXPECT_NEAR(static_cast<double>(*clock.NowUs()), 1000000, 2000);
}

TEST_F(TestClock, TakesNoCorrectionForARunThatIsOver)
{
    const quint64 run = clock.Start(0);
    clock.Start(0);
    clock.Correct(run, 3000000);
    EXPECT_EQ(clock.NowUs(), 0);
}

TEST_F(TestClock, IsReadWhileItIsCorrected)
{
    const quint64 run = clock.Start(0);
    std::thread corrector([&] {
        for (int i = 0; i < 1000; ++i) {
            clock.Correct(run, 1000);
        }
    });
    for (int i = 0; i < 1000; ++i) {
        EXPECT_LE(clock.NowUs(run).value_or(-1), 1000);
    }
    corrector.join();
}

TEST(KxPlayerClock, RunsBySteadyTimeByItself)
{
    KxPlayerClock clock;
    clock.Start(0);
    const qint64 first = *clock.NowUs();
    EXPECT_GE(first, 0);
    EXPECT_GE(*clock.NowUs(), first);
}
