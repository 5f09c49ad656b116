# SPDX-License-Identifier: MIT

# The library that a host loads, with the dialogs, the matcher and the C API.

include(GenerateExportHeader)

add_library(columnimport SHARED
    delimited/dialogReading.cpp
    dialogs/${platform}/nativeControls.cpp
    dialogs/${platform}/screen.cpp
    dialogs/DelimiterField.cpp
    dialogs/HeaderSection.cpp
    dialogs/History.cpp
    dialogs/ImportLists.cpp
    dialogs/MatchingSection.cpp
    dialogs/StatusLine.cpp
    dialogs/fitToScreen.cpp
    dialogs/sentences.cpp
    dialogs/wxImportCSVDialog.cpp
    dialogs/wxImportODBCDialog.cpp
    dragdrop/${platform}/FileEntries.cpp
    dragdrop/ListBoxSource.cpp
    dragdrop/ListCtrlSource.cpp
    dragdrop/TextDropTarget.cpp
    dragdrop/listMouse.cpp
    host/${platform}/X11Owner.cpp
    host/${platform}/modalRun.cpp
    host/${platform}/startToolkit.cpp
    host/c/show.cpp
    host/runImport.cpp
    host/toolkit.cpp
    host/wxImportCSVDialogPeer.cpp
    keyboard/${platform}/clipboardText.cpp
    keyboard/FileListKeys.cpp
    keyboard/MatchListKeys.cpp
    keyboard/clipboard.cpp
    readers/${platform}/describe.cpp)
add_library(columnimport::columnimport ALIAS columnimport)
generate_export_header(columnimport)
columnimport_own_code(columnimport)
set_target_properties(columnimport PROPERTIES
    VERSION ${PROJECT_VERSION}
    SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
target_compile_features(columnimport PUBLIC cxx_std_17)
target_link_libraries(columnimport PRIVATE
    columnimport_c_api columnimport_matching columnimport_delimited columnimport_languages
    columnimport_names columnimport_toolkit)
if(WIN32)
    # The platform's usual name for a library, not the compiler's.
    set_target_properties(columnimport PROPERTIES PREFIX "" IMPORT_PREFIX "")
    target_sources(columnimport PRIVATE ${catalogue_resources})
else()
    target_sources(columnimport PRIVATE
        dragdrop/gtk/RowMarks.cpp
        dragdrop/gtk/dragParts.cpp
        dragdrop/gtk/runDrag.cpp
        readers/gtk/AccessibleRow.cpp
        readers/gtk/AccessibleRows.cpp)
    include(cmake/ProposeLibrary.cmake)
    target_link_libraries(columnimport PRIVATE PkgConfig::GTK)
    # The toolkit can't be unloaded, and its objects refer to ours. So the library stays loaded too
    # when a host closes it.
    target_link_options(columnimport PRIVATE
        -Wl,--version-script=${PROJECT_SOURCE_DIR}/cmake/exports.map -Wl,--no-undefined
        -Wl,-z,relro -Wl,-z,now -Wl,-z,nodelete)
    set_target_properties(columnimport PROPERTIES
        LINK_DEPENDS ${PROJECT_SOURCE_DIR}/cmake/exports.map)
endif()

# The library for tests and programs that look inside, which share the toolkit with it. If the toolkit
# is linked into the library, nothing outside can share it, so this compiles the same code again.
if(WIN32)
    add_library(columnimport_inside STATIC $<TARGET_OBJECTS:columnimport>)
    target_compile_definitions(columnimport_inside INTERFACE COLUMNIMPORT_STATIC_DEFINE)
    target_sources(columnimport_inside INTERFACE ${catalogue_resources})
    target_include_directories(columnimport_inside INTERFACE
        $<TARGET_PROPERTY:columnimport,INTERFACE_INCLUDE_DIRECTORIES>)
    target_link_libraries(columnimport_inside PUBLIC
        columnimport_c_api columnimport_matching columnimport_delimited columnimport_languages
        columnimport_names columnimport_toolkit)
else()
    add_library(columnimport_inside INTERFACE)
    target_link_libraries(columnimport_inside INTERFACE
        columnimport::columnimport columnimport_toolkit)
    # The same for a host that builds this project as a part of its own and runs the dialogs itself.
    add_library(columnimport::dialogs ALIAS columnimport_inside)
endif()

target_include_directories(columnimport
    PRIVATE dragdrop/${platform} readers/${platform}
    PUBLIC
        "$<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/host;${PROJECT_SOURCE_DIR}/host/c;${PROJECT_SOURCE_DIR}/host/${platform};${PROJECT_SOURCE_DIR}/dialogs;${CMAKE_CURRENT_BINARY_DIR}>"
        "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/columnimport>")
