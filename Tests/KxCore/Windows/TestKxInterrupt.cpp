#include <KxCore/KxInterrupt.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <thread>

#include <windows.h>

namespace
{

constexpr int Requested = 0;
constexpr int NotRequested = 3;

/// A console of the process's own, so that its events reach no other program.
void OpenConsole()
{
    FreeConsole();
    AllocConsole();
    SetConsoleCtrlHandler(nullptr, FALSE);
}

[[noreturn]] void ExitWhenRequested()
{
    while (!KxInterrupt::IsRequested()) {
        std::this_thread::yield();
    }
    std::_Exit(KxInterrupt::Token().IsCancelled() ? Requested : NotRequested);
}

} // namespace

// Each test works in a process of its own: a request cannot be taken back.

TEST(KxInterruptDeathTest, AConsoleEventIsARequest)
{
    for (const DWORD event : {CTRL_C_EVENT, CTRL_BREAK_EVENT}) {
        EXPECT_EXIT(
            {
                OpenConsole();
                KxInterrupt::Install();
                GenerateConsoleCtrlEvent(event, 0);
                ExitWhenRequested();
            },
            testing::ExitedWithCode(Requested), "")
            << event;
    }
}

TEST(KxInterruptDeathTest, WithoutAnEventNothingIsRequested)
{
    EXPECT_EXIT(
        {
            KxInterrupt::Install();
            std::_Exit(KxInterrupt::IsRequested() ? Requested : NotRequested);
        },
        testing::ExitedWithCode(NotRequested), "");
}

TEST(KxInterruptDeathTest, ASecondEventEndsTheProcess)
{
    const auto wasEndedBySystem = [](int status) { return status != NotRequested; };
    EXPECT_EXIT(
        {
            OpenConsole();
            KxInterrupt::Install();
            GenerateConsoleCtrlEvent(CTRL_BREAK_EVENT, 0);
            while (!KxInterrupt::IsRequested()) {
                std::this_thread::yield();
            }
            GenerateConsoleCtrlEvent(CTRL_BREAK_EVENT, 0);
            // Without an end by the system the test times out.
            for (;;) {
                std::this_thread::yield();
            }
        },
        wasEndedBySystem, "");
}
