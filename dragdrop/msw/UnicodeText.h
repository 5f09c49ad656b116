// SPDX-License-Identifier: MIT

#pragma once

#include <wx/dataobj.h>

namespace columnimport {

/// Text as Unicode, which is the only way that it has here.
using UnicodeText = wxTextDataObject;

} // namespace columnimport
