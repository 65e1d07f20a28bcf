#pragma once

// The system's file chooser with the name and the record that it has on Windows. There the declarations are the
// system's own. Elsewhere the host implements them with its own file chooser, so that the module's code is the same
// everywhere.

#include <KxCore/KxExport.h>

#if defined(_WIN32)

#include <windows.h>

#include <commdlg.h>

#else

#include <cstdint>

struct OPENFILENAMEW {
    std::uint32_t lStructSize; ///< 152
    void* hwndOwner;
    void* hInstance;
    const wchar_t* lpstrFilter; ///< zero-terminated pairs of name and patterns, then an empty one
    wchar_t* lpstrCustomFilter;
    std::uint32_t nMaxCustFilter;
    std::uint32_t nFilterIndex;
    wchar_t* lpstrFile;     ///< receives one path, or a folder and names, each zero-terminated, then an empty one
    std::uint32_t nMaxFile; ///< characters that lpstrFile holds
    wchar_t* lpstrFileTitle;
    std::uint32_t nMaxFileTitle;
    const wchar_t* lpstrInitialDir;
    const wchar_t* lpstrTitle;
    std::uint32_t Flags;
    std::uint16_t nFileOffset; ///< where the (first) name begins in lpstrFile
    std::uint16_t nFileExtension;
    const wchar_t* lpstrDefExt;
    std::intptr_t lCustData;
    void* lpfnHook;
    const wchar_t* lpTemplateName;
    void* pvReserved;
    std::uint32_t dwReserved;
    std::uint32_t FlagsEx;
};

constexpr std::uint32_t OFN_ALLOWMULTISELECT = 0x200;
constexpr std::uint32_t OFN_PATHMUSTEXIST = 0x800;
constexpr std::uint32_t OFN_FILEMUSTEXIST = 0x1000;
constexpr std::uint32_t OFN_EXPLORER = 0x80000;

/// Shows the chooser. Returns 0 if the person cancelled or the choice does not fit into the buffer.
KXWIDGETS_API int GetOpenFileNameW(OPENFILENAMEW* request);

#endif
