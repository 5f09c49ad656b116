# SPDX-License-Identifier: MIT

# Installs the library, its public headers, and the files for CMake and pkg-config. Each component is a
# package: "library" for running a host, "propose" for a host that needs only proposals, "python" for a
# host in Python, "development" for building a host.

include(CMakePackageConfigHelpers)

set(columnimport_config_folder ${CMAKE_INSTALL_LIBDIR}/cmake/columnimport)

install(TARGETS columnimport EXPORT columnimportTargets
    RUNTIME COMPONENT library
    LIBRARY COMPONENT library NAMELINK_COMPONENT development
    ARCHIVE COMPONENT development)
if(TARGET columnimport_propose)
    install(TARGETS columnimport_propose EXPORT columnimportTargets
        LIBRARY COMPONENT propose NAMELINK_COMPONENT development)
endif()
install(FILES
        ${PROJECT_SOURCE_DIR}/dialogs/wxImportCSVDialog.h
        ${PROJECT_SOURCE_DIR}/dialogs/wxImportODBCDialog.h
        ${PROJECT_SOURCE_DIR}/host/${platform}/HostWindow.h
        ${PROJECT_SOURCE_DIR}/host/c/columnimport.h
        ${PROJECT_SOURCE_DIR}/host/wxImportCSVDialogPeer.h
        ${CMAKE_CURRENT_BINARY_DIR}/columnimport_export.h
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/columnimport
    COMPONENT development)

install(EXPORT columnimportTargets NAMESPACE columnimport::
    DESTINATION ${columnimport_config_folder} COMPONENT development)
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/columnimportConfig.cmake.in
    columnimportConfig.cmake
    INSTALL_DESTINATION ${columnimport_config_folder}
    NO_SET_AND_CHECK_MACRO)
# While the major version is 0, a new minor version may break a host.
write_basic_package_version_file(columnimportConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES
        ${CMAKE_CURRENT_BINARY_DIR}/columnimportConfig.cmake
        ${CMAKE_CURRENT_BINARY_DIR}/columnimportConfigVersion.cmake
    DESTINATION ${columnimport_config_folder} COMPONENT development)

# The paths in this file are relative to it, so that the installed tree can be moved.
set(pkgconfig_folder ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX
    BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX}/${pkgconfig_folder}
    OUTPUT_VARIABLE prefix_from_pkgconfig_folder)
function(columnimport_install_package package)
    configure_file(${CMAKE_CURRENT_FUNCTION_LIST_DIR}/columnimport.pc.in ${package}.pc @ONLY)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${package}.pc
        DESTINATION ${pkgconfig_folder} COMPONENT development)
endfunction()
columnimport_install_package(columnimport)
if(TARGET columnimport_propose)
    columnimport_install_package(columnimport-propose)
endif()

install(FILES README.md CHANGELOG.md CONTRIBUTING.md LICENSE
    DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT development)
install(DIRECTORY docs
    DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT development
    FILES_MATCHING PATTERN *.md PATTERN *.png PATTERN *.svg PATTERN exported-symbols.txt
    PATTERN code EXCLUDE PATTERN tables EXCLUDE)
install(FILES examples/minimal_host.c examples/minimal_host.cpp examples/minimal_host.py examples/sqlite_host.c
    DESTINATION ${CMAKE_INSTALL_DOCDIR}/examples COMPONENT development)
install(FILES examples/msw/minimal_host.c examples/msw/minimal_host.cpp
    DESTINATION ${CMAKE_INSTALL_DOCDIR}/examples/msw COMPONENT development)

if(PROJECT_IS_TOP_LEVEL)
    add_custom_target(uninstall
        COMMAND ${CMAKE_COMMAND} -P ${CMAKE_CURRENT_LIST_DIR}/uninstall.cmake
        WORKING_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}
        VERBATIM)
endif()
