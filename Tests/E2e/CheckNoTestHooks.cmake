# PROGRAM must not read the environment variables by which tests and benchmarks look into the desktop program.
cmake_minimum_required(VERSION 3.25)
foreach(encoding IN ITEMS UTF-8 UTF-16LE)
    file(STRINGS "${PROGRAM}" found REGEX "KR_(UI_REPORT|END_WHEN_PAINTED)" ENCODING ${encoding})
    if(found)
        message(FATAL_ERROR "${PROGRAM} has test hooks")
    endif()
endforeach()
