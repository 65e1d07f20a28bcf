#include <KxCore/KxInterrupt.h>

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <initializer_list>

namespace
{

/// Ends the process with 0 if a stop was requested after these signals, otherwise with 1.
[[noreturn]] void ExitAfter(std::initializer_list<int> signals)
{
    KxInterrupt::Install();
    for (const int number : signals) {
        std::raise(number);
    }
    std::_Exit(KxInterrupt::IsRequested() && KxInterrupt::Token().IsCancelled() ? 0 : 1);
}

const testing::ExitedWithCode Requested(0);
const testing::ExitedWithCode NotRequested(1);

} // namespace

// Each test works in a process of its own: a request cannot be taken back.

TEST(KxInterruptDeathTest, ASignalToEndIsARequest)
{
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        EXPECT_EXIT(ExitAfter({number}), Requested, "") << number;
    }
}

TEST(KxInterruptDeathTest, WithoutASignalNothingIsRequested)
{
    EXPECT_EXIT(ExitAfter({}), NotRequested, "");
}

TEST(KxInterruptDeathTest, ASignalThatIsSentTwiceIsOneRequest)
{
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        EXPECT_EXIT(ExitAfter({number, number}), Requested, "") << number;
    }
}

TEST(KxInterruptDeathTest, AThirdSignalEndsTheProcess)
{
    for (const int number : {SIGINT, SIGTERM}) {
        EXPECT_EXIT(ExitAfter({SIGINT, SIGTERM, number}), testing::KilledBySignal(number), "") << number;
    }
}

TEST(KxInterruptDeathTest, AHangUpDoesNotCountAmongTheThree)
{
    EXPECT_EXIT(ExitAfter({SIGHUP, SIGHUP, SIGINT, SIGTERM}), Requested, "");
}

TEST(KxInterruptDeathTest, AnIgnoredHangUpStaysIgnored)
{
    EXPECT_EXIT(
        {
            std::signal(SIGHUP, SIG_IGN);
            ExitAfter({SIGHUP});
        },
        NotRequested, "");
}

TEST(KxInterruptDeathTest, FailedWritesAreNoSignals)
{
    for (const int number : {SIGPIPE, SIGXFSZ}) {
        EXPECT_EXIT(ExitAfter({number}), NotRequested, "") << number;
    }
}
