# SPDX-License-Identifier: MIT

# Installs a build into an empty prefix, removes it by the uninstall target, and installs it again
# for the tests that use it.
#   cmake -D build=FOLDER -D prefix=FOLDER -P install.cmake
function(run)
    execute_process(COMMAND ${ARGN} OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
endfunction()

file(REMOVE_RECURSE ${prefix})
run(${CMAKE_COMMAND} --install ${build} --prefix ${prefix})
run(${CMAKE_COMMAND} --build ${build} --target uninstall)
file(GLOB_RECURSE left LIST_DIRECTORIES false ${prefix}/*)
if(left OR EXISTS ${prefix}/include/columnimport)
    message(SEND_ERROR "uninstall left behind: ${left}")
endif()
run(${CMAKE_COMMAND} --install ${build} --prefix ${prefix})
