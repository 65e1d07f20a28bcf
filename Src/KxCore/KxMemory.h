#pragma once

#include <KxCore/KxExport.h>

namespace KxMemory
{
/// Gives memory that was freed back to the system, where the platform keeps it back: called after a job has freed much
/// more than the next one needs. Takes some milliseconds; any thread.
KXCORE_API void ReturnUnused();
} // namespace KxMemory
