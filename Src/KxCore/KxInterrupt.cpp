#include <KxCore/KxInterrupt.h>

#include <csignal>

namespace
{

volatile std::sig_atomic_t g_requested = 0;

extern "C" void HandleInterrupt(int number)
{
    g_requested = 1;
    // The second one finds the system's own handling again and ends a program that hangs.
    std::signal(number, SIG_DFL);
}

} // namespace

void KxInterrupt::Install()
{
    std::signal(SIGINT, &HandleInterrupt);
    std::signal(SIGTERM, &HandleInterrupt);
}

bool KxInterrupt::IsRequested()
{
    return g_requested != 0;
}
