#include <KxCore/KxInterrupt.h>

#include <csignal>

namespace
{

extern "C" void HandleInterrupt(int number)
{
    KxInterrupt::Request();
    // The second signal gets the default handling, which ends a program that hangs.
    std::signal(number, SIG_DFL);
}

#if defined(SIGHUP)
extern "C" void HandleHangUp(int)
{
    // The handler stays: a closed terminal may send the signal more than once.
    KxInterrupt::Request();
}
#endif

} // namespace

void KxInterrupt::Install()
{
    // Created before a signal handler can use it.
    Token();
    std::signal(SIGINT, &HandleInterrupt);
    std::signal(SIGTERM, &HandleInterrupt);
#if defined(SIGHUP)
    if (std::signal(SIGHUP, &HandleHangUp) == SIG_IGN) {
        std::signal(SIGHUP, SIG_IGN);
    }
#endif
#if defined(SIGPIPE)
    std::signal(SIGPIPE, SIG_IGN);
#endif
#if defined(SIGXFSZ)
    std::signal(SIGXFSZ, SIG_IGN);
#endif
}

void KxInterrupt::Request()
{
    // Setting an atomic flag is one of the few things that a signal handler may do.
    Token().Cancel();
}

bool KxInterrupt::IsRequested()
{
    return Token().IsCancelled();
}

const KxCancelToken& KxInterrupt::Token()
{
    // Never destroyed: a signal may come until the very end of the process.
    static const KxCancelToken* const token = new KxCancelToken;
    return *token;
}
