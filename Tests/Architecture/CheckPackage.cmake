# Installs the build tree BUILD into an empty folder below WORK, builds and runs a program of its own against it, and builds
# the example of README, whose dialog is opened on a screen of its own and compared with a picture (by LOOK, a Python program).

set(prefix "${WORK}/install")
file(REMOVE_RECURSE "${WORK}")

function(must)
    execute_process(COMMAND ${ARGV} RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT status EQUAL 0)
        message(FATAL_ERROR "${ARGV}\n${output}")
    endif()
    message(STATUS "${output}")
endfunction()

# As after ./run, not everything is built yet.
file(REMOVE "${TRANSLATION}")
must("${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${prefix}")
must("${CMAKE_COMMAND}" -S "${CONSUMER}" -B "${WORK}/build" -G Ninja "-DCMAKE_PREFIX_PATH=${prefix}"
    "-DCMAKE_FIND_PACKAGE_NO_PACKAGE_REGISTRY=ON" "-DCMAKE_BUILD_TYPE=Release")
must("${CMAKE_COMMAND}" --build "${WORK}/build")
must("${WORK}/build/consumer")
must("${prefix}/bin/reframe" --version)
if(NOT EXISTS "${prefix}/share/auto-reframe/translations/auto-reframe_en.qm")
    message(FATAL_ERROR "The translation is not installed.")
endif()

# The first block of each language after the heading.
file(READ "${README}" readme)
string(REGEX REPLACE "^.*\n## For an editor\n" "" readme "${readme}")
foreach(block IN ITEMS "cmake:CMakeLists.txt" "cpp:editor.cpp")
    string(REPLACE ":" ";" block "${block}")
    list(GET block 0 language)
    list(GET block 1 name)
    string(FIND "${readme}" "```${language}\n" begin)
    if(begin EQUAL -1)
        message(FATAL_ERROR "README shows no ${name}.")
    endif()
    string(LENGTH "```${language}\n" fence)
    math(EXPR begin "${begin} + ${fence}")
    string(SUBSTRING "${readme}" ${begin} -1 text)
    string(FIND "${text}" "\n```" end)
    string(SUBSTRING "${text}" 0 ${end} text)
    file(WRITE "${WORK}/example/${name}" "${text}\n")
endforeach()
must("${CMAKE_COMMAND}" -S "${WORK}/example" -B "${WORK}/example/build" -G Ninja "-DCMAKE_PREFIX_PATH=${prefix}"
    "-DCMAKE_FIND_PACKAGE_NO_PACKAGE_REGISTRY=ON" "-DCMAKE_BUILD_TYPE=Release")
must("${CMAKE_COMMAND}" --build "${WORK}/example/build")
must("${PYTHON}" -B "${LOOK}" "${WORK}/example/build/editor" "${WORK}/example")
