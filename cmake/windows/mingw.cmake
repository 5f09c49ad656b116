# SPDX-License-Identifier: MIT

# Compiles for 64-bit Windows with Debian's cross-compiler, and runs programs under Wine.
# COLUMNIMPORT_TOOLKIT must be the folder that cmake/windows/toolkit prints.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_CROSSCOMPILING_EMULATOR /usr/bin/wine)

set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 ${COLUMNIMPORT_TOOLKIT})
set(wxWidgets_CONFIG_EXECUTABLE ${COLUMNIMPORT_TOOLKIT}/bin/wx-config)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Links the compiler's libraries into each program and library, including the stack protector, so that
# these need only DLLs of the system.
foreach(kind EXE SHARED MODULE)
    set(CMAKE_${kind}_LINKER_FLAGS_INIT "-static -fstack-protector-strong")
endforeach()
