# SPDX-License-Identifier: MIT

# cpack gives a package with a library two scripts that call ldconfig. The package's trigger does
# that, and Debian wants no scripts for it: so each package is packed again without them.
foreach(package IN LISTS CPACK_PACKAGE_FILES)
    set(content ${CPACK_TOPLEVEL_DIRECTORY}/content)
    file(REMOVE_RECURSE ${content})
    execute_process(COMMAND dpkg-deb --raw-extract ${package} ${content}
                    COMMAND_ERROR_IS_FATAL ANY)
    file(REMOVE ${content}/DEBIAN/postinst ${content}/DEBIAN/postrm)
    execute_process(COMMAND dpkg-deb --root-owner-group --build ${content} ${package}
                    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
endforeach()
