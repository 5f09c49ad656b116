# SPDX-License-Identifier: MIT

# cpack adds two scripts that call ldconfig to a package with a library. The package's trigger does
# that already, and Debian forbids the scripts. This packs each package again without them.
foreach(package IN LISTS CPACK_PACKAGE_FILES)
    set(content ${CPACK_TOPLEVEL_DIRECTORY}/content)
    file(REMOVE_RECURSE ${content})
    execute_process(COMMAND dpkg-deb --raw-extract ${package} ${content}
                    COMMAND_ERROR_IS_FATAL ANY)
    file(REMOVE ${content}/DEBIAN/postinst ${content}/DEBIAN/postrm)
    execute_process(COMMAND dpkg-deb --root-owner-group --build ${content} ${package}
                    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
endforeach()
