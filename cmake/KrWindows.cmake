# What programs and libraries carry on Windows: version, icon, and how the system treats them.

set(KR_WINDOWS_FILES "${CMAKE_CURRENT_LIST_DIR}/../Packaging/windows")

if(WIN32)
    enable_language(RC)
    find_program(KR_RSVG_CONVERT rsvg-convert REQUIRED)
    find_program(KR_ICOTOOL icotool REQUIRED)
    set(icon "${CMAKE_BINARY_DIR}/auto-reframe.ico")
    set(pictures "")
    foreach(size IN ITEMS 16 24 32 48 64 128 256)
        set(picture "${CMAKE_BINARY_DIR}/icon/auto-reframe-${size}.png")
        add_custom_command(OUTPUT "${picture}"
            COMMAND ${CMAKE_COMMAND} -E make_directory "${CMAKE_BINARY_DIR}/icon"
            COMMAND "${KR_RSVG_CONVERT}" -w ${size} -h ${size} -o "${picture}" "${PROJECT_SOURCE_DIR}/Packaging/icon/auto-reframe.svg"
            DEPENDS "${PROJECT_SOURCE_DIR}/Packaging/icon/auto-reframe.svg" VERBATIM)
        list(APPEND pictures "${picture}")
    endforeach()
    add_custom_command(OUTPUT "${icon}" COMMAND "${KR_ICOTOOL}" -c -o "${icon}" ${pictures} DEPENDS ${pictures} VERBATIM)
    add_custom_target(KrIcon DEPENDS "${icon}")
endif()

# kr_describe(<target> <description>): gives a program or library its version resource, and a program its icon and its manifest.
function(kr_describe target description)
    if(NOT WIN32)
        return()
    endif()
    get_target_property(type ${target} TYPE)
    set(KR_DESCRIPTION "${description}")
    string(REPLACE "." "," KR_VERSION_NUMBERS "${PROJECT_VERSION}")
    set(KR_FILE_NAME "${target}.dll")
    set(KR_FILE_TYPE VFT_DLL)
    set(KR_PROGRAM_PARTS "")
    if(type STREQUAL EXECUTABLE)
        set(KR_FILE_NAME "${target}.exe")
        set(KR_FILE_TYPE VFT_APP)
        set(KR_PROGRAM_PARTS "1 ICON \"${CMAKE_BINARY_DIR}/auto-reframe.ico\"\n1 24 \"${KR_WINDOWS_FILES}/app.manifest\"")
    endif()
    set(resource "${CMAKE_CURRENT_BINARY_DIR}/${target}.rc")
    configure_file("${KR_WINDOWS_FILES}/app.rc.in" "${resource}" @ONLY)
    target_sources(${target} PRIVATE "${resource}")
    if(type STREQUAL EXECUTABLE)
        set_source_files_properties("${resource}" PROPERTIES
            OBJECT_DEPENDS "${CMAKE_BINARY_DIR}/auto-reframe.ico;${KR_WINDOWS_FILES}/app.manifest")
        add_dependencies(${target} KrIcon)
    endif()
endfunction()
