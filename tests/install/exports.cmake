# SPDX-License-Identifier: MIT

# The libraries export the listed symbols, each of them and nothing else.
#   cmake -D library=FILES -D list=FILE -D found=FILE -P exports.cmake
# Leaves what it found in `found`, in the form of the list. Of a DLL the library is the one that
# hosts link to.
if(library MATCHES "dll")
    execute_process(COMMAND nm --format=posix ${library} COMMAND sed -n "s/^__imp_//p"
                    COMMAND c++filt OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
    string(REPLACE "HWND__*" "_GtkWidget*" symbols "${symbols}")
    # Names of types are compared letter by letter there, and each module has its own.
    file(STRINGS ${list} wanted)
    list(FILTER wanted EXCLUDE REGEX "^typeinfo name")
    list(JOIN wanted "\n" wanted)
    set(list ${found}.wanted)
    file(WRITE ${list} "${wanted}\n")
else()
    execute_process(COMMAND nm --dynamic --demangle --defined-only --format=posix ${library}
                    OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX REPLACE "[^\n]*\\.so[.0-9]*:\n" "" symbols "${symbols}") # a heading for each file
endif()
# The name alone, without kind and address, with the standard types as one writes them.
string(REGEX REPLACE " [A-Za-z] [0-9a-f]+ *[0-9a-f]*\n" "\n" symbols "${symbols}")
string(REPLACE "std::__cxx11::basic_string<char, std::char_traits<char>, std::allocator<char> >"
               "std::string" symbols "${symbols}")
string(REGEX REPLACE "std::vector<std::string, std::allocator<std::string ?> >"
                     "std::vector<std::string>" symbols "${symbols}")
string(REGEX REPLACE "\n$" "" symbols "${symbols}")
string(REPLACE "\n" ";" symbols "${symbols}")
list(SORT symbols)
list(REMOVE_DUPLICATES symbols) # constructors and destructors have several
list(JOIN symbols "\n" symbols)
file(WRITE ${found} "${symbols}\n")
execute_process(COMMAND diff -u ${list} ${found} RESULT_VARIABLE differs)
if(differs)
    message(FATAL_ERROR "the exported symbols are not those of ${list}")
endif()
