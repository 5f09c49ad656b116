# SPDX-License-Identifier: MIT

# `cpack` makes a ZIP of the installed files: the DLL, its import libraries, the headers, the CMake
# files, the Python module and the documents. One import library has MSVC's format.
find_program(LLVM_DLLTOOL llvm-dlltool REQUIRED)
file(STRINGS ${PROJECT_SOURCE_DIR}/docs/exported-symbols.txt functions REGEX "^columnimport_")
list(JOIN functions "\n" functions)
file(CONFIGURE OUTPUT columnimport.def
    CONTENT "LIBRARY columnimport.dll\nEXPORTS\n@functions@\n" @ONLY)
add_custom_command(OUTPUT columnimport.lib
    COMMAND ${LLVM_DLLTOOL} -m i386:x86-64 -d columnimport.def -l columnimport.lib
    DEPENDS ${CMAKE_CURRENT_BINARY_DIR}/columnimport.def VERBATIM)
add_custom_target(columnimport_msvc_library ALL DEPENDS columnimport.lib)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/columnimport.lib
    DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
install(DIRECTORY python DESTINATION . COMPONENT python PATTERN __pycache__ EXCLUDE)

set(CPACK_GENERATOR ZIP)
set(CPACK_PACKAGE_NAME columnimport)
set(CPACK_PACKAGE_FILE_NAME columnimport-${PROJECT_VERSION}-windows-x86_64)
set(CPACK_STRIP_FILES ON)
include(CPack)
