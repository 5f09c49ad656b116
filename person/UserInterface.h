// SPDX-License-Identifier: MIT

#pragma once

#include "person/Screen.h"

#include <functional>
#include <stdexcept>
#include <string>

/// Thrown when what a person waits for does not come.
struct GivenUp : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// What `work` returns on the user-interface thread, behind all input delivered so far.
template <typename Work>
auto read(Work work) {
    decltype(work()) result{};
    onUserInterface([&] { result = work(); });
    return result;
}

/// Polls `isSo` until it holds; gives up at a generous deadline. `expected` says in the message
/// what was waited for.
void poll(const std::string &expected, const std::function<bool()> &isSo);

/// The same on the user-interface thread.
void waitUntil(const std::string &expected, const std::function<bool()> &isSo);
