// SPDX-License-Identifier: MIT

#pragma once

#include "person/Screen.h"

#include <functional>
#include <stdexcept>
#include <string>

/// Thrown when a person has waited in vain.
struct GivenUp : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// The result of `work` on the user-interface thread, after all input delivered so far.
template <typename Work>
auto read(Work work) {
    decltype(work()) result{};
    onUserInterface([&] { result = work(); });
    return result;
}

/// Polls `isSo` until it holds; gives up at a generous deadline, with `expected` in the message.
void poll(const std::string &expected, const std::function<bool()> &isSo);

/// The same on the user-interface thread.
void waitUntil(const std::string &expected, const std::function<bool()> &isSo);
