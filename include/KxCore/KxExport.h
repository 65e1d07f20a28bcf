#pragma once

// Symbol visibility of the host's libraries. CMake defines <library>_EXPORTS while it builds that library.
// KX_SIGNAL_IMPORT is for libraries and classes with signals, which Qt recognises by the addresses of their
// functions.

#if defined(_MSC_VER)
#define KX_SYMBOL_EXPORT __declspec(dllexport)
#define KX_SYMBOL_IMPORT __declspec(dllimport)
#define KX_SIGNAL_IMPORT __declspec(dllimport)
#elif defined(_WIN32)
// The linker of mingw-w64 finds out by itself what comes from a library, so that a program may also link the same
// sources statically. The address of a function that it has found is not the function's own, but that of a jump to it.
#define KX_SYMBOL_EXPORT __declspec(dllexport)
#define KX_SYMBOL_IMPORT
#define KX_SIGNAL_IMPORT __declspec(dllimport)
#else
#define KX_SYMBOL_EXPORT __attribute__((visibility("default")))
#define KX_SYMBOL_IMPORT __attribute__((visibility("default")))
#define KX_SIGNAL_IMPORT __attribute__((visibility("default")))
#endif

#if defined(KxCore_EXPORTS)
#define KXCORE_API KX_SYMBOL_EXPORT
#else
#define KXCORE_API KX_SYMBOL_IMPORT
#endif

#if defined(KxMedia_EXPORTS)
#define KXMEDIA_API KX_SYMBOL_EXPORT
#else
#define KXMEDIA_API KX_SYMBOL_IMPORT
#endif

#if defined(KxSubject_EXPORTS)
#define KXSUBJECT_API KX_SYMBOL_EXPORT
#else
#define KXSUBJECT_API KX_SYMBOL_IMPORT
#endif

#if defined(KxModel_EXPORTS)
#define KXMODEL_API KX_SYMBOL_EXPORT
#else
#define KXMODEL_API KX_SYMBOL_IMPORT
#endif

#if defined(KxRender_EXPORTS)
#define KXRENDER_API KX_SYMBOL_EXPORT
#else
#define KXRENDER_API KX_SYMBOL_IMPORT
#endif

#if defined(KxEditList_EXPORTS)
#define KXEDITLIST_API KX_SYMBOL_EXPORT
#else
#define KXEDITLIST_API KX_SYMBOL_IMPORT
#endif

#if defined(KxWidgets_EXPORTS)
#define KXWIDGETS_API KX_SYMBOL_EXPORT
#else
#define KXWIDGETS_API KX_SIGNAL_IMPORT
#endif

#if defined(KxPlayer_EXPORTS)
#define KXPLAYER_API KX_SYMBOL_EXPORT
#else
#define KXPLAYER_API KX_SIGNAL_IMPORT
#endif

#if defined(KxMediaLibrary_EXPORTS)
#define KXMEDIALIBRARY_API KX_SYMBOL_EXPORT
#define KXMEDIALIBRARY_SIGNAL_API KX_SYMBOL_EXPORT
#else
#define KXMEDIALIBRARY_API KX_SYMBOL_IMPORT
#define KXMEDIALIBRARY_SIGNAL_API KX_SIGNAL_IMPORT
#endif
