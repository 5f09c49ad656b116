// SPDX-License-Identifier: MIT

#pragma once

namespace columnimport {

/// Makes a new application object, for good, unless there is one that is not ours.
void renewApplicationObject();

} // namespace columnimport
