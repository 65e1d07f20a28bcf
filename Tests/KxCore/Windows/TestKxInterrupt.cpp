#include <KxCore/KxInterrupt.h>

#include <Tests/Support/Eventually.h>

#include <QCoreApplication>
#include <QProcess>

#include <gtest/gtest.h>

#include <cstdlib>
#include <future>
#include <optional>

#include <windows.h>

namespace
{

constexpr int Requested = 10;
constexpr int NotRequested = 11;

/// Runs one of the disabled tests below in a process with a console of its own, whose events reach no other program.
/// Its exit status; nothing if it does not end.
std::optional<int> ExitStatusOf(const char* test)
{
    QProcess process;
    process.setCreateProcessArgumentsModifier(
        [](QProcess::CreateProcessArguments* arguments) { arguments->flags |= CREATE_NO_WINDOW; });
    process.start(QCoreApplication::applicationFilePath(),
                  {QStringLiteral("--gtest_also_run_disabled_tests"),
                   QStringLiteral("--gtest_filter=Console.DISABLED_%1").arg(QLatin1String(test))});
    constexpr int longestMs = 60000;
    if (!process.waitForFinished(longestMs)) {
        process.kill();
        process.waitForFinished();
        return std::nullopt;
    }
    return process.exitCode();
}

void WaitForRequest()
{
    (void)QTest::qWaitFor([] { return KxInterrupt::IsRequested(); }, EventuallyMs);
}

// Wine does not deliver Ctrl+Break to a console without a window.
void PressControlC()
{
    GenerateConsoleCtrlEvent(CTRL_C_EVENT, 0);
}

} // namespace

TEST(Console, DISABLED_ControlC)
{
    KxInterrupt::Install();
    PressControlC();
    WaitForRequest();
    std::_Exit(KxInterrupt::Token().IsCancelled() ? Requested : NotRequested);
}

TEST(Console, DISABLED_Nothing)
{
    KxInterrupt::Install();
    std::_Exit(KxInterrupt::IsRequested() ? Requested : NotRequested);
}

TEST(Console, DISABLED_TwoEvents)
{
    KxInterrupt::Install();
    PressControlC();
    WaitForRequest();
    PressControlC();
    // The system has to end the process.
    std::promise<void>().get_future().wait();
}

TEST(KxInterrupt, AConsoleEventIsARequest)
{
    EXPECT_EQ(ExitStatusOf("ControlC"), Requested);
}

TEST(KxInterrupt, WithoutAnEventNothingIsRequested)
{
    EXPECT_EQ(ExitStatusOf("Nothing"), NotRequested);
}

TEST(KxInterrupt, ASecondEventEndsTheProcess)
{
    EXPECT_NE(ExitStatusOf("TwoEvents"), std::nullopt);
}
