# SPDX-License-Identifier: MIT

# Four Debian packages: the library for machines that run a host, the library of proposals, the Python
# module, and the files for building a host.
# `cpack` in a build of the preset "package" makes them.

set(soversion ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
set(library_package libcolumnimport${soversion})
set(propose_package libcolumnimport-propose${soversion})
set(python_package python3-columnimport)
set(development_package libcolumnimport-dev)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME columnimport)
set(CPACK_PACKAGE_CONTACT "The columnimport developers <developers@columnimport.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "dialog to match a table's columns with an application's")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_COMPONENTS_ALL library propose python development)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME ${library_package})
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SHLIBDEPS ON)
# GTK draws the check box's mark from an SVG picture.
set(CPACK_DEBIAN_LIBRARY_PACKAGE_RECOMMENDS librsvg2-common)
set(CPACK_DEBIAN_LIBRARY_DESCRIPTION
"An application shows the dialog over its window when a user brings in a
delimited file or a database table. It proposes from the names which column
fits which column of the application, and the user corrects the proposal by
drag and drop. It knows the vocabulary of drill holes.")
# The package manager updates the index of libraries, once for all packages.
set(CPACK_POST_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/dropScripts.cmake)
foreach(component LIBRARY PROPOSE)
    string(TOLOWER ${component} name)
    set(package ${${name}_package})
    string(REGEX REPLACE "${soversion}$" "" library ${package})
    set(folder ${CMAKE_CURRENT_BINARY_DIR}/${package})
    file(WRITE ${folder}/triggers "activate-noawait ldconfig\n")
    file(WRITE ${folder}/shlibs "${library} ${soversion} ${package} (>= ${PROJECT_VERSION})\n")
    set(CPACK_DEBIAN_${component}_PACKAGE_CONTROL_EXTRA ${folder}/triggers ${folder}/shlibs)
endforeach()

set(CPACK_DEBIAN_PROPOSE_PACKAGE_NAME ${propose_package})
set(CPACK_DEBIAN_PROPOSE_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_PROPOSE_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PROPOSE_DESCRIPTION
"This is the part that proposes from the names which column of a file or table
fits which column of an application. It needs no display. The dialog in which
a user corrects the proposal is in ${library_package}.")

set(CPACK_DEBIAN_PYTHON_PACKAGE_NAME ${python_package})
set(CPACK_DEBIAN_PYTHON_PACKAGE_SECTION python)
set(CPACK_DEBIAN_PYTHON_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_PYTHON_PACKAGE_DEPENDS
    "python3:any (>= 3.8), ${propose_package} (>= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_PYTHON_PACKAGE_RECOMMENDS ${library_package})
set(CPACK_DEBIAN_PYTHON_PACKAGE_CONTROL_EXTRA ${CMAKE_CURRENT_LIST_DIR}/prerm)
set(CPACK_DEBIAN_PYTHON_DESCRIPTION
"This is the module for hosts written in Python. It proposes by names alone,
and shows the dialog over a window of theirs where there is a display.")
install(DIRECTORY python/columnimport DESTINATION lib/python3/dist-packages
    COMPONENT python PATTERN __pycache__ EXCLUDE)

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME ${development_package})
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "${library_package} (= ${PROJECT_VERSION}), ${propose_package} (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SUGGESTS "libgtk-3-dev, libwxgtk3.2-dev")
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION
"This package has the headers, the files for CMake and pkg-config and the
guides, with which an application that uses the library is built. One that runs
the dialogs itself needs libwxgtk3.2-dev too.")

# Debian requires these files in every package.
configure_file(${CMAKE_CURRENT_LIST_DIR}/changelog.in changelog @ONLY)
# Without timestamps, so that the same sources give the same packages.
execute_process(COMMAND gzip --best --no-name --force --keep ${CMAKE_CURRENT_BINARY_DIR}/changelog
                COMMAND_ERROR_IS_FATAL ANY)
foreach(component library propose python development)
    set(folder ${CMAKE_INSTALL_DATADIR}/doc/${${component}_package})
    install(FILES ${CMAKE_CURRENT_LIST_DIR}/copyright ${CMAKE_CURRENT_BINARY_DIR}/changelog.gz
        DESTINATION ${folder} COMPONENT ${component})
endforeach()

include(CPack)
