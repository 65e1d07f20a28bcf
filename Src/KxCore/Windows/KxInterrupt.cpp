#include <KxCore/KxInterrupt.h>

#include <windows.h>

namespace
{

/// Called by the system on a thread of its own.
BOOL WINAPI HandleControl(DWORD event)
{
    const bool isSecond = KxInterrupt::IsRequested();
    KxInterrupt::Request();
    if (event == CTRL_C_EVENT || event == CTRL_BREAK_EVENT) {
        // Unhandled, the second one ends a program that hangs.
        return isSecond ? FALSE : TRUE;
    }
    // The window was closed or the session ends: the system ends the process when this function returns, at the latest
    // after some seconds. Until then the program may remove its temporary files.
    Sleep(INFINITE);
    return TRUE;
}

} // namespace

void KxInterrupt::Install()
{
    // Created before the handler can use it.
    Token();
    SetConsoleCtrlHandler(&HandleControl, TRUE);
}
