#include <KxCore/KxTerminal.h>

#include <cstdio>
#include <cstdlib>

#include <windows.h>

namespace
{

UINT g_encodingBefore = 0;

void RestoreEncoding()
{
    SetConsoleOutputCP(g_encodingBefore);
}

bool IsOpen(DWORD stream)
{
    const HANDLE handle = GetStdHandle(stream);
    return handle != nullptr && handle != INVALID_HANDLE_VALUE && GetFileType(handle) != FILE_TYPE_UNKNOWN;
}

} // namespace

void KxTerminal::Prepare()
{
    // The program prints in the encoding of its narrow texts, which need not be that of the console.
    g_encodingBefore = GetConsoleOutputCP();
    if (g_encodingBefore != 0 && g_encodingBefore != GetACP() && SetConsoleOutputCP(GetACP()) != 0) {
        std::atexit(&RestoreEncoding);
    }
}

void KxTerminal::Attach()
{
    const bool hasOutput = IsOpen(STD_OUTPUT_HANDLE);
    const bool hasErrors = IsOpen(STD_ERROR_HANDLE);
    if ((hasOutput && hasErrors) || AttachConsole(ATTACH_PARENT_PROCESS) == 0) {
        return;
    }
    if (!hasOutput) {
        std::freopen("CONOUT$", "w", stdout);
    }
    if (!hasErrors) {
        std::freopen("CONOUT$", "w", stderr);
    }
    Prepare();
}

bool KxTerminal::IsErrorStreamInteractive()
{
    const HANDLE stream = GetStdHandle(STD_ERROR_HANDLE);
    DWORD mode = 0;
    // Anything that is no console, also the device nul, has no mode.
    return GetConsoleMode(stream, &mode) != 0 &&
           SetConsoleMode(stream, mode | ENABLE_PROCESSED_OUTPUT | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}
