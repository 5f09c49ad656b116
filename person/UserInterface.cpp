// SPDX-License-Identifier: MIT

#include "person/UserInterface.h"

#include <chrono>
#include <thread>

void poll(const std::string &expected, const std::function<bool()> &isSo) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (!isSo()) {
        if (std::chrono::steady_clock::now() > end) {
            throw GivenUp("waited in vain until " + expected);
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
}

void waitUntil(const std::string &expected, const std::function<bool()> &isSo) {
    poll(expected, [&isSo] { return read(isSo); });
}
