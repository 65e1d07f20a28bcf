#pragma once

#include <KxCore/KxExport.h>

#if defined(KrAutoReframe_EXPORTS)
#define KRAUTOREFRAME_API KX_SYMBOL_EXPORT
#else
#define KRAUTOREFRAME_API KX_SIGNAL_IMPORT
#endif
