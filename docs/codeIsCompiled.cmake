# SPDX-License-Identifier: MIT

# Fails unless each block of code in a document stands, word for word, in a source that is compiled
# or run.
#   cmake -D document=FILE -D sources=FILE[;FILE...] -P codeIsCompiled.cmake

cmake_minimum_required(VERSION 3.25)
file(READ ${document} whole)
set(compiled)
foreach(source IN LISTS sources)
    file(READ ${source} text)
    string(APPEND compiled "${text}")
endforeach()

set(count 0)
foreach(language cpp c csharp python rust)
    set(begin "```${language}\n")
    string(LENGTH ${begin} beginLength)
    set(rest "${whole}")
    while(TRUE)
        string(FIND "${rest}" "${begin}" place)
        if(place EQUAL -1)
            break()
        endif()
        math(EXPR place "${place} + ${beginLength}")
        string(SUBSTRING "${rest}" ${place} -1 rest)
        string(FIND "${rest}" "```\n" end)
        string(SUBSTRING "${rest}" 0 ${end} block)
        string(FIND "${compiled}" "${block}" found)
        if(found EQUAL -1)
            message(SEND_ERROR "${document} shows code that is not compiled:\n${block}")
        endif()
        math(EXPR count "${count} + 1")
    endwhile()
endforeach()
if(count EQUAL 0)
    message(SEND_ERROR "${document} shows no code")
endif()
