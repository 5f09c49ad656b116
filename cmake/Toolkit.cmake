# SPDX-License-Identifier: MIT

# The toolkit of the dialogs, and the name of the folders with the platform's code.

find_package(wxWidgets 3.2 REQUIRED COMPONENTS core base)

if(WIN32)
    set(platform msw)
    enable_language(RC)
else()
    set(platform gtk)
    find_package(PkgConfig REQUIRED)
    pkg_check_modules(GTK REQUIRED IMPORTED_TARGET gtk+-3.0 wayland-client x11)
endif()

# No warnings about the toolkit's headers.
add_library(columnimport_toolkit INTERFACE)
target_include_directories(columnimport_toolkit SYSTEM INTERFACE ${wxWidgets_INCLUDE_DIRS})
target_compile_definitions(columnimport_toolkit INTERFACE ${wxWidgets_DEFINITIONS})
target_compile_options(columnimport_toolkit INTERFACE ${wxWidgets_CXX_FLAGS})
target_link_libraries(columnimport_toolkit INTERFACE ${wxWidgets_LIBRARIES})
