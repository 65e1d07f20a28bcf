#pragma once

#include <KxCore/KxExport.h>

/// The person's wish to stop the program from the terminal (Ctrl-C, or a polite kill), as a mark to look at.
namespace KxInterrupt
{
/// From now on an interrupt sets the mark instead of ending the process; a second one ends it at once. Call once, from
/// `main`.
KXCORE_API void Install();

/// Any thread.
KXCORE_API bool IsRequested();
} // namespace KxInterrupt
