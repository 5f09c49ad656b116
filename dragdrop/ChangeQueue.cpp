// SPDX-License-Identifier: MIT

#include "dragdrop/ChangeQueue.h"

#include <cassert>
#include <utility>

namespace columnimport {

void ChangeQueue::run(Change change) {
    if (isHeld()) {
        m_waiting.push_back(std::move(change));
    } else {
        change();
    }
}

ChangeQueue::Hold ChangeQueue::hold() {
    assert(!isHeld());
    m_hold = std::make_shared<bool>();
    return m_hold;
}

// A change may hold the queue again. Then the others keep waiting.
void ChangeQueue::release(const Change &first) {
    m_hold.reset();
    first();
    while (!isHeld() && !m_waiting.empty()) {
        const Change next = std::move(m_waiting.front());
        m_waiting.pop_front();
        next();
    }
}

void ChangeQueue::clear() {
    m_hold.reset();
    m_waiting.clear();
}

} // namespace columnimport
