# SPDX-License-Identifier: MIT

# The library is linked as a distribution would: no table of calls stays writable, the stack is
# guarded. And it stays in the process once it is there.
#   cmake -D library=FILE -P hardening.cmake
execute_process(COMMAND readelf --wide --dynamic --program-headers --dyn-syms ${library}
                OUTPUT_VARIABLE file COMMAND_ERROR_IS_FATAL ANY)
foreach(wanted "BIND_NOW" "GNU_RELRO" "FLAGS_1[^\n]* NODELETE" "UND __stack_chk_fail")
    if(NOT file MATCHES "${wanted}")
        message(SEND_ERROR "not found in the library: ${wanted}")
    endif()
endforeach()
