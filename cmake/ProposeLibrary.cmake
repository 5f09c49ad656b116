# SPDX-License-Identifier: MIT

# The C API without the dialogs, for a host that needs only proposals: it does not load the toolkit.
# Neither library needs the other. If the toolkit is linked into the library, there is only that one.

add_library(columnimport_propose SHARED)
add_library(columnimport::propose ALIAS columnimport_propose)
columnimport_own_code(columnimport_propose)
set_target_properties(columnimport_propose PROPERTIES
    OUTPUT_NAME columnimport-propose
    EXPORT_NAME propose
    VERSION ${PROJECT_VERSION}
    SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}
    LINKER_LANGUAGE CXX
    LINK_DEPENDS ${PROJECT_SOURCE_DIR}/cmake/propose-exports.map)
target_include_directories(columnimport_propose INTERFACE
    "$<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/host/c>"
    "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/columnimport>")
target_link_libraries(columnimport_propose PRIVATE columnimport_c_api)
target_link_options(columnimport_propose PRIVATE
    -Wl,--version-script=${PROJECT_SOURCE_DIR}/cmake/propose-exports.map -Wl,--no-undefined
    -Wl,-z,relro -Wl,-z,now)
