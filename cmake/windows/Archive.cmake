# SPDX-License-Identifier: MIT

# `cpack` makes a ZIP of what is installed: the DLL, its import library, the headers, the files for
# CMake, and the documents.
set(CPACK_GENERATOR ZIP)
set(CPACK_PACKAGE_NAME columnimport)
set(CPACK_PACKAGE_FILE_NAME columnimport-${PROJECT_VERSION}-windows-x86_64)
set(CPACK_STRIP_FILES ON)
include(CPack)
