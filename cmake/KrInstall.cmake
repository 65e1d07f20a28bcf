# `cmake --install` installs the programs, the libraries, the interfaces' headers and the files for find_package(KrAutoReframe).

include(CMakePackageConfigHelpers)

# ./run builds one program. The installation builds the other installed targets.
add_custom_target(installed-parts)
add_dependencies(installed-parts KxCore KxMedia KxSubject KxModel KxRender KxEditList KxWidgets KxPlayer KxMediaLibrary KrAutoReframe
    reframe auto-reframe AutoReframeBackend)
install(CODE "execute_process(
    COMMAND \"${CMAKE_COMMAND}\" --build \"${CMAKE_BINARY_DIR}\" --target installed-parts COMMAND_ERROR_IS_FATAL ANY)")

install(TARGETS KxInterfaces KxCore KxMedia KxSubject KxModel KxRender KxEditList KxWidgets KxPlayer KxMediaLibrary KrAutoReframe
    EXPORT KrAutoReframeTargets
    RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}"
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
    ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}")
install(TARGETS reframe auto-reframe RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
# The desktop program loads it from here.
install(TARGETS AutoReframeBackend LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}")
if(WIN32)
    # No package of the system brings them.
    install(FILES "${KX_CASCADE_FOLDER}/haarcascade_frontalface_alt2.xml" "${KX_CASCADE_FOLDER}/haarcascade_profileface.xml"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/haarcascades")
else()
    install(FILES Packaging/auto-reframe.desktop DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
    install(FILES Packaging/icon/auto-reframe.svg DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps")
endif()
# For programs that load a translation themselves; KxUIStyle::InstallTranslation() needs no file.
install(FILES ${KR_TRANSLATIONS} DESTINATION "${CMAKE_INSTALL_DATADIR}/auto-reframe/translations")
# What Packaging/install-models has put there, if it did.
install(DIRECTORY "${KR_MODELS_FOLDER}/" DESTINATION "${CMAKE_INSTALL_DATADIR}/auto-reframe/models" OPTIONAL)
install(DIRECTORY include/ DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}" FILES_MATCHING PATTERN "*.h")

set(KR_PACKAGE_FOLDER "${CMAKE_INSTALL_LIBDIR}/cmake/KrAutoReframe")
install(EXPORT KrAutoReframeTargets NAMESPACE KrAutoReframe:: DESTINATION "${KR_PACKAGE_FOLDER}")
configure_package_config_file(cmake/KrAutoReframeConfig.cmake.in "${CMAKE_BINARY_DIR}/KrAutoReframeConfig.cmake"
    INSTALL_DESTINATION "${KR_PACKAGE_FOLDER}")
write_basic_package_version_file("${CMAKE_BINARY_DIR}/KrAutoReframeConfigVersion.cmake" COMPATIBILITY SameMajorVersion)
install(FILES "${CMAKE_BINARY_DIR}/KrAutoReframeConfig.cmake" "${CMAKE_BINARY_DIR}/KrAutoReframeConfigVersion.cmake"
    DESTINATION "${KR_PACKAGE_FOLDER}")
