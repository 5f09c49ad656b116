# Runs PROGRAM under VALGRIND, counts the instructions of matchColumns and all that it calls, and
# fails above CEILING.
execute_process(
    COMMAND ${VALGRIND} --tool=callgrind --callgrind-out-file=${OUTPUT}
        --toggle-collect=columnimport::matchColumns* ${PROGRAM}
    RESULT_VARIABLE result ERROR_VARIABLE messages)
if(NOT result EQUAL 0 OR NOT messages MATCHES "Collected : ([1-9][0-9]*)")
    message(FATAL_ERROR "no count of instructions:\n${messages}")
elseif(CMAKE_MATCH_1 GREATER CEILING)
    message(FATAL_ERROR "matchColumns takes ${CMAKE_MATCH_1} instructions, above ${CEILING}")
endif()
message("${CMAKE_MATCH_1} instructions, at most ${CEILING} are allowed")
