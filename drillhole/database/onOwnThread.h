// SPDX-License-Identifier: MIT

#pragma once

#include <future>
#include <thread>

namespace drillhole {

/// Starts the work on a thread that nobody has to wait for: a server that never answers holds up
/// neither the window nor the end of the program. The work owns, or shares, all that it uses.
template <typename Work>
auto onOwnThread(Work work) {
    std::packaged_task<std::invoke_result_t<Work>()> task(std::move(work));
    auto result = task.get_future();
    std::thread(std::move(task)).detach();
    return result;
}

} // namespace drillhole
