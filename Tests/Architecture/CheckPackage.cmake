# Installs the build tree BUILD into an empty folder below WORK and builds and runs a program of its own against it.

set(prefix "${WORK}/install")
file(REMOVE_RECURSE "${WORK}")

function(must)
    execute_process(COMMAND ${ARGV} RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT status EQUAL 0)
        message(FATAL_ERROR "${ARGV}\n${output}")
    endif()
    message(STATUS "${output}")
endfunction()

must("${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${prefix}")
must("${CMAKE_COMMAND}" -S "${CONSUMER}" -B "${WORK}/build" -G Ninja "-DCMAKE_PREFIX_PATH=${prefix}"
    "-DCMAKE_FIND_PACKAGE_NO_PACKAGE_REGISTRY=ON" "-DCMAKE_BUILD_TYPE=Release")
must("${CMAKE_COMMAND}" --build "${WORK}/build")
must("${WORK}/build/consumer")
must("${prefix}/bin/reframe" --version)
