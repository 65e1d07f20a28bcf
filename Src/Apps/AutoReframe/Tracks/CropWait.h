#pragma once

#include <Apps/AutoReframe/Backend/MediaBackend.h>

class QWidget;

namespace CropWait
{
/// Finds crops while the person waits: with a progress dialog, which can cancel it, unless it ends soon. Blocks
/// without stopping the window; user-interface thread.
FoundCrops Run(MediaBackend& backend, const CropRequest& request, QWidget& parent);
} // namespace CropWait
