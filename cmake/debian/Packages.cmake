# SPDX-License-Identifier: MIT

# Two Debian packages: the library for the machine that a host runs on, and what one is built with.
# `cpack` in a build of the preset "package" makes them.

set(soversion ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
set(library_package libcolumnimport${soversion})
set(development_package libcolumnimport-dev)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME columnimport)
set(CPACK_PACKAGE_CONTACT "The columnimport developers <developers@columnimport.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "dialog to match a table's columns with an application's")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_COMPONENTS_ALL library development)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME ${library_package})
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SHLIBDEPS ON)
# GTK draws the mark of the check box from a picture in SVG.
set(CPACK_DEBIAN_LIBRARY_PACKAGE_RECOMMENDS librsvg2-common)
set(CPACK_DEBIAN_LIBRARY_DESCRIPTION
"An application shows the dialog over its window when a user brings in a
delimited file or a database table. It proposes from the names which column
fits which column of the application, and the user corrects the proposal by
drag and drop. It knows the vocabulary of drill holes.")
# The index of libraries is renewed by the package manager itself, once for all packages.
set(CPACK_POST_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/dropScripts.cmake)
file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/triggers "activate-noawait ldconfig\n")
file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/shlibs
    "libcolumnimport ${soversion} ${library_package} (>= ${PROJECT_VERSION})\n")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA
    ${CMAKE_CURRENT_BINARY_DIR}/triggers ${CMAKE_CURRENT_BINARY_DIR}/shlibs)

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME ${development_package})
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${library_package} (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SUGGESTS "libgtk-3-dev, libwxgtk3.2-dev")
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION
"This package has the headers, the files for CMake and pkg-config and the
guides, with which an application that uses the library is built. One that runs
the dialogs itself needs libwxgtk3.2-dev too.")

# What Debian wants of every package.
configure_file(${CMAKE_CURRENT_LIST_DIR}/changelog.in changelog @ONLY)
# Without the time: the same sources give the same packages.
execute_process(COMMAND gzip --best --no-name --force --keep ${CMAKE_CURRENT_BINARY_DIR}/changelog
                COMMAND_ERROR_IS_FATAL ANY)
foreach(component library development)
    set(folder ${CMAKE_INSTALL_DATADIR}/doc/${${component}_package})
    install(FILES ${CMAKE_CURRENT_LIST_DIR}/copyright ${CMAKE_CURRENT_BINARY_DIR}/changelog.gz
        DESTINATION ${folder} COMPONENT ${component})
endforeach()

include(CPack)
