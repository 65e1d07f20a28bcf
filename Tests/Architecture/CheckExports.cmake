# The module's shared library LIBRARY may export the dialog alone: everything else in it is its own affair.

execute_process(COMMAND nm --dynamic --defined-only --demangle "${LIBRARY}" OUTPUT_VARIABLE symbols RESULT_VARIABLE status)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "nm could not read ${LIBRARY}")
endif()
if(NOT symbols MATCHES " T KrAutoReframeDialog::KrAutoReframeDialog\\(QWidget[*]\\)")
    message(SEND_ERROR "${LIBRARY} does not export the dialog")
endif()
string(REPLACE "\n" ";" symbols "${symbols}")
foreach(symbol IN LISTS symbols)
    # The last three are the linker's own. Weak symbols are templates and inline functions of the standard library and Qt that the compiler puts everywhere.
    if(symbol MATCHES " [TDBR] " AND NOT symbol MATCHES "KrAutoReframeDialog| (__bss_start|_edata|_end)$")
        message(SEND_ERROR "exported: ${symbol}")
    endif()
endforeach()
