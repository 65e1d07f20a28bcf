#include <KxCore/KxInterrupt.h>

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>

namespace
{

/// Ends the process with 0 if a stop was requested, otherwise with 1.
[[noreturn]] void ExitWithRequest()
{
    std::_Exit(KxInterrupt::IsRequested() && KxInterrupt::Token().IsCancelled() ? 0 : 1);
}

} // namespace

// Each test works in a process of its own: a request cannot be taken back.

TEST(KxInterruptDeathTest, ASignalToEndIsARequest)
{
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        EXPECT_EXIT(
            {
                KxInterrupt::Install();
                std::raise(number);
                ExitWithRequest();
            },
            testing::ExitedWithCode(0), "")
            << number;
    }
}

TEST(KxInterruptDeathTest, WithoutASignalNothingIsRequested)
{
    EXPECT_EXIT(
        {
            KxInterrupt::Install();
            ExitWithRequest();
        },
        testing::ExitedWithCode(1), "");
}

TEST(KxInterruptDeathTest, ASignalThatIsSentTwiceIsOneRequest)
{
    for (const int number : {SIGINT, SIGTERM}) {
        EXPECT_EXIT(
            {
                KxInterrupt::Install();
                std::raise(number);
                std::raise(number);
                ExitWithRequest();
            },
            testing::ExitedWithCode(0), "");
    }
}

TEST(KxInterruptDeathTest, AThirdSignalEndsTheProcess)
{
    for (const int number : {SIGINT, SIGTERM}) {
        EXPECT_EXIT(
            {
                KxInterrupt::Install();
                std::raise(SIGINT);
                std::raise(SIGTERM);
                std::raise(number);
                ExitWithRequest();
            },
            testing::KilledBySignal(number), "");
    }
}

TEST(KxInterruptDeathTest, AClosedTerminalMaySendItsSignalTwice)
{
    EXPECT_EXIT(
        {
            KxInterrupt::Install();
            std::raise(SIGHUP);
            std::raise(SIGHUP);
            ExitWithRequest();
        },
        testing::ExitedWithCode(0), "");
}

TEST(KxInterruptDeathTest, AnIgnoredHangUpStaysIgnored)
{
    EXPECT_EXIT(
        {
            std::signal(SIGHUP, SIG_IGN);
            KxInterrupt::Install();
            std::raise(SIGHUP);
            ExitWithRequest();
        },
        testing::ExitedWithCode(1), "");
}

TEST(KxInterruptDeathTest, FailedWritesAreNoSignals)
{
    for (const int number : {SIGPIPE, SIGXFSZ}) {
        EXPECT_EXIT(
            {
                KxInterrupt::Install();
                std::raise(number);
                ExitWithRequest();
            },
            testing::ExitedWithCode(1), "")
            << number;
    }
}
