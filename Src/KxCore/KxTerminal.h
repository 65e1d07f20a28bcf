#pragma once

#include <KxCore/KxExport.h>

namespace KxTerminal
{
/// Whether a person reads standard error on a terminal, so that a line may be written over and over.
KXCORE_API bool IsErrorStreamInteractive();
} // namespace KxTerminal
