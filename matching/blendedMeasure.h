#pragma once

#include <cstddef>

namespace columnimport {

/// The measure of two different names of `lengthA` and `lengthB` bytes, of which `sharedA` and
/// `sharedB` bytes occur in the other one and whose longest common run has `run` bytes.
///
/// Every operation rounds monotonously, so the measure of larger counts is never smaller: what it
/// gives for an upper bound of a count is an upper bound of the measure, to the last bit.
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
