#include "KxMemory.h"

#include <cstdlib>

#if defined(__GLIBC__)
#include <malloc.h>
#endif

void KxMemory::ReturnUnused()
{
#if defined(__GLIBC__)
    malloc_trim(0);
#endif
}
