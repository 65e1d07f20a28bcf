# The build settings of every target.

option(KR_FORCE_ASSERTS "Keep Q_ASSERT and standard library assertions in optimised builds" OFF)
option(KR_WARNINGS_AS_ERRORS "Treat compiler warnings as errors" OFF)
set(KR_SANITIZE "" CACHE STRING "Sanitizers to build with, as for -fsanitize=")

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
set(CMAKE_INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR};$ORIGIN")
set_property(GLOBAL PROPERTY CTEST_TARGETS_ADDED 1) # no dashboard targets

find_program(KR_CCACHE ccache)
if(KR_CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER
        ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${KR_CCACHE})
endif()

if(WIN32)
    # KrAutoReframe.dll, as Windows names libraries.
    set(CMAKE_SHARED_LIBRARY_PREFIX "")
    set(CMAKE_SHARED_MODULE_PREFIX "")
    add_compile_definitions(NOMINMAX WIN32_LEAN_AND_MEAN)
endif()

add_library(KrOptions INTERFACE)
target_compile_definitions(KrOptions INTERFACE
    QT_NO_KEYWORDS QT_NO_FOREACH QT_NO_CAST_FROM_ASCII QT_STRICT_ITERATORS QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_DISABLE_DEPRECATED_BEFORE=0x050F00)
if(KR_FORCE_ASSERTS)
    target_compile_definitions(KrOptions INTERFACE QT_FORCE_ASSERTS _GLIBCXX_ASSERTIONS)
endif()
if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
    target_compile_options(KrOptions INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
    if(KR_CCACHE AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        target_compile_options(KrOptions INTERFACE -fpch-preprocess)
    endif()
    if(KR_WARNINGS_AS_ERRORS)
        target_compile_options(KrOptions INTERFACE -Werror)
    endif()
    if(KR_SANITIZE)
        target_compile_options(KrOptions INTERFACE
            -fsanitize=${KR_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
        target_link_options(KrOptions INTERFACE -fsanitize=${KR_SANITIZE})
    endif()
endif()

# The precompiled header of all targets. It is shared: each one takes about 60 MB on disk and two seconds.
function(kr_add_precompiled_headers)
    file(GENERATE OUTPUT "${CMAKE_BINARY_DIR}/KrHeaders.cpp" CONTENT "")
    add_library(KrHeaders OBJECT "${CMAKE_BINARY_DIR}/KrHeaders.cpp")
    target_link_libraries(KrHeaders PRIVATE KrOptions Qt5::Core)
    target_precompile_headers(KrHeaders PRIVATE
        <QList> <QMap> <QObject> <QString> <algorithm> <functional> <memory> <optional> <string> <vector>)
endfunction()

# Options for every target. Headers are included by library and folder, <KxMedia/Read/KxVideoReader.h>: those below Src/ and
# those below include/ by one prefix.
function(kr_configure_target target)
    target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:KrOptions>)
    target_include_directories(${target} PRIVATE "${PROJECT_SOURCE_DIR}/Src" "${PROJECT_SOURCE_DIR}/include")
    target_precompile_headers(${target} REUSE_FROM KrHeaders)
endfunction()

# kr_add_library(<name> SOURCES <files> [PUBLIC <targets>] [PRIVATE <targets>]): a shared library of the host.
function(kr_add_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;PUBLIC;PRIVATE" ${ARGN})
    add_library(${name} SHARED ${ARG_SOURCES})
    add_library(KrAutoReframe::${name} ALIAS ${name})
    target_link_libraries(${name} PUBLIC ${ARG_PUBLIC} PRIVATE ${ARG_PRIVATE})
    set_target_properties(${name} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
    kr_configure_target(${name})
    kr_describe(${name} "Auto Reframe: ${name}")
endfunction()
