// SPDX-License-Identifier: MIT

#include "dialogs/Scale.h"

#include <cmath>

namespace columnimport {

int Scale::operator()(int pixels) const {
    return static_cast<int>(std::lround(m_ratio * pixels));
}

wxSize Scale::operator()(const wxSize &pixels) const {
    return {(*this)(pixels.x), (*this)(pixels.y)};
}

} // namespace columnimport
