# SPDX-License-Identifier: MIT

# The compile options of all targets of our own code.

set(CMAKE_C_STANDARD 99)
set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

if(WIN32)
    # A program finds the DLLs beside it.
    set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
endif()

# Our code includes headers relative to the project's root: #include "matching/matchColumns.h".
function(columnimport_own_code target)
    target_include_directories(${target} PRIVATE ${PROJECT_SOURCE_DIR})
    if(MSVC)
        target_compile_options(${target} PRIVATE /W4 /utf-8)
        return()
    endif()
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion $<$<BOOL:${COLUMNIMPORT_WERROR}>:-Werror>
        -fstack-protector-strong -Wformat -Werror=format-security)
    if(COLUMNIMPORT_SANITIZERS)
        target_compile_options(${target} PRIVATE
            -fsanitize=${COLUMNIMPORT_SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer)
        target_link_options(${target} PRIVATE -fsanitize=${COLUMNIMPORT_SANITIZERS})
    else()
        # The checked functions exist only in optimized code; the sanitizers check more.
        target_compile_options(${target} PRIVATE
            "$<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
    endif()
endfunction()
