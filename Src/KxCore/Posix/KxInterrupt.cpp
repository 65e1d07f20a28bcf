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

extern "C" void HandleTermination(int number)
{
    KxInterrupt::RequestTermination();
    std::signal(number, SIG_DFL);
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
