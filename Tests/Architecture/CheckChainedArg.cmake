# No source below ROOT chains QString::arg: in QStringLiteral("%1 (%2)").arg(name).arg(2) the second call also fills a "%1" that
# the name brings along. Give all arguments in one call. A padded number, .arg(n, 2, 10, zero), may start a chain: it has no
# one-call form, and digits hold no place marker.

file(GLOB_RECURSE sources "${ROOT}/Src/*.h" "${ROOT}/Src/*.cpp" "${ROOT}/include/*.h" "${ROOT}/Tests/*.h" "${ROOT}/Tests/*.cpp"
    "${ROOT}/Benchmarks/*.cpp" "${ROOT}/Benchmarks/*.h")
if(NOT ROOT MATCHES "/Violations/")
    list(FILTER sources EXCLUDE REGEX "/Violations/")
endif()
set(found 0)
foreach(source IN LISTS sources)
    file(READ "${source}" text)
    if(NOT text MATCHES "\\)[ \t\r\n]*\\.arg\\(")
        continue()
    endif()
    # Parentheses within literals are not code.
    string(REGEX REPLACE "\"([^\"\\\n]|\\\\.)*\"" "" text "${text}")
    string(REGEX REPLACE "'[()]'" "" text "${text}")
    # Innermost parentheses become marks until none are left, so that what remains of a chain is ".ARG.ARG".
    set(before "")
    set(chains FALSE)
    while(NOT chains AND NOT text STREQUAL before)
        set(before "${text}")
        string(REGEX REPLACE "\\.arg\\([^()]*, *[0-9]+, *10[^()]*\\)" ".PADDED" text "${text}")
        string(REGEX REPLACE "\\.arg\\([^()]*\\)" ".ARG" text "${text}")
        # Before the parentheses around a chain become a mark as well.
        if(text MATCHES "\\.ARG[ \t\r\n]*\\.(arg|ARG|PADDED)")
            set(chains TRUE)
        endif()
        string(REGEX REPLACE "(^|[^g]|[^r]g|[^a]rg|[^.]arg)\\([^()]*\\)" "\\1@" text "${text}")
    endwhile()
    if(chains)
        math(EXPR found "${found} + 1")
        file(RELATIVE_PATH name "${ROOT}" "${source}")
        message(NOTICE "${name}: a chain of arg()")
    endif()
endforeach()
if(found)
    message(FATAL_ERROR "${found} files chain arg(). Give all arguments in one call: arg(name, QString::number(n)).")
endif()
