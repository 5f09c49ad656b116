# SPDX-License-Identifier: MIT

# Compiles each installed header alone.
#   cmake -D compiler=FILE -D headers=FOLDER -D toolkit=FOLDERS -D definitions=NAMES -P headers.cmake
list(TRANSFORM toolkit PREPEND "-isystem")
list(TRANSFORM definitions PREPEND "-D")
file(GLOB files ${headers}/*.h)
if(NOT files)
    message(FATAL_ERROR "no headers in ${headers}")
endif()
foreach(file IN LISTS files)
    set(flags)
    set(standards c++17 c++20)
    if(file MATCHES "/columnimport\\.h$")
        list(APPEND standards c99 c17)
    endif()
    if(file MATCHES "Dialog\\.h$")
        set(flags ${toolkit} ${definitions})
    endif()
    foreach(standard IN LISTS standards)
        string(REGEX MATCH "^c[+]*" language ${standard})
        execute_process(
            COMMAND ${compiler} -std=${standard} -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror
                ${flags} -fsyntax-only -x ${language} -include ${file} /dev/null
            RESULT_VARIABLE result)
        if(result)
            message(SEND_ERROR "${file} does not compile alone as ${standard}")
        endif()
    endforeach()
endforeach()
