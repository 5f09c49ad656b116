# The library gives its three classes away and nothing else.
#   cmake -D library=FILE -P exports.cmake
execute_process(COMMAND nm --dynamic --demangle --defined-only --format=posix ${library}
                OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
string(REPLACE ";" "," symbols "${symbols}")
string(REGEX REPLACE "\n$" "" symbols "${symbols}")
string(REPLACE "\n" ";" symbols "${symbols}")
set(class "wxImportCSVDialogPeer|wxImportCSVDialog|wxImportODBCDialog")
foreach(symbol IN LISTS symbols)
    if(NOT symbol MATCHES "^(${class})::" AND
       NOT symbol MATCHES "^(vtable|typeinfo|typeinfo name) for (${class}) ")
        message(SEND_ERROR "exported, but of no public class: ${symbol}")
    endif()
endforeach()
foreach(wanted
        "wxImportCSVDialogPeer::showWindow(" "wxImportCSVDialogPeer::operator=("
        "wxImportCSVDialog::getDelimiter(" "wxImportCSVDialog::create("
        "wxImportODBCDialog::wxImportODBCDialog(" "vtable for wxImportCSVDialog "
        "typeinfo for wxImportODBCDialog ")
    string(FIND "${symbols}" "${wanted}" place)
    if(place EQUAL -1)
        message(SEND_ERROR "not exported: ${wanted}")
    endif()
endforeach()
