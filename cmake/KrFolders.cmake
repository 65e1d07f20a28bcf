# Where things are installed, below the prefix.

include(GNUInstallDirs)
# On Debian, libraries belong into a folder of their architecture below any prefix, so that what is built once can be installed and packaged.
if(CMAKE_INSTALL_LIBDIR STREQUAL "lib" AND CMAKE_LIBRARY_ARCHITECTURE AND EXISTS /etc/debian_version AND NOT CMAKE_CROSSCOMPILING)
    set(CMAKE_INSTALL_LIBDIR "lib/${CMAKE_LIBRARY_ARCHITECTURE}")
endif()

# The desktop program's own library, which nothing else links.
set(KR_BACKEND_FOLDER "${CMAKE_INSTALL_LIBDIR}")
if(NOT WIN32)
    set(KR_BACKEND_FOLDER "${CMAKE_INSTALL_LIBDIR}/auto-reframe")
endif()
