// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>

namespace columnimport {

/// The measure takes no shorter name.
inline constexpr std::size_t leastMeasuredLength = 3;

/// The measure of two different names of `lengthA` and `lengthB` bytes, of which `sharedA` and
/// `sharedB` bytes occur in the other one and whose longest common run has `run` bytes.
///
///     blendedMeasure(4, 4, 3, 5, 5) is 0.6, for au_gt and ag_gt
inline double blendedMeasure(std::size_t sharedA, std::size_t sharedB, std::size_t run,
                             std::size_t lengthA, std::size_t lengthB) {
    const double runStep = static_cast<double>(run) - 1.0;
    const auto part = [runStep](std::size_t shared, std::size_t length) {
        const auto bytes = static_cast<double>(length);
        return 0.5 * static_cast<double>(shared) / bytes + 0.5 * runStep / bytes;
    };
    return 0.5 * (part(sharedA, lengthA) + part(sharedB, lengthB));
}

} // namespace columnimport
