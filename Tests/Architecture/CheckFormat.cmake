# Every source below ROOT is laid out as clang-format lays it out.

file(GLOB_RECURSE sources "${ROOT}/Src/*.h" "${ROOT}/Src/*.cpp" "${ROOT}/include/*.h" "${ROOT}/Tests/*.h" "${ROOT}/Tests/*.cpp"
    "${ROOT}/Benchmarks/*.cpp" "${ROOT}/Benchmarks/*.h")
list(FILTER sources EXCLUDE REGEX "/Violations/")
execute_process(COMMAND clang-format --dry-run -Werror ${sources} RESULT_VARIABLE status ERROR_VARIABLE complaints)
if(NOT status EQUAL 0)
    string(SUBSTRING "${complaints}" 0 4000 complaints)
    message(FATAL_ERROR "${complaints}\nRun clang-format -i on these files.")
endif()
