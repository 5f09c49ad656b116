// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string_view>

namespace columnimport {

/// The length of the longest run of bytes that two texts have in common, if it is longer than
/// `floor`; `floor` if it is not. The order of the texts makes no difference.
///
/// The search steps through the longer text by the best length so far, so a high floor saves most
/// of the work. It costs at most the product of the lengths, divided by the run's length for texts
/// that have little in common, and no memory.
///
///     longestRunAbove(0, "hole_id", "holename") == 4
///     longestRunAbove(5, "hole_id", "holename") == 5, since none is longer
std::size_t longestRunAbove(std::size_t floor, std::string_view a, std::string_view b);

} // namespace columnimport
