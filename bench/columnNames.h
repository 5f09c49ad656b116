// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace columnimport::bench {

/// `count` different column names of drill-hole and block-model data in various spellings: nine
/// bytes on average, the same ones for the same `seed` on every machine.
std::vector<std::string> columnNames(std::size_t count, unsigned seed);

/// A title line read as one name: `length` bytes of such names, one after the other.
std::string endlessName(std::size_t length);

/// `count` names of `length` bytes, cut from one long name.
std::vector<std::string> longNames(std::size_t count, std::size_t length);

} // namespace columnimport::bench
