# Windows for 64-bit processors, with Debian's mingw-w64 (posix threads) and the libraries that `build --deps` has built.

set(KR_WINDOWS_FOLDER "$ENV{AUTO_REFRAME_WINDOWS}")
if(KR_WINDOWS_FOLDER STREQUAL "")
    set(KR_WINDOWS_FOLDER "$ENV{HOME}/.cache/auto-reframe-windows")
endif()

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(KR_WINDOWS_HOST x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${KR_WINDOWS_HOST}-gcc-posix)
set(CMAKE_CXX_COMPILER ${KR_WINDOWS_HOST}-g++-posix)
set(CMAKE_RC_COMPILER ${KR_WINDOWS_HOST}-windres)
set(CMAKE_CROSSCOMPILING_EMULATOR "${CMAKE_CURRENT_LIST_DIR}/wine-run")

# Libraries, headers and CMake packages come from there alone, programs from this machine.
set(CMAKE_PREFIX_PATH "${KR_WINDOWS_FOLDER}/root")
set(CMAKE_FIND_ROOT_PATH "${KR_WINDOWS_FOLDER}/root" "/usr/${KR_WINDOWS_HOST}")
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_LIBDIR} "${KR_WINDOWS_FOLDER}/root/lib/pkgconfig")
set(ENV{PKG_CONFIG_PATH} "")
