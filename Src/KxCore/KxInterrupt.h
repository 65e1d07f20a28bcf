#pragma once

#include <KxCore/KxExport.h>

#include <KxCore/KxCancelToken.h>

/// The wish to stop the program: from the terminal (Ctrl-C, a closed window), by a signal that asks a process to end,
/// or by the program itself.
namespace KxInterrupt
{
/// From now on such a signal sets the mark instead of ending the process, so that no temporary file stays behind. A
/// second Ctrl-C or termination signal ends the process at once. A closed pipe and a file that exceeds the permitted
/// size become errors of the write that meets them. A process that was started to survive the end of its terminal
/// still does. Call once, from `main`.
KXCORE_API void Install();

/// Sets the mark. Any thread.
KXCORE_API void Request();
/// Any thread.
KXCORE_API bool IsRequested();
/// The mark as the token of a job. Any thread.
KXCORE_API const KxCancelToken& Token();
} // namespace KxInterrupt
