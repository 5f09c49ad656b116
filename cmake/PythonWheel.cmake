# SPDX-License-Identifier: MIT

# The library of proposals, beside the Python module that calls it. Its name has no version, and the
# C++ library is linked into it, so that it needs no system packages.

include(cmake/ProposeLibrary.cmake)
set_property(TARGET columnimport_propose PROPERTY VERSION)
set_property(TARGET columnimport_propose PROPERTY SOVERSION)
target_link_options(columnimport_propose PRIVATE -static-libstdc++ -static-libgcc)
install(TARGETS columnimport_propose LIBRARY DESTINATION columnimport)
