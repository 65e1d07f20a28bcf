#include <KxCore/KxInterrupt.h>

#include <atomic>

namespace
{

std::atomic_bool IsTerminated{false};
// A signal handler sets it.
static_assert(std::atomic_bool::is_always_lock_free);

} // namespace

void KxInterrupt::Request()
{
    // Setting an atomic flag is one of the few things that a signal handler may do.
    Token().Cancel();
}

void KxInterrupt::RequestTermination()
{
    if (!IsRequested()) {
        IsTerminated = true;
    }
    Request();
}

bool KxInterrupt::IsTermination()
{
    return IsTerminated;
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
