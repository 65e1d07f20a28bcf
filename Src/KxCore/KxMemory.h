#pragma once

#include <KxCore/KxExport.h>

namespace KxMemory
{
/// Returns freed memory to the system, on platforms whose allocator keeps it. Call it after a job that used much more
/// than the next one needs. Takes some milliseconds; any thread.
KXCORE_API void ReturnUnused();

/// From now on blocks as large as a picture are returned to the system when they are freed. Otherwise the allocator
/// keeps more and more of them, and a program that processes one video after the other grows. Call it at the start of a
/// program, before it has threads.
KXCORE_API void KeepNoPictures();
} // namespace KxMemory
