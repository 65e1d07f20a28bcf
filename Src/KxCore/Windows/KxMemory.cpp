#include <KxCore/KxMemory.h>

// The system's allocator returns large blocks by itself.

void KxMemory::ReturnUnused() {}

void KxMemory::KeepNoPictures() {}
