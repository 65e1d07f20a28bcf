# What a desktop and a shell show of the installed programs: icons, desktop file, AppStream metainfo, man pages, completions.

find_program(KR_RSVG_CONVERT rsvg-convert REQUIRED)
find_program(KR_GZIP gzip REQUIRED)

# The project has no public home page: these addresses are placeholders. A package that is published needs real ones, because software
# centres fetch the screenshots from below the home page.
set(KR_HOMEPAGE "https://example.org/auto-reframe" CACHE STRING "Address of the project, for packages and metainfo")
set(KR_APPLICATION_ID "org.example.auto_reframe" CACHE STRING "Name of the desktop program in metainfo, from a domain of the project")
set(KR_MAINTAINER "Auto Reframe maintainers <maintainers@example.org>" CACHE STRING "Who maintains the packages")

set(KR_DESKTOP_FOLDER "${CMAKE_BINARY_DIR}/desktop")
set(desktop_files "")
foreach(size IN ITEMS 16 22 24 32 48 64 128 256 512)
    set(icon "${KR_DESKTOP_FOLDER}/icons/hicolor/${size}x${size}/apps/auto-reframe.png")
    get_filename_component(icon_folder "${icon}" DIRECTORY)
    add_custom_command(OUTPUT "${icon}"
        COMMAND ${CMAKE_COMMAND} -E make_directory "${icon_folder}"
        COMMAND "${KR_RSVG_CONVERT}" -w ${size} -h ${size} -o "${icon}" "${PROJECT_SOURCE_DIR}/Packaging/icon/auto-reframe.svg"
        DEPENDS "${PROJECT_SOURCE_DIR}/Packaging/icon/auto-reframe.svg" VERBATIM)
    list(APPEND desktop_files "${icon}")
endforeach()
foreach(page IN ITEMS reframe.1 auto-reframe.1)
    set(compressed "${KR_DESKTOP_FOLDER}/man1/${page}.gz")
    add_custom_command(OUTPUT "${compressed}"
        COMMAND ${CMAKE_COMMAND} -E make_directory "${KR_DESKTOP_FOLDER}/man1"
        COMMAND sh -c "\"$1\" -9nc \"$2\" >\"$3\"" compress "${KR_GZIP}" "${PROJECT_SOURCE_DIR}/Packaging/man/${page}" "${compressed}"
        DEPENDS "${PROJECT_SOURCE_DIR}/Packaging/man/${page}" VERBATIM)
    list(APPEND desktop_files "${compressed}")
endforeach()
add_custom_target(KrDesktopFiles ALL DEPENDS ${desktop_files})

set(KR_METAINFO "${KR_DESKTOP_FOLDER}/auto-reframe.metainfo.xml")
configure_file(Packaging/metainfo/auto-reframe.metainfo.xml.in "${KR_METAINFO}" @ONLY)

install(FILES Packaging/auto-reframe.desktop DESTINATION "${CMAKE_INSTALL_DATADIR}/applications" COMPONENT Programs)
install(FILES Packaging/icon/auto-reframe.svg DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps" COMPONENT Programs)
install(DIRECTORY "${KR_DESKTOP_FOLDER}/icons" DESTINATION "${CMAKE_INSTALL_DATADIR}" COMPONENT Programs)
install(FILES "${KR_METAINFO}" DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo" COMPONENT Programs)
install(DIRECTORY "${KR_DESKTOP_FOLDER}/man1" DESTINATION "${CMAKE_INSTALL_MANDIR}" COMPONENT Programs)
foreach(program IN ITEMS reframe auto-reframe)
    install(FILES "Packaging/completions/${program}.bash" DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions"
        RENAME ${program} COMPONENT Programs)
    install(FILES "Packaging/completions/_${program}" DESTINATION "${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions"
        COMPONENT Programs)
endforeach()
