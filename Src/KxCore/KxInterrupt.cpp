#include <KxCore/KxInterrupt.h>

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
