# cmake -D document=FILE -D example=FILE -P documentShowsExample.cmake
# Fails unless the document holds the example's text as a block of C++, word for word.

file(READ ${document} shown)
file(READ ${example} code)
string(FIND "${shown}" "```cpp\n${code}```\n" place)
if(place EQUAL -1)
    message(FATAL_ERROR "${document} does not show the text of ${example}")
endif()
