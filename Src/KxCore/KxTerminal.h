#pragma once

#include <KxCore/KxExport.h>

namespace KxTerminal
{
/// Whether standard error is a terminal, so that a progress line may overwrite itself.
KXCORE_API bool IsErrorStreamInteractive();
} // namespace KxTerminal
