#pragma once

#include <KxCore/KxExport.h>

namespace KxMemory
{
/// Gives memory that was freed back to the system, where the platform keeps it back: called after a job has freed much
/// more than the next one needs. Takes some milliseconds; any thread.
KXCORE_API void ReturnUnused();

/// From now on blocks as large as a picture go back to the system as soon as they are freed. Else the allocator keeps
/// more and more of them in reserve, which a program that works on one video after the other sees as growth. Called at
/// the start of a program, before it has threads.
KXCORE_API void KeepNoPictures();
} // namespace KxMemory
