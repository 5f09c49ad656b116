# SPDX-License-Identifier: MIT

# The library that only proposes, beside the module for Python that calls it: under a name without a
# version, and with the C++ library inside, so that it needs no package of the system.

include(cmake/ProposeLibrary.cmake)
set_property(TARGET columnimport_propose PROPERTY VERSION)
set_property(TARGET columnimport_propose PROPERTY SOVERSION)
target_link_options(columnimport_propose PRIVATE -static-libstdc++ -static-libgcc)
install(TARGETS columnimport_propose LIBRARY DESTINATION columnimport)
