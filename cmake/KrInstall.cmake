# `cmake --install` installs the programs, the libraries, the interfaces' headers and the files for find_package(KrAutoReframe).
# The components Programs, Libraries, Development and Models become one Debian package each (KrDebian.cmake).

include(CMakePackageConfigHelpers)

# ./run builds one program. The installation builds the other installed targets.
add_custom_target(installed-parts)
add_dependencies(installed-parts KxCore KxMedia KxSubject KxModel KxRender KxEditList KxWidgets KxPlayer KxMediaLibrary KrAutoReframe
    reframe auto-reframe AutoReframeBackend)
install(CODE "execute_process(
    COMMAND \"${CMAKE_COMMAND}\" --build \"${CMAKE_BINARY_DIR}\" --target installed-parts COMMAND_ERROR_IS_FATAL ANY)"
    ALL_COMPONENTS)
# After the code that builds them: rules are followed in their order.
if(NOT WIN32)
    include(KrDesktopFiles)
    add_dependencies(installed-parts KrDesktopFiles)
endif()

set(libraries KxCore KxMedia KxSubject KxModel KxRender KxEditList KxWidgets KxPlayer KxMediaLibrary KrAutoReframe)
install(TARGETS KxInterfaces ${libraries}
    EXPORT KrAutoReframeTargets
    RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT Libraries
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT Libraries NAMELINK_COMPONENT Development
    ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT Development)
install(TARGETS reframe auto-reframe RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT Programs)
# The desktop program loads it from here.
install(TARGETS AutoReframeBackend LIBRARY DESTINATION "${KR_BACKEND_FOLDER}" COMPONENT Programs)
if(WIN32)
    # No package of the system brings them.
    install(FILES "${KX_CASCADE_FOLDER}/haarcascade_frontalface_alt2.xml" "${KX_CASCADE_FOLDER}/haarcascade_profileface.xml"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/haarcascades" COMPONENT Libraries)
endif()
# For programs that load a translation themselves; KxUIStyle::InstallTranslation() needs no file.
install(FILES ${KR_TRANSLATIONS} DESTINATION "${CMAKE_INSTALL_DATADIR}/auto-reframe/translations" COMPONENT Libraries)
# What Packaging/install-models has put there, if it did.
install(DIRECTORY "${KR_MODELS_FOLDER}/" DESTINATION "${CMAKE_INSTALL_DATADIR}/auto-reframe/models" COMPONENT Models OPTIONAL)
install(DIRECTORY include/ DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}" COMPONENT Development FILES_MATCHING PATTERN "*.h")

set(KR_PACKAGE_FOLDER "${CMAKE_INSTALL_LIBDIR}/cmake/KrAutoReframe")
install(EXPORT KrAutoReframeTargets NAMESPACE KrAutoReframe:: DESTINATION "${KR_PACKAGE_FOLDER}" COMPONENT Development)
configure_package_config_file(cmake/KrAutoReframeConfig.cmake.in "${CMAKE_BINARY_DIR}/KrAutoReframeConfig.cmake"
    INSTALL_DESTINATION "${KR_PACKAGE_FOLDER}")
write_basic_package_version_file("${CMAKE_BINARY_DIR}/KrAutoReframeConfigVersion.cmake" COMPATIBILITY SameMajorVersion)
install(FILES "${CMAKE_BINARY_DIR}/KrAutoReframeConfig.cmake" "${CMAKE_BINARY_DIR}/KrAutoReframeConfigVersion.cmake"
    DESTINATION "${KR_PACKAGE_FOLDER}" COMPONENT Development)

if(NOT WIN32)
    include(KrDebian)
endif()
