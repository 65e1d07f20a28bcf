#include <KxCore/KxInterrupt.h>

#include <atomic>
#include <csignal>

namespace
{

std::atomic_int Signals{0};
static_assert(std::atomic_int::is_always_lock_free);

/// The third signal gets the default handling, which ends a program that hangs. Not the second: `timeout` and others
/// send one to the process and another to its group.
void LetTheThirdEndTheProcess()
{
    if (++Signals > 1) {
        std::signal(SIGINT, SIG_DFL);
        std::signal(SIGTERM, SIG_DFL);
    }
}

extern "C" void HandleInterrupt(int)
{
    KxInterrupt::Request();
    LetTheThirdEndTheProcess();
}

extern "C" void HandleTermination(int)
{
    KxInterrupt::RequestTermination();
    LetTheThirdEndTheProcess();
}

extern "C" void HandleHangUp(int)
{
    // The handler stays: a closed terminal may send the signal more than once.
    KxInterrupt::Request();
}

} // namespace

void KxInterrupt::Install()
{
    // Created before a signal handler can use it.
    Token();
    std::signal(SIGINT, &HandleInterrupt);
    std::signal(SIGTERM, &HandleTermination);
    if (std::signal(SIGHUP, &HandleHangUp) == SIG_IGN) {
        std::signal(SIGHUP, SIG_IGN);
    }
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
}
