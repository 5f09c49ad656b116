# Runs PROGRAM under VALGRIND, counts the instructions of matchColumns and all that it calls, and
# fails above CEILING.
execute_process(
    COMMAND ${VALGRIND} --tool=callgrind --callgrind-out-file=${OUTPUT}
        --toggle-collect=columnimport::matchColumns* ${PROGRAM}
    RESULT_VARIABLE result
    ERROR_VARIABLE messages)
if(NOT result EQUAL 0 OR NOT messages MATCHES "Collected : ([0-9]+)")
    message(FATAL_ERROR "no count of instructions:\n${messages}")
endif()
set(count ${CMAKE_MATCH_1})
message("${count} instructions, at most ${CEILING} are allowed")
if(count EQUAL 0 OR count GREATER CEILING)
    message(FATAL_ERROR "matchColumns takes ${count} instructions, above ${CEILING}")
endif()
