# Debian packages, by Packaging/deb/package.

set(KR_DEBIAN_FOLDER "${CMAKE_BINARY_DIR}/deb")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME auto-reframe)
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
# Each package has its own; CPack would put the project's before it.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_PACKAGE_CONTACT "${KR_MAINTAINER}")
set(CPACK_PACKAGE_HOMEPAGE_URL "${KR_HOMEPAGE}")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_PACKAGE_DIRECTORY "${CMAKE_BINARY_DIR}/packages")
set(CPACK_OUTPUT_FILE_PREFIX "${CMAKE_BINARY_DIR}/packages")
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL Programs Libraries Development)
if(EXISTS "${KR_MODELS_FOLDER}/SHA256SUMS")
    list(APPEND CPACK_COMPONENTS_ALL Models)
endif()

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_SOURCE auto-reframe)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Our own libraries, which no installed package has.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${CMAKE_LIBRARY_OUTPUT_DIRECTORY}")
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(CPACK_DEBIAN_PROGRAMS_PACKAGE_NAME auto-reframe)
set(CPACK_DEBIAN_PROGRAMS_PACKAGE_SECTION video)
set(CPACK_DEBIAN_PROGRAMS_PACKAGE_DEPENDS "libkrautoreframe1 (= ${PROJECT_VERSION}), libqt5sql5-sqlite")
set(CPACK_DEBIAN_PROGRAMS_PACKAGE_RECOMMENDS "auto-reframe-models, libqt5multimedia5-plugins, fonts-inter, qttranslations5-l10n")
set(CPACK_DEBIAN_PROGRAMS_PACKAGE_SUGGESTS "fonts-noto-cjk")
set(CPACK_DEBIAN_PROGRAMS_DESCRIPTION "turn landscape video into any aspect ratio (programs)
Auto Reframe finds the subject of a video frame by frame (moving objects,
faces, salient areas), computes a smooth path for a crop of another aspect
ratio inside each shot, and renders the result as an MP4 file with sound. It
runs on the local machine alone.
.
This package has the desktop program auto-reframe and the command line
reframe.")

set(CPACK_DEBIAN_LIBRARIES_PACKAGE_NAME libkrautoreframe1)
set(CPACK_DEBIAN_LIBRARIES_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_LIBRARIES_PACKAGE_DEPENDS opencv-data)
file(CONFIGURE OUTPUT "${KR_DEBIAN_FOLDER}/triggers" CONTENT "activate-noawait ldconfig\n")
set(CPACK_DEBIAN_LIBRARIES_PACKAGE_CONTROL_EXTRA "${KR_DEBIAN_FOLDER}/triggers")
set(CPACK_DEBIAN_LIBRARIES_DESCRIPTION "turn landscape video into any aspect ratio (libraries)
Auto Reframe turns landscape video into any aspect ratio and keeps its
subject in the picture.
.
This package has the libraries: the module with the dialog that a video
editor loads, and the implementations of the host's libraries that it calls.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libkrautoreframe-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "libkrautoreframe1 (= ${PROJECT_VERSION}), qtbase5-dev (>= 5.15)")
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "turn landscape video into any aspect ratio (development files)
Auto Reframe turns landscape video into any aspect ratio and keeps its
subject in the picture.
.
This package has the headers and the CMake package that a video editor needs
to load the module.")

set(CPACK_DEBIAN_MODELS_PACKAGE_NAME auto-reframe-models)
set(CPACK_DEBIAN_MODELS_PACKAGE_SECTION video)
set(CPACK_DEBIAN_MODELS_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_MODELS_PACKAGE_SHLIBDEPS OFF)
set(CPACK_DEBIAN_MODELS_DESCRIPTION "turn landscape video into any aspect ratio (detector)
Auto Reframe turns landscape video into any aspect ratio and keeps its
subject in the picture.
.
This package has the weights of the network that detects people and animals.
They are optional: without them, motion, faces and salient areas are used.")

# The documents that each package has to have.
configure_file(Packaging/deb/changelog.in "${KR_DEBIAN_FOLDER}/changelog" @ONLY)
execute_process(COMMAND "${KR_GZIP}" -9nf "${KR_DEBIAN_FOLDER}/changelog" COMMAND_ERROR_IS_FATAL ANY)
foreach(component IN ITEMS Programs Libraries Development Models)
    string(TOUPPER "${component}" upper)
    set(folder "${CMAKE_INSTALL_DATADIR}/doc/${CPACK_DEBIAN_${upper}_PACKAGE_NAME}")
    set(copyright Packaging/deb/copyright)
    if(component STREQUAL Models)
        set(copyright Packaging/deb/copyright-models)
    endif()
    install(FILES "${copyright}" DESTINATION "${folder}" RENAME copyright COMPONENT ${component} EXCLUDE_FROM_ALL)
    install(FILES "${KR_DEBIAN_FOLDER}/changelog.gz" DESTINATION "${folder}" COMPONENT ${component} EXCLUDE_FROM_ALL)
endforeach()

install(FILES Packaging/deb/libkrautoreframe1.lintian-overrides DESTINATION "${CMAKE_INSTALL_DATADIR}/lintian/overrides"
    RENAME libkrautoreframe1 COMPONENT Libraries EXCLUDE_FROM_ALL)

# The system finds libraries in its own folders. An installation elsewhere finds its libraries beside its programs.
foreach(target IN ITEMS ${libraries} reframe auto-reframe AutoReframeBackend)
    if(target IN_LIST libraries)
        set(component Libraries)
        set(file "${CMAKE_INSTALL_LIBDIR}/lib${target}.so.${PROJECT_VERSION}")
    elseif(target STREQUAL AutoReframeBackend)
        set(component Programs)
        set(file "${KR_BACKEND_FOLDER}/$<TARGET_FILE_NAME:AutoReframeBackend>")
    else()
        set(component Programs)
        set(file "${CMAKE_INSTALL_BINDIR}/${target}")
    endif()
    install(CODE "if(CMAKE_INSTALL_PREFIX STREQUAL \"/usr\")
        file(RPATH_REMOVE FILE \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${file}\")
    endif()" COMPONENT ${component})
endforeach()

include(CPack)
