#pragma once

#include <KxCore/KxExport.h>

namespace KxTerminal
{
/// Prepares the terminal for what a program without windows prints: its encoding and overwritten lines. Call once, from
/// `main`; what is changed is restored when the program ends.
KXCORE_API void Prepare();

/// The same for a program with windows, which some platforms start without a terminal.
KXCORE_API void Attach();

/// Whether standard error is a terminal, so that a progress line may overwrite itself.
KXCORE_API bool IsErrorStreamInteractive();
} // namespace KxTerminal
