# SPDX-License-Identifier: MIT

# Removes the files that `cmake --install` listed in the build folder, and then our empty folders.
#   cd BUILD && cmake -P uninstall.cmake
if(NOT EXISTS install_manifest.txt)
    message(FATAL_ERROR "Nothing was installed from this build.")
endif()
file(STRINGS install_manifest.txt files)
foreach(file IN LISTS files)
    set(file "$ENV{DESTDIR}${file}")
    message(STATUS "Removing ${file}")
    file(REMOVE "${file}")
    cmake_path(GET file PARENT_PATH folder)
    while(folder MATCHES "/columnimport(/|$)")
        file(GLOB content "${folder}/*")
        if(content)
            break()
        endif()
        file(REMOVE_RECURSE "${folder}")
        cmake_path(GET folder PARENT_PATH folder)
    endwhile()
endforeach()
file(REMOVE install_manifest.txt)
