#include <KxCore/KxTerminal.h>

#include <unistd.h>

void KxTerminal::Prepare() {}

void KxTerminal::Attach() {}

bool KxTerminal::IsErrorStreamInteractive()
{
    return isatty(STDERR_FILENO) != 0;
}
