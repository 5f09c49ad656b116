// SPDX-License-Identifier: MIT

#pragma once

#include <stdexcept>

namespace drillhole {

/// Something that ends an import. The text is for the user: what is wrong, and what to do.
class Fault : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace drillhole
