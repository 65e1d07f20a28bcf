#include <Apps/AutoReframe/Backend/MediaStudio.h>

/// How the program, which knows nothing of this library but its name, gets the studio.
extern "C" Q_DECL_EXPORT Studio* MakeStudio()
{
    return new MediaStudio;
}
