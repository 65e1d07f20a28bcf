#pragma once

#include <KxCore/KxExport.h>

#include <KxCore/KxCancelToken.h>

/// The request to stop the program: from the terminal (Ctrl-C, a closed window), by a termination signal, or by the
/// program itself.
namespace KxInterrupt
{
/// From now on such a signal sets a flag instead of ending the process, so that no temporary file stays behind. A
/// third Ctrl-C or termination signal (on Windows the second) ends the process at once. A closed pipe and a file that
/// exceeds the permitted size become errors of the write call. A process that was started to ignore the end of its
/// terminal (nohup) still ignores it. Call once, from `main`.
KXCORE_API void Install();

/// Sets the flag. Any thread.
KXCORE_API void Request();
/// The same, because the process was asked to end by whoever runs it, not by a person at the terminal. Any thread.
KXCORE_API void RequestTermination();
/// Any thread.
KXCORE_API bool IsRequested();
/// Whether the first request was RequestTermination(). Any thread.
KXCORE_API bool IsTermination();
/// The flag as the cancel token of a job. Any thread.
KXCORE_API const KxCancelToken& Token();
} // namespace KxInterrupt
